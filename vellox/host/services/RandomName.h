/// @file
/// Names that nothing else has.

#ifndef VELLOX_HOST_SERVICES_RANDOMNAME_H
#define VELLOX_HOST_SERVICES_RANDOMNAME_H

#include <boost/uuid/uuid.hpp>

#include <string>

namespace vellox::host {

/// A random UUID (version 4). A forked process draws others than the one that it comes from.
boost::uuids::uuid drawUuid();
/// One in words: 36 characters, letters in lower case.
std::string makeRandomName();

} // namespace vellox::host

#endif
