/// @file
/// Figures of Octave where a picture is wanted.

#ifndef BINDINGS_OCTAVE_OCTFIGURES_H
#define BINDINGS_OCTAVE_OCTFIGURES_H

#include "bindings/octave/Octave.h"
#include "vellox/host/binding/HostResult.h"

namespace vellox::ppt::oct {

/// The arguments of a call of a method, with a Picture in the place of a figure's handle: a number, which `replace` never
/// takes, nor does the `add` of a slide with one argument, nor a field of `fill` for a picture's place. The figure is
/// printed at the size of the box that it is for.
octave_value_list drawFigures(const PPTObject& self, const std::string& method, octave_value_list values);

} // namespace vellox::ppt::oct

#endif
