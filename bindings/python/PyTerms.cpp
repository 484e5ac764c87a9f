#include "bindings/python/PyTerms.h"

#include <algorithm>
#include <cstring>
#include <sstream>

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
    case Kind::Any:
        return "Any";
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

std::string formatParameters(const Signature& signature, const char* parameters) {
    std::istringstream names(parameters);
    std::string text;
    for (const SignatureWord& word : signature) {
        std::string name;
        names >> name;
        text += (text.empty() ? "" : ", ") + name.substr(0, name.find(',')) + ": " + getTypeName(word);
    }
    return text;
}

std::string formatMethod(const BoundMethod& method) {
    return std::string(method.name) + "(" + formatParameters(method.signature, method.parameters) + ") -> " +
           getTypeName(method.result);
}

std::string formatConstructors(const BoundClass& bound) {
    std::string text;
    for (const BoundConstructor& constructor : bound.constructors)
        if (!constructor.isHidden)
            text += (text.empty() ? "" : "\n") + std::string(bound.name) + "(" +
                    formatParameters(constructor.signature, constructor.parameters) + ")";
    return text;
}

namespace {

std::vector<std::string> splitNames(const char* parameters) {
    std::istringstream words(parameters);
    std::vector<std::string> names;
    for (std::string name; words >> name;)
        names.push_back(name.substr(0, name.find(',')));
    return names;
}

/// The name of a parameter that all overloads give it, else a word for all of them.
std::string mergeNames(const std::vector<std::vector<std::string>>& overloads, std::size_t i) {
    std::string merged;
    for (const std::vector<std::string>& names : overloads) {
        if (i >= names.size() || names[i] == merged)
            continue;
        if (!merged.empty())
            return "argument" + std::to_string(i + 1);
        merged = names[i];
    }
    return merged;
}

std::string mergeParameters(std::string text, const std::vector<std::vector<std::string>>& overloads) {
    std::size_t least = overloads.empty() ? 0 : overloads.front().size();
    std::size_t most = 0;
    for (const std::vector<std::string>& names : overloads) {
        least = std::min(least, names.size());
        most = std::max(most, names.size());
    }
    for (std::size_t i = 0; i < most; ++i)
        text += (text.empty() ? "" : ", ") + mergeNames(overloads, i) + (i < least ? "" : "=...");
    return "(" + text + (text.empty() ? ")" : ", /)");
}

} // namespace

std::string formatTextSignature(const std::vector<const BoundMethod*>& overloads) {
    std::vector<std::vector<std::string>> names;
    for (const BoundMethod* overload : overloads)
        names.push_back(splitNames(overload->parameters));
    return mergeParameters(overloads.front()->isStatic ? "" : "$self", names);
}

std::string formatTextSignature(const BoundClass& bound) {
    std::vector<std::vector<std::string>> names;
    for (const BoundConstructor& constructor : bound.constructors)
        if (!constructor.isHidden)
            names.push_back(splitNames(constructor.parameters));
    return bound.name + mergeParameters("", names) + "\n--\n\n";
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
