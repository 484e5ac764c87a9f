#include "vellox/host/binding/Digits.h"

#include <algorithm>

namespace vellox::ppt::hostbind {

Digits getDigits(const BoundClass& bound) {
    const auto isNumber = [](const Parameter& parameter) {
        return parameter.word.getKind() == SignatureWord::Kind::Double;
    };
    const bool takesNumber =
        std::any_of(bound.constructors.begin(), bound.constructors.end(), [&](const BoundConstructor& each) {
            return std::any_of(each.signature.begin(), each.signature.end(), isNumber);
        });
    return takesNumber ? Digits::Always : Digits::OfItems;
}

Digits getDigits(const BoundProperty& property) {
    // A number that is shown, or one that is counted with.
    return property.type.getKind() == SignatureWord::Kind::Compound ? Digits::Always : Digits::Never;
}

} // namespace vellox::ppt::hostbind
