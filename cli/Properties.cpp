#include "cli/Properties.h"

#include "vellox/host/binding/BoundClass.h"

#include <algorithm>
#include <cstring>
#include <map>

namespace vellox::cli {

namespace {

using ppt::hostbind::BoundClass;
using ppt::hostbind::BoundProperty;
using Kind = ppt::hostbind::SignatureWord::Kind;
using Properties = std::map<std::string, const BoundProperty*>;

/// The class of what is described. What all shapes have, such as their place, is that of the placeholder.
constexpr const char* kClasses[] = {
    "vellox.ppt.Presentation", "vellox.ppt.Slide",    "vellox.ppt.BaseTextBox", "vellox.ppt.Picture",
    "vellox.ppt.Table",        "vellox.ppt.TableRow", "vellox.ppt.ColSpec",     "vellox.ppt.TableEntry"};

/// What the command decides itself, or says in another way.
constexpr const char* kLeftOut[] = {"TemplatePath", "OutputPath", "Profile", "Strict", "Tag", "Id"};

struct ShortName {
    const char* name;
    const char* property;
};
constexpr ShortName kShortNames[] = {{"alt", "AltText"}, {"style", "StyleName"}};

/// Forms have braces of their own.
constexpr char kWithBraces[] = "NumberFormat";

std::string makeName(const std::string& property) {
    for (const ShortName& row : kShortNames)
        if (property == row.property)
            return row.name;
    std::string name = property;
    name[0] = static_cast<char>(name[0] + ('a' - 'A'));
    return name;
}

bool isOffered(const BoundProperty& property) {
    constexpr Kind kKinds[] = {Kind::Char, Kind::Logical, Kind::Uint32};
    const auto isNamed = [&](const char* name) { return std::strcmp(name, property.name) == 0; };
    return property.set &&
           std::find(std::begin(kKinds), std::end(kKinds), property.type.getKind()) != std::end(kKinds) &&
           std::none_of(std::begin(kLeftOut), std::end(kLeftOut), isNamed);
}

Properties listProperties(Described what) {
    const BoundClass* shape = ppt::hostbind::findBoundClass("vellox.ppt.Shape");
    Properties properties;
    for (const BoundClass* bound = ppt::hostbind::findBoundClass(kClasses[static_cast<std::size_t>(what)]);
         bound; bound = bound->getSuperclass())
        for (const BoundProperty& property : bound->properties)
            if (isOffered(property) && (bound != shape || std::strcmp(property.name, "AltText") == 0))
                properties.emplace(makeName(property.name), &property);
    return properties;
}

const Properties& getProperties(Described what) {
    static auto& listed = *new std::map<Described, Properties>;
    const auto found = listed.find(what);
    return found != listed.end() ? found->second : listed.emplace(what, listProperties(what)).first->second;
}

/// A value as the class table takes it.
class Value : public hvArray {
public:
    Value(const Data& data, std::wstring text)
        : kind_(data.kind),
          isTrue_(data.text == "true" || data.text == "True" || data.text == "TRUE"),
          text_(std::move(text)) {
        if (kind_ == Data::Kind::Number)
            number_ = std::strtod(data.text.c_str(), nullptr);
    }
    Value asText() const {
        Value made = *this;
        made.kind_ = Data::Kind::Text;
        return made;
    }

    int getClassCode() const override {
        return kind_ == Data::Kind::Logical  ? HvLogicalClass
               : kind_ == Data::Kind::Number ? HvDoubleClass
                                             : HvCharClass;
    }
    std::string getClassName() const override { return toString(kind_); }
    unsigned int getNDimensions() const override { return 2; }
    std::size_t getDimension(unsigned int i) const override {
        return i == 0 || kind_ != Data::Kind::Text ? 1 : text_.size();
    }
    std::wstring getString() const override { return text_; }
    double getDouble() const override { return number_; }
    const double* getDoubles() const override { return &number_; }
    bool getLogical() const override { return isTrue_; }
    const bool* getLogicals() const override { return &isTrue_; }

private:
    Data::Kind kind_;
    bool isTrue_;
    double number_ = 0;
    std::wstring text_;
};

const char* describeKind(Kind kind) {
    return kind == Kind::Logical ? "a truth value" : kind == Kind::Uint32 ? "a whole number" : "a text";
}

} // namespace

const std::vector<std::string>& getPropertyNames(Described what) {
    static auto& listed = *new std::map<Described, std::vector<std::string>>;
    std::vector<std::string>& names = listed[what];
    if (names.empty())
        for (const auto& row : getProperties(what))
            names.push_back(row.first);
    return names;
}

bool isProperty(Described what, const std::string& name) {
    return getProperties(what).count(name) > 0;
}

void checkProperty(Described what, const std::string& name, const Data& value, const DataPlace& place) {
    const BoundProperty& property = *getProperties(what).at(name);
    const Kind kind = property.type.getKind();
    const bool isText = value.kind == Data::Kind::Text;
    const bool isRight = kind == Kind::Logical  ? value.kind == Data::Kind::Logical
                         : kind == Kind::Uint32 ? value.kind == Data::Kind::Number &&
                                                      property.type.matchesConverted(Value(value, {}))
                                                : isText || value.kind == Data::Kind::Number;
    if (!isRight)
        throw DataFailure(place, std::string("it is ") + toString(value.kind) + ", and must be " +
                                     describeKind(kind));
}

void setProperties(ppt::PPTObject& object, Described what, const Data& record, const DataPlace& place,
                   const TextOf& textOf) {
    for (const Data::Member& member : record.members) {
        const auto found = getProperties(what).find(member.first);
        if (found == getProperties(what).end())
            continue;
        const BoundProperty& property = *found->second;
        const DataPlace at = place.member(member.first, member.second);
        const bool isVerbatim = std::strcmp(property.name, kWithBraces) == 0;
        const std::string& text = member.second.text;
        const Value value(member.second, isVerbatim ? fromUtf8(text) : textOf(text, at));
        try {
            property.set(object, property.type.getKind() == Kind::Char ? value.asText() : value);
        } catch (const hostfx::except::IUserException& error) {
            throw DataFailure(at, error.what(), error.getErrorID());
        }
    }
}

} // namespace vellox::cli
