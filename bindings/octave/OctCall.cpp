#include "bindings/octave/OctCall.h"

#include "bindings/octave/OctErrors.h"

#include <algorithm>

namespace vellox::ppt::oct {

octave_idx_type countUnnamed(const octave_value_list& values, const std::vector<std::string>& keywords) {
    octave_idx_type count = values.length();
    while (count >= 2 && values(count - 2).is_string() &&
           std::find(keywords.begin(), keywords.end(), values(count - 2).string_value()) != keywords.end())
        count -= 2;
    return count;
}

OctCall::OctCall(const octave_value_list& values, const Reading& reading,
                 const std::vector<std::string>& keywords) {
    const octave_idx_type nUnnamed = countUnnamed(values, keywords);
    for (octave_idx_type i = 0; i < nUnnamed; ++i)
        pointers_.push_back(&values_.emplace_back(values(i), reading));
    for (octave_idx_type i = nUnnamed; i < values.length(); i += 2)
        named_.push_back({values(i).string_value(), &values_.emplace_back(values(i + 1), reading)});
}

std::size_t OctCall::select(const std::vector<const hostbind::Signature*>& signatures,
                            const std::function<Expected()>& describe) const {
    const int found = hostbind::findOverload(signatures, getArguments(), named_);
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
