/// @file
/// The arguments of a call from Octave, and which overload they mean.

#ifndef BINDINGS_OCTAVE_OCTCALL_H
#define BINDINGS_OCTAVE_OCTCALL_H

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "bindings/octave/OctValue.h"
#include "vellox/host/binding/Signature.h"

namespace vellox::ppt::oct {

/// What an error tells of a function.
struct Expected {
    std::string name;
    std::string overloads;
};

/// Views of arguments.
class OctCall {
public:
    OctCall(const octave_value_list& values, const Reading& reading = {});

    hostbind::Arguments getArguments() const { return {pointers_.data(), pointers_.size()}; }

    /// The position of the signature that fits.
    /// @throws octave::execution_exception with a text that lists what would fit
    std::size_t select(const std::vector<const hostbind::Signature*>& signatures,
                       const std::function<Expected()>& describe) const;

private:
    std::deque<OctValue> values_;
    std::vector<const hvArray*> pointers_;
};

} // namespace vellox::ppt::oct

#endif
