#include "vellox/ppt/xml/PropertyElement.h"

#include "vellox/opc/XercesString.h"
#include "vellox/ppt/xml/ChildOrder.h"
#include "vellox/ppt/xml/Dom.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <boost/functional/hash.hpp>
#include <cwchar>
#include <iterator>

namespace vellox::ppt {

using namespace xercesc;

PropertyElement::PropertyElement(const XMLCh* name) : name_(name) {}

void PropertyElement::setAttribute(const XMLCh* name, const XMLCh* value) {
    const std::u16string_view key = name;
    const auto place = std::lower_bound(
        attributes_.begin(), attributes_.end(), key,
        [](const Attribute& attribute, std::u16string_view k) { return attribute.name < k; });
    if (place != attributes_.end() && place->name == key)
        place->value = value;
    else
        attributes_.insert(place, {key, value});
}

void PropertyElement::setAttribute(const XMLCh* name, const std::wstring& value) {
    setAttribute(name, opc::XercesString(value));
}

PropertyElement& PropertyElement::addChild(const XMLCh* name) {
    return children_.emplace_back(name);
}

PropertyElement& PropertyElement::putChild(const XMLCh* name) {
    const std::u16string_view key = name;
    const auto former = std::find_if(children_.begin(), children_.end(),
                                     [&](const PropertyElement& child) { return child.name_ == key; });
    if (former == children_.end())
        return addChild(name);
    return *former = PropertyElement(name);
}

void PropertyElement::sortChildren(const std::vector<std::u16string_view>& names) {
    if (children_.size() < 2)
        return;
    const std::vector<std::size_t> ranks =
        rankNames(names, children_.size(), [&](std::size_t i) { return children_[i].name_; });
    if (std::is_sorted(ranks.begin(), ranks.end()))
        return;
    std::vector<PropertyElement> sorted;
    sorted.reserve(children_.size());
    for (const std::size_t i : orderByRank(ranks))
        sorted.push_back(std::move(children_[i]));
    children_ = std::move(sorted);
}

std::optional<std::pair<long, long>> PropertyElement::limit(std::u16string_view attribute, long least,
                                                            long greatest) {
    const auto present =
        std::lower_bound(attributes_.begin(), attributes_.end(), attribute,
                         [](const Attribute& each, std::u16string_view name) { return each.name < name; });
    if (present == attributes_.end() || present->name != attribute)
        return {};
    const long number =
        std::wcstol(std::wstring(present->value.begin(), present->value.end()).c_str(), nullptr, 10);
    const long limited = std::clamp(number, least, greatest);
    if (limited == number)
        return {};
    const std::wstring text = std::to_wstring(limited);
    present->value.assign(text.begin(), text.end());
    return {{number, limited}};
}

bool PropertyElement::hasAttribute(std::u16string_view name) const {
    return std::any_of(attributes_.begin(), attributes_.end(),
                       [&](const Attribute& attribute) { return attribute.name == name; });
}

void PropertyElement::removeAttribute(std::u16string_view name) {
    attributes_.erase(std::remove_if(attributes_.begin(), attributes_.end(),
                                     [&](const Attribute& attribute) { return attribute.name == name; }),
                      attributes_.end());
}

void PropertyElement::removeChildren(std::u16string_view name) {
    children_.erase(std::remove_if(children_.begin(), children_.end(),
                                   [&](const PropertyElement& child) { return child.name_ == name; }),
                    children_.end());
}

void PropertyElement::removeChildren(std::u16string_view name, std::u16string_view emptyAttribute) {
    const auto isEmpty = [&](const Attribute& each) {
        return each.name == emptyAttribute && each.value.empty();
    };
    const auto isCondemned = [&](const PropertyElement& child) {
        return child.name_ == name &&
               std::any_of(child.attributes_.begin(), child.attributes_.end(), isEmpty);
    };
    children_.erase(std::remove_if(children_.begin(), children_.end(), isCondemned), children_.end());
}

// Over others

namespace {

// An element has one fill, one bullet, one font of it, one way to fit, whatever they are called.
constexpr std::u16string_view kKinds[][6] = {
    {xml::kANoFill, xml::kASolidFill, xml::kAGradFill, xml::kABlipFill, xml::kAPattFill, xml::kAGrpFill},
    {xml::kABuNone, xml::kABuAutoNum, xml::kABuChar, xml::kABuBlip},
    {xml::kABuFont, xml::kABuFontTx},
    {xml::kANoAutofit, xml::kANormAutofit, xml::kASpAutoFit},
};

std::u16string_view getKind(std::u16string_view name) {
    for (const auto& kind : kKinds)
        if (std::find(std::begin(kind), std::end(kind), name) != std::end(kind))
            return kind[0];
    return name;
}

} // namespace

void PropertyElement::copyFrom(const DOMElement& element) {
    const DOMNamedNodeMap& attributes = *element.getAttributes();
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i)
        setAttribute(attributes.item(i)->getNodeName(), attributes.item(i)->getNodeValue());
    for (const DOMElement* child : getChildElements(&element))
        if (!hasName(*child, xml::kAExtLst))
            addChild(child->getNodeName()).copyFrom(*child);
}

