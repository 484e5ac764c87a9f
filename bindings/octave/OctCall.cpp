#include "bindings/octave/OctCall.h"

#include "bindings/octave/OctErrors.h"

namespace vellox::ppt::oct {

OctCall::OctCall(const octave_value_list& values, const Reading& reading) {
    for (octave_idx_type i = 0; i < values.length(); ++i)
        pointers_.push_back(&values_.emplace_back(values(i), reading));
}

std::size_t OctCall::select(const std::vector<const hostbind::Signature*>& signatures,
                            const std::function<Expected()>& describe) const {
    const int found = hostbind::findOverload(signatures, getArguments());
    if (found >= 0)
        return static_cast<std::size_t>(found);
    std::string given;
    for (const OctValue& value : values_)
        given += (given.empty() ? "" : ", ") + value.getClassName();
    const Expected expected = describe();
    raiseError("Octave:invalid-fun-call",
               expected.name + " doesn't take (" + given + "). It takes:\n\n" + expected.overloads);
}

} // namespace vellox::ppt::oct
