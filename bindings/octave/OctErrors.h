/// @file
/// Errors both ways. An error of Octave's own travels through the library as the exception that Octave itself throws.

#ifndef BINDINGS_OCTAVE_OCTERRORS_H
#define BINDINGS_OCTAVE_OCTERRORS_H

#include <string>

namespace vellox::ppt::oct {

/// Throws an error of Octave.
/// @param identifier such as "vellox:noObject"
[[noreturn]] void raiseError(const std::string& identifier, const std::string& text);

/// Throws the error of Octave that the exception in flight stands for. To be called in a handler.
[[noreturn]] void translateToOctave();

/// Shows a warning where nothing may be thrown, because an object is ending.
void warnAtEnd(const std::string& identifier, const std::string& text) noexcept;

/// Lets Octave show the library's warnings, or turn them into errors, by their identifiers.
void setWarningService();

/// Runs what may throw.
template <class Function> auto guarded(Function function) {
    try {
        return function();
    } catch (...) {
        translateToOctave();
    }
}

} // namespace vellox::ppt::oct

#endif
