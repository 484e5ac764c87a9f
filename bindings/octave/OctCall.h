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
    /// @param keywords the names of parameters that are given as a name and a value, behind all others
    explicit OctCall(const octave_value_list& values, const Reading& reading = {},
                     const std::vector<std::string>& keywords = {});

    /// All of them as a signature that fits has them.
    std::vector<const hvArray*> orderFor(const hostbind::Signature& signature) const {
        return *hostbind::orderArguments(signature, getArguments(), named_);
    }

    /// The position of the signature that fits.
    /// @throws octave::execution_exception with a text that lists what would fit
    std::size_t select(const std::vector<const hostbind::Signature*>& signatures,
                       const std::function<Expected()>& describe) const;

private:
    hostbind::Arguments getArguments() const { return {pointers_.data(), pointers_.size()}; }

    std::deque<OctValue> values_;
    std::vector<const hvArray*> pointers_;
    std::vector<hostbind::NamedArgument> named_;
};

/// How many values stand ahead of those that are given by name.
octave_idx_type countUnnamed(const octave_value_list& values, const std::vector<std::string>& keywords);

} // namespace vellox::ppt::oct

#endif
