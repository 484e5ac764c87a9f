#include "vellox/host/binding/BoundClasses.h"

#include "vellox/host/binding/Adapters.h"

#include <algorithm>
#include <unordered_map>

namespace vellox::ppt::hostbind {

bool BoundProperty::takes(const hvArray& value) const {
    if (value.getNElements() == 0)
        return true;
    const SignatureWord::Kind kind = type.getKind();
    const bool isJudgedHere = kind == SignatureWord::Kind::Char || kind == SignatureWord::Kind::Object;
    return !isJudgedHere || type.matches(value);
}

std::string BoundProperty::getTypeText() const {
    return type.getText() + (mayBeEmpty ? " or empty" : "");
}

std::string BoundClass::getFullName() const {
    return std::string(kPackage) + "." + name;
}

const BoundClass* BoundClass::getSuperclass() const {
    return findBoundClass(superclasses.front());
}

namespace {

bool areSame(const Signature& one, const Signature& other) {
    return std::equal(
        one.begin(), one.end(), other.begin(), other.end(),
        [](const Parameter& a, const Parameter& b) { return a.word.getText() == b.word.getText(); });
}

} // namespace

std::vector<const BoundMethod*> BoundClass::getOverloads(const std::string& methodName) const {
    std::vector<const BoundMethod*> overloads;
    for (const BoundClass* bound = this; bound; bound = bound->getSuperclass())
        for (const BoundMethod& method : bound->methods) {
            const auto isOverridden = [&](const BoundMethod* o) {
                return areSame(o->signature, method.signature);
            };
            if (method.name == methodName && std::none_of(overloads.begin(), overloads.end(), isOverridden))
                overloads.push_back(&method);
        }
    return overloads;
}

const std::vector<BoundClass>& getBoundClasses() {
    static const std::vector<BoundClass>& classes = []() -> const auto& {
        auto& all = *new std::vector<BoundClass>; // never ended: a host may die late
        for (const auto describeFamily :
             {describeNodes, describeFormats, describeText, describeShapes, describePlaceholders,
              describeTables, describeCharts, describeSlides, describeMessages})
            append(all, describeFamily());
        return all;
    }
    ();
    return classes;
}

const BoundClass* findBoundClass(const std::string& fullName) {
    static const auto& byName = []() -> const auto& {
        auto& result = *new std::unordered_map<std::string, const BoundClass*>;
        for (const BoundClass& bound : getBoundClasses())
            result[bound.getFullName()] = &bound;
        return result;
    }
    ();
    const auto found = byName.find(fullName);
    return found == byName.end() ? nullptr : found->second;
}

} // namespace vellox::ppt::hostbind
