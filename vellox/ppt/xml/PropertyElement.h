/// @file
/// The properties of a shape, a text body, a paragraph, a run or a cell, as formats fill them.

#ifndef VELLOX_PPT_XML_PROPERTYELEMENT_H
#define VELLOX_PPT_XML_PROPERTYELEMENT_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
#include <xercesc/dom/DOMElement.hpp>

#include "vellox/opc/MarkupBuffer.h"

namespace vellox::ppt {

/// One of p:spPr, a:bodyPr, a:pPr, a:rPr, a:endParaRPr and a:tcPr, or an element within. A value, which becomes
/// nodes of a document once, when it is written.
///
/// Two of them are equal if they are written to the same bytes: the order of children counts, and the order in
/// which attributes were set doesn't, since documents are written with attributes in the order of their names.
class PropertyElement {
public:
    /// Names aren't copied: they are those of XmlNames.h, or of a document that lives longer.
    explicit PropertyElement(const XMLCh* name);

    /// Whether nothing has been put in.
    bool isEmpty() const { return attributes_.empty() && children_.empty(); }

    /// @{ The last value of an attribute counts.
    void setAttribute(const XMLCh* name, const XMLCh* value);
    void setAttribute(const XMLCh* name, const std::wstring& value);
    /// @}
    /// Appends a new element. The reference is good until the next child comes.
    PropertyElement& addChild(const XMLCh* name);
    /// The same, in the place of the first child of the name if there is one.
    PropertyElement& putChild(const XMLCh* name);

    /// Takes over attributes and children of an element of a document. Texts and extensions stay behind.
    void copyFrom(const xercesc::DOMElement& element);
    /// Takes from another what this element leaves open: attributes that it hasn't, and children of names that it
    /// hasn't, ahead of its own. All fills count as one.
    void layOver(const PropertyElement& below);

    /// Writes the element, if anything has been put in.
    void writeTo(opc::MarkupBuffer& out) const;
    /// Sorts the children by a list of names, with those that it doesn't name where kAnyOther stands in it, or else
    /// behind the one ahead of them. Children of one name stay in their order.
    void sortChildren(const std::vector<std::u16string_view>& names);
    /// Brings an attribute that is a whole number into a range. Does nothing if there is none.
    /// @return what it was and what it is, if that is another
    std::optional<std::pair<long, long>> limit(std::u16string_view attribute, long least, long greatest);
    bool hasAttribute(std::u16string_view name) const;
    void removeAttribute(std::u16string_view name);
    void removeChildren(std::u16string_view name);
    /// Removes the children of a name that have an attribute without a text.
    void removeChildren(std::u16string_view name, std::u16string_view emptyAttribute);
    std::u16string_view getName() const { return name_; }

    /// Makes the element and appends it.
    void appendTo(xercesc::DOMElement* parent) const;
    /// Puts attributes and children into an element that is there already, each in the place of one of its name,
    /// a fill in that of another fill, or behind what there is.
    void applyTo(xercesc::DOMElement* element) const;

    bool operator==(const PropertyElement& other) const;
    bool operator!=(const PropertyElement& other) const { return !(*this == other); }
    friend std::size_t hash_value(const PropertyElement& element);

private:
    struct Attribute {
        std::u16string_view name;
        std::u16string value;

        bool operator==(const Attribute& other) const { return name == other.name && value == other.value; }
    };

    void setAttributesOf(xercesc::DOMElement* element) const;
    void write(opc::MarkupBuffer& out) const;
    void fill(xercesc::DOMElement* element) const;
    void replace(xercesc::DOMElement* parent, xercesc::DOMElement* former) const;

    std::u16string_view name_;          // a whole constant, and so with a null behind it
    std::vector<Attribute> attributes_; // in the order of their names
    std::vector<PropertyElement> children_;
};

} // namespace vellox::ppt

#endif
