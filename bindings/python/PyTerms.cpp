#include "bindings/python/PyTerms.h"

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
