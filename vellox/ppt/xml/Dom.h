/// @file
/// Small steps through DOM documents, as the reading and the writing of slides take them.

#ifndef VELLOX_PPT_XML_DOM_H
#define VELLOX_PPT_XML_DOM_H

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>
#include <xercesc/dom/DOM.hpp>

#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"

namespace vellox::ppt {

/// A document with an owner. It keeps Xerces running, since a record may outlive the presentation that made it.
class OwnedDocument {
public:
    OwnedDocument() = default;
    explicit OwnedDocument(xercesc::DOMDocument* document) : document_(document) {}

    xercesc::DOMDocument* get() const { return document_.get(); }
    xercesc::DOMDocument* operator->() const { return document_.get(); }
    explicit operator bool() const { return document_ != nullptr; }
    void reset(xercesc::DOMDocument* document = nullptr) { document_.reset(document); }

private:
    opc::XercesProcess xerces_;
    opc::DocumentScope document_;
};

/// An independent copy, which is declared as the original is.
OwnedDocument copyDocument(const OwnedDocument& document);

bool hasName(const xercesc::DOMNode& node, const XMLCh* name);

/// The first child element of a name; null for a null parent or if there is none.
xercesc::DOMElement* findChild(const xercesc::DOMNode* parent, const XMLCh* name);
/// Goes down one child element for each name; null as soon as there is none.
xercesc::DOMElement* findDescendant(const xercesc::DOMNode* start, std::initializer_list<const XMLCh*> path);
/// The n-th first child element of a first child element; null as soon as there is none.
xercesc::DOMElement* goDownFirstChildren(xercesc::DOMDocument* document, unsigned levels);
/// The first child element, and all that follow it.
std::vector<xercesc::DOMElement*> getChildElements(const xercesc::DOMNode* parent);
/// All elements of a document, in document order.
std::vector<xercesc::DOMElement*> getAllElements(xercesc::DOMDocument* document);
/// Those of one name.
std::vector<xercesc::DOMElement*> getElementsByName(xercesc::DOMDocument* document, const XMLCh* name);

/// The text of an attribute; empty for a null element or if it has none.
std::wstring getAttribute(const xercesc::DOMElement* element, const XMLCh* name);
/// @{ A new value for an attribute, which is made if there is none.
void setAttribute(xercesc::DOMElement* element, const XMLCh* name, const std::wstring& value);
void setAttribute(xercesc::DOMElement* element, const XMLCh* name, const XMLCh* value);
/// @}

/// Makes a node that has no parent yet the last child of an element.
void appendNode(xercesc::DOMNode* parent, xercesc::DOMNode* child);
/// Makes an element and appends it.
xercesc::DOMElement* appendElement(xercesc::DOMElement* parent, const XMLCh* name);
/// Makes a text and appends it.
/// @return how many characters XML can't hold, and were left out
std::size_t appendText(xercesc::DOMElement* parent, const std::wstring& text);
/// The first child element of a name, made and appended if there is none.
xercesc::DOMElement* requireChild(xercesc::DOMElement* parent, const XMLCh* name);
/// The same, made ahead of all others.
xercesc::DOMElement* requireFirstChild(xercesc::DOMElement* parent, const XMLCh* name);
/// Gives a shape or a cell that has a text body, but no paragraph in it, an empty paragraph: readers demand one.
void ensureParagraph(xercesc::DOMElement* element);
/// The same as markup.
inline constexpr std::string_view kEmptyParagraph = "<a:p><a:endParaRPr/></a:p>";
/// Takes a node out of its parent, if it has one. The document keeps it.
void removeNode(xercesc::DOMNode* node);

/// Declares the prefixes that the library writes, a, p and r, where a root element doesn't do so itself. What
/// comes from a template may declare them further down, or none that it has no use for.
void declarePrefixes(xercesc::DOMElement* root);

} // namespace vellox::ppt

#endif
