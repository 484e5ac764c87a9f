/// @file
/// Is this package sound? What readers stumble over most, checked without any schema.

#ifndef VELLOX_TOOLS_PACKAGECHECK_H
#define VELLOX_TOOLS_PACKAGECHECK_H

#include <string>
#include <vector>

namespace vellox::tools {

/// One line for each fault: an entry that can't be read, XML that isn't well-formed, a relationship that leads
/// nowhere, a part without a type, an id in a slide that is no relationship, a data-uid, a slide that is
/// listed twice or with a bad id, a text body without a paragraph, a coordinate that is no whole number.
std::vector<std::string> findFaults(const std::wstring& packagePath);

} // namespace vellox::tools

#endif
