/// @file
/// What the library gives, as values of Octave, and what Octave gives back unchanged.

#ifndef BINDINGS_OCTAVE_OCTRESULTS_H
#define BINDINGS_OCTAVE_OCTRESULTS_H

#include <string>

#include "bindings/octave/Octave.h"
#include "vellox/host/binding/HostResult.h"

namespace vellox::ppt::oct {

/// @param className of what an array holds; empty where none is
/// @return an undefined value for no result
octave_value toOctave(const hostbind::HostResult& result, const std::string& className);

/// Whether two values hold the same objects in the same places, in arrays or cells, and nothing else.
bool holdSameObjects(const octave_value& one, const octave_value& other);

} // namespace vellox::ppt::oct

#endif