void PropertyElement::layOver(const PropertyElement& below) {
    for (const Attribute& attribute : below.attributes_)
        if (!hasAttribute(attribute.name))
            setAttribute(attribute.name.data(), attribute.value.c_str());
    std::vector<PropertyElement> merged;
    for (const PropertyElement& child : below.children_) {
        const bool isOverlaid =
            std::any_of(children_.begin(), children_.end(), [&](const PropertyElement& own) {
                return getKind(own.name_) == getKind(child.name_);
            });
        if (!isOverlaid)
            merged.push_back(child);
    }
    std::move(children_.begin(), children_.end(), std::back_inserter(merged));
    children_ = std::move(merged);
}

// Into markup

void PropertyElement::writeTo(opc::MarkupBuffer& out) const {
    if (!isEmpty())
        write(out);
}

void PropertyElement::write(opc::MarkupBuffer& out) const {
    out.append("<");
    out.appendName(name_.data());
    for (const Attribute& attribute : attributes_)
        out.appendAttribute(attribute.name.data(), attribute.value.c_str());
    if (children_.empty())
        return out.append("/>");
    out.append(">");
    for (const PropertyElement& child : children_)
        child.write(out);
    out.append("</");
    out.appendName(name_.data());
    out.append(">");
}

// Into a document

void PropertyElement::setAttributesOf(DOMElement* element) const {
    for (const Attribute& attribute : attributes_)
        ppt::setAttribute(element, attribute.name.data(), attribute.value.c_str());
}

void PropertyElement::fill(DOMElement* element) const {
    setAttributesOf(element);
    for (const PropertyElement& child : children_)
        child.appendTo(element);
}

void PropertyElement::appendTo(DOMElement* parent) const {
    fill(appendElement(parent, name_.data()));
}

void PropertyElement::applyTo(DOMElement* element) const {
    setAttributesOf(element);
    for (const PropertyElement& child : children_) {
        DOMElement* former = nullptr;
        for (DOMElement* present : getChildElements(element)) {
            if (getKind(present->getNodeName()) != getKind(child.name_))
                continue;
            if (!former)
                former = present;
            else if (!hasName(*present, child.name_.data()))
                removeNode(present); // another fill
        }
        if (former)
            child.replace(element, former);
        else
            child.appendTo(element);
    }
}

void PropertyElement::replace(DOMElement* parent, DOMElement* former) const {
    DOMElement* element = parent->getOwnerDocument()->createElement(name_.data());
    fill(element);
    parent->replaceChild(element, former);
}

// As a value

bool PropertyElement::operator==(const PropertyElement& other) const {
    return name_ == other.name_ && attributes_ == other.attributes_ && children_ == other.children_;
}

std::size_t hash_value(const PropertyElement& element) {
    std::size_t seed = boost::hash_range(element.name_.begin(), element.name_.end());
    for (const auto& attribute : element.attributes_) {
        boost::hash_range(seed, attribute.name.begin(), attribute.name.end());
        boost::hash_range(seed, attribute.value.begin(), attribute.value.end());
    }
    boost::hash_range(seed, element.children_.begin(), element.children_.end());
    return seed;
}

} // namespace vellox::ppt
