#include "bindings/octave/OctTerms.h"

#include <set>

namespace vellox::ppt::oct {

using namespace hostbind;

namespace {

std::string removePackage(std::string text) {
    const std::string package = std::string(kPackage) + ".";
    for (std::size_t at; (at = text.find(package)) != std::string::npos;)
        text.erase(at, package.size());
    return text;
}

std::string formatParameters(const Signature& signature) {
    std::string text;
    for (const Parameter& parameter : signature)
        text += (text.empty() ? "" : ", ") + std::string(parameter.isOptional ? "[" : "") +
                (parameter.isKeyword ? "\"" + std::string(parameter.name) + "\", "
                                     : parameter.name + std::string(": ")) +
                getTypeName(parameter.word) + (parameter.isOptional ? "]" : "");
    return " (" + text + ")";
}

} // namespace

std::string getTypeName(const SignatureWord& word) {
    return removePackage(word.getText());
}

std::string getTypeName(const BoundProperty& property) {
    return removePackage(property.getTypeText());
}

std::string formatMethod(const BoundMethod& method) {
    const bool isVoid = method.result.getKind() == SignatureWord::Kind::Void;
    return method.name + formatParameters(method.signature) +
           (isVoid ? "" : " gives " + getTypeName(method.result));
}

std::string describeOverloads(const std::vector<const BoundMethod*>& overloads) {
    std::string text;
    for (const BoundMethod* overload : overloads)
        text += (text.empty() ? "" : "\n\n") + formatMethod(*overload) + "\n    " + overload->doc;
    return text;
}

std::string formatConstructors(const BoundClass& bound) {
    std::string text;
    for (const BoundConstructor& constructor : bound.constructors)
        if (!constructor.isHidden)
            text +=
                (text.empty() ? "" : "\n") + bound.getFullName() + formatParameters(constructor.signature);
    return text;
}

std::string describeClass(const BoundClass& bound) {
    const std::string constructors = formatConstructors(bound);
    std::string text = bound.getFullName() + ": " + bound.doc + "\n\n" +
                       (constructors.empty() ? "The library alone makes objects of it." : constructors);
    if (!bound.properties.empty())
        text += "\n\nProperties:";
    for (const BoundProperty& property : bound.properties)
        text += std::string("\n\n") + property.name + ": " + getTypeName(property) +
                (property.set ? "" : ", only read") + "\n    " + property.doc;
    if (!bound.methods.empty())
        text += "\n\nMethods:";
    std::set<std::string> seen;
    for (const BoundMethod& method : bound.methods)
        if (seen.insert(method.name).second)
            text += "\n\n" + describeOverloads(bound.getOverloads(method.name));
    if (bound.getSuperclass())
        text += "\n\nIt also has what " + bound.getSuperclass()->getFullName() + " has.";
    return text;
}

} // namespace vellox::ppt::oct
