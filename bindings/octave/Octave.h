/// @file
/// Octave's own headers, and the two conversions of texts.

#ifndef BINDINGS_OCTAVE_OCTAVE_H
#define BINDINGS_OCTAVE_OCTAVE_H

#include <octave/oct.h>

#include <octave/cdef-class.h>
#include <octave/cdef-manager.h>
#include <octave/cdef-object.h>
#include <octave/cdef-utils.h>
#include <octave/interpreter.h>
#include <octave/ov-classdef.h>

#include <string>

#include "vellox/host/services/Utf8.h"

namespace vellox::ppt::oct {

/// The interpreter that called.
inline octave::interpreter& getInterpreter() {
    return *octave::interpreter::the_interpreter();
}

inline octave_value toOctave(const std::string& utf8) {
    return octave_value(utf8, '"');
}
inline octave_value toOctave(const std::wstring& text) {
    return toOctave(toUtf8(text));
}

} // namespace vellox::ppt::oct

#endif
