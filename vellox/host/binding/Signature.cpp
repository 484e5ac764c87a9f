#include "vellox/host/binding/Signature.h"

#include "vellox/host/binding/PPTObjFromHostBase.h"
#include "vellox/host/values/hvFields.h"

#include <cmath>
#include <limits>

namespace vellox::ppt::hostbind {

namespace {

using Kind = SignatureWord::Kind;

constexpr struct {
    const char* word;
    Kind kind;
} kPlainWords[] = {
    {"char", Kind::Char},
    {"logical scalar", Kind::Logical},
    {"uint32 scalar", Kind::Uint32},
    {"double scalar", Kind::Double},
    {"uint8 vector", Kind::Bytes},
    {"any", Kind::Any},
    {"fields", Kind::Fields},
    {"void", Kind::Void},
    {"char or double scalar", Kind::Compound},
};

bool isNumericScalar(const hvArray& value) {
    const int code = value.getClassCode();
    return code >= HvDoubleClass && code <= HvLastIntegerClass && value.getNElements() == 1;
}

bool isWholeUint32(double number) {
    return number >= 0 && number <= std::numeric_limits<unsigned int>::max() && std::floor(number) == number;
}

} // namespace

SignatureWord::SignatureWord(const std::string& word) : kind_(Kind::Object), text_(word) {
    for (const auto& plain : kPlainWords) {
        if (word == plain.word) {
            kind_ = plain.kind;
            return;
        }
    }
    const std::string list = "list of ";
    const std::string vector = " vector";
    const std::size_t start = word.compare(0, list.size(), list) == 0 ? list.size() : 0;
    const std::size_t end = word.find(vector);
    if (start > 0 || end != std::string::npos)
        kind_ = Kind::Compound;
    className_ =
        std::string(kPackage) + "." + word.substr(start, end == std::string::npos ? end : end - start);
    text_ = word.substr(0, start) + className_ + (end == std::string::npos ? "" : vector);
}

bool SignatureWord::matches(const hvArray& value) const {
    const int code = value.getClassCode();
    switch (kind_) {
    case Kind::Char:
        return code == HvCharClass;
    case Kind::Logical:
        return code == HvLogicalClass && value.getNElements() == 1;
    case Kind::Uint32:
        return code == HvUint32Class && value.getNElements() == 1;
    case Kind::Double:
        return code == HvDoubleClass && value.getNElements() == 1;
    case Kind::Bytes:
        return code == HvUint8Class && value.getNDimensions() == 2 &&
               (value.getDimension(0) == 1 || value.getDimension(1) == 1);
    case Kind::Object:
        return PPTObjFromHostBase(value, className_).hasImpl();
    case Kind::Fields:
        return findFields(value) != nullptr;
    case Kind::Any:
    case Kind::Void:
    case Kind::Compound:
        break;
    }
    return false;
}

bool SignatureWord::matchesConverted(const hvArray& value) const {
    if (matches(value))
        return true;
    if (!isNumericScalar(value))
        return false;
    return kind_ == Kind::Double || (kind_ == Kind::Uint32 && isWholeUint32(value.getDouble()));
}

namespace {

enum class Fit { Exact, Converted, WithAny };

bool fits(const SignatureWord& word, const hvArray& value, Fit fit) {
    switch (fit) {
    case Fit::Exact:
        return word.matches(value);
    case Fit::Converted:
        return word.matchesConverted(value);
    case Fit::WithAny:
        break;
    }
    return word.getKind() == Kind::Any || word.matchesConverted(value);
}

bool fits(const Signature& signature, const std::vector<const hvArray*>& values, Fit fit) {
    for (std::size_t i = 0; i < signature.size(); ++i)
        if (values[i] && !fits(signature[i].word, *values[i], fit))
            return false;
    return true;
}

} // namespace

std::optional<std::vector<const hvArray*>> orderArguments(const Signature& signature,
                                                          const Arguments& arguments,
                                                          const std::vector<NamedArgument>& named) {
    std::vector<const hvArray*> ordered(signature.size());
    for (std::size_t i = 0; i < arguments.count; ++i) {
        if (i >= signature.size() || signature[i].isKeyword)
            return std::nullopt;
        ordered[i] = arguments.values[i];
    }
    for (const NamedArgument& argument : named) {
        std::size_t i = 0;
        while (i < signature.size() && (!signature[i].isKeyword || argument.name != signature[i].name))
            ++i;
        if (i == signature.size() || ordered[i])
            return std::nullopt;
        ordered[i] = argument.value;
    }
    for (std::size_t i = 0; i < signature.size(); ++i)
        if (!ordered[i] && !signature[i].isOptional)
            return std::nullopt;
    return ordered;
}

int findOverload(const std::vector<const Signature*>& signatures, const Arguments& arguments,
                 const std::vector<NamedArgument>& named) {
    std::vector<std::optional<std::vector<const hvArray*>>> ordered;
    ordered.reserve(signatures.size());
    for (const Signature* signature : signatures)
        ordered.push_back(orderArguments(*signature, arguments, named));
    for (const Fit fit : {Fit::Exact, Fit::Converted, Fit::WithAny})
        for (std::size_t i = 0; i < signatures.size(); ++i)
            if (ordered[i] && fits(*signatures[i], *ordered[i], fit))
                return static_cast<int>(i);
    return -1;
}

} // namespace vellox::ppt::hostbind
