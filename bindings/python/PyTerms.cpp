#include "bindings/python/PyTerms.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vellox::ppt::python {

using namespace hostbind;

namespace {

using Kind = SignatureWord::Kind;

std::string removePackage(const std::string& className) {
    return className.substr(std::strlen(kPackage) + 1);
}

} // namespace

std::string getTypeName(const SignatureWord& word) {
    switch (word.getKind()) {
    case Kind::Char:
        return "str";
    case Kind::Logical:
        return "bool";
    case Kind::Uint32:
        return "int";
    case Kind::Double:
        return "float";
    case Kind::Bytes:
        return "bytes";
    case Kind::Any:
        return "Any";
    case Kind::Fields:
        return "Mapping[str, Any]";
    case Kind::Void:
        return "None";
    case Kind::Object:
        return removePackage(word.getClassName());
    case Kind::Compound:
        break;
    }
    const bool isSeveral = !word.getClassName().empty();
    return isSeveral ? "list[" + removePackage(word.getClassName()) + "]" : "str | float";
}

std::string getTypeName(const BoundProperty& property) {
    return getTypeName(property.type) + (property.mayBeEmpty ? " | None" : "");
}

std::string formatParameters(const Signature& signature) {
    std::string text;
    bool hasKeywords = false;
    for (const Parameter& parameter : signature) {
        text += text.empty() ? "" : ", ";
        if (parameter.isKeyword && !std::exchange(hasKeywords, true))
            text += "*, ";
        text += std::string(parameter.name) + ": " + getTypeName(parameter.word) +
                (parameter.isOptional ? " = ..." : "");
    }
    return text;
}

std::string formatMethod(const BoundMethod& method) {
    return std::string(method.name) + "(" + formatParameters(method.signature) + ") -> " +
           getTypeName(method.result);
}

std::string formatConstructors(const BoundClass& bound) {
    std::string text;
    for (const BoundConstructor& constructor : bound.constructors)
        if (!constructor.isHidden)
            text += (text.empty() ? "" : "\n") + std::string(bound.name) + "(" +
                    formatParameters(constructor.signature) + ")";
    return text;
}

namespace {

/// The name of a parameter that all overloads give it, else a word for all of them.
std::string mergeNames(const std::vector<const Signature*>& overloads, std::size_t i) {
    std::string merged;
    for (const Signature* signature : overloads) {
        if (i >= signature->size() || (*signature)[i].name == merged)
            continue;
        if (!merged.empty())
            return "argument" + std::to_string(i + 1);
        merged = (*signature)[i].name;
    }
    return merged;
}

template <class Wanted> std::size_t count(const Signature& signature, Wanted isWanted) {
    return static_cast<std::size_t>(std::count_if(signature.begin(), signature.end(), isWanted));
}

std::string mergeParameters(std::string text, const std::vector<const Signature*>& overloads) {
    std::size_t least = overloads.empty() ? 0 : overloads.front()->size();
    std::size_t most = 0;
    std::string keywords;
    for (const Signature* signature : overloads) {
        least = std::min(least, count(*signature, [](const Parameter& p) { return !p.isOptional; }));
        most = std::max(most, count(*signature, [](const Parameter& p) { return !p.isKeyword; }));
        for (const Parameter& parameter : *signature)
            keywords += parameter.isKeyword ? std::string(", ") + parameter.name + "=..." : "";
    }
    if (!keywords.empty())
        keywords = ", *" + keywords;
    for (std::size_t i = 0; i < most; ++i)
        text += (text.empty() ? "" : ", ") + mergeNames(overloads, i) + (i < least ? "" : "=...");
    return "(" + text + (text.empty() ? "" : ", /") + keywords + ")";
}

} // namespace

std::string formatTextSignature(const std::vector<const BoundMethod*>& overloads) {
    std::vector<const Signature*> signatures;
    signatures.reserve(overloads.size());
    for (const BoundMethod* overload : overloads)
        signatures.push_back(&overload->signature);
    return mergeParameters(overloads.front()->isStatic ? "" : "$self", signatures);
}

std::string formatTextSignature(const BoundClass& bound) {
    std::vector<const Signature*> signatures;
    for (const BoundConstructor& constructor : bound.constructors)
        if (!constructor.isHidden)
            signatures.push_back(&constructor.signature);
    return bound.name + mergeParameters("", signatures) + "\n--\n\n";
}

std::string describeOverloads(const std::vector<const BoundMethod*>& overloads) {
    std::string text;
    for (const BoundMethod* overload : overloads)
        text += (text.empty() ? "" : "\n\n") + formatMethod(*overload) + "\n    " + overload->doc;
    return text;
}

std::string describeClass(const BoundClass& bound) {
    const std::string constructors = formatConstructors(bound);
    return std::string(bound.doc) +
           (constructors.empty() ? "\n\nThe library alone makes objects of it." : "\n\n" + constructors);
}

} // namespace vellox::ppt::python
