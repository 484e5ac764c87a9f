/// @file
/// How the nodes of a Xerces document hang together.
///
/// Xerces asks a node for its class by dynamic casts whenever it touches one: eight for a child that is
/// appended, and they are most of what a document costs to read, to copy and to change. Here the kind of a node
/// tells its class, for the two kinds of which documents consist.

#ifndef VELLOX_OPC_NODELINKS_H
#define VELLOX_OPC_NODELINKS_H

#include <xercesc/dom/impl/DOMAttrImpl.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/dom/impl/DOMElementImpl.hpp>
#include <xercesc/dom/impl/DOMNodeVector.hpp>
#include <xercesc/dom/impl/DOMTextImpl.hpp>

namespace opc {

/// The links of a node that can be a child, to be changed.
struct NodeLinks {
    xercesc::DOMNodeImpl& up;
    xercesc::DOMChildNode& aside;

    static NodeLinks of(xercesc::DOMNode& node) {
        using namespace xercesc;
        if (node.getNodeType() == DOMNode::ELEMENT_NODE)
            return {static_cast<DOMElementImpl&>(node).fNode, static_cast<DOMElementImpl&>(node).fChild};
        if (node.getNodeType() == DOMNode::TEXT_NODE)
            return {static_cast<DOMTextImpl&>(node).fNode, static_cast<DOMTextImpl&>(node).fChild};
        return {*dynamic_cast<HasDOMNodeImpl&>(node).getNodeImpl(),
                *dynamic_cast<HasDOMChildImpl&>(node).getChildNodeImpl()};
    }
};

/// Makes a node without a parent, of the same document, the last child of an element or an attribute.
template <class Parent> void appendNew(Parent& parent, xercesc::DOMNode& child) {
    const NodeLinks links = NodeLinks::of(child);
    links.up.fOwnerNode = &parent;
    links.up.isOwned(true);
    xercesc::DOMNode*& first = parent.fParent.fFirstChild;
    if (first) {
        // The first child has the last one in the place of the one ahead of it.
        xercesc::DOMNode*& last = NodeLinks::of(*first).aside.previousSibling;
        NodeLinks::of(*last).aside.nextSibling = &child;
        links.aside.previousSibling = last;
        last = &child;
    } else {
        first = &child;
        links.up.isFirstChild(true);
        links.aside.previousSibling = &child;
    }
}

/// Takes a child out of its element. Ranges and iterators, which nothing here has, would not hear of it.
inline void takeOut(xercesc::DOMElementImpl& parent, xercesc::DOMNode& child) {
    const NodeLinks links = NodeLinks::of(child);
    xercesc::DOMNode*& first = parent.fParent.fFirstChild;
    xercesc::DOMNode* const previous = links.aside.previousSibling; // the last one, for the first
    xercesc::DOMNode* const next = links.aside.nextSibling;
    if (first == &child) {
        first = next;
        links.up.isFirstChild(false);
        if (next)
            NodeLinks::of(*next).up.isFirstChild(true);
    } else {
        NodeLinks::of(*previous).aside.nextSibling = next;
    }
    if (next)
        NodeLinks::of(*next).aside.previousSibling = previous;
    else if (first)
        NodeLinks::of(*first).aside.previousSibling = previous;
    links.aside.previousSibling = links.aside.nextSibling = nullptr;
    links.up.fOwnerNode = parent.getOwnerDocument();
    links.up.isOwned(false);
}

/// The attributes of an element, which stand in the order of their names. Derived from Xerces' class for its protected
/// members, and never made.
struct AttributeLinks : xercesc::DOMAttrMapImpl {
    /// Puts a new attribute in the place of one of its name, or among the others. There must be room for it.
    static void put(xercesc::DOMElementImpl& element, xercesc::DOMAttrImpl& attribute) {
        using namespace xercesc;
        attribute.fNode.fOwnerNode = &element;
        attribute.fNode.isOwned(true);
        DOMNodeVector& nodes = *(element.fAttributes->*&AttributeLinks::fNodes);
        int (DOMAttrMapImpl::*const findPlace)(const XMLCh*) const = &AttributeLinks::findNamePoint;
        const int place = (element.fAttributes->*findPlace)(attribute.getNodeName());
        if (place >= 0)
            nodes.setElementAt(&attribute, static_cast<XMLSize_t>(place));
        else
            nodes.insertElementAt(&attribute, static_cast<XMLSize_t>(-1 - place));
    }
};

/// @{ New nodes, without a parent. Names must be such as XML allows.
inline xercesc::DOMElementImpl* makeElement(xercesc::DOMDocumentImpl* document, const XMLCh* name) {
    return new (document, xercesc::DOMMemoryManager::ELEMENT_OBJECT) xercesc::DOMElementImpl(document, name);
}

inline xercesc::DOMTextImpl* makeText(xercesc::DOMDocumentImpl* document, const XMLCh* text) {
    return new (document, xercesc::DOMMemoryManager::TEXT_OBJECT) xercesc::DOMTextImpl(document, text);
}

/// Without a text in it, which stands for an empty value, if the pointer is null.
inline xercesc::DOMAttrImpl* makeAttribute(xercesc::DOMDocumentImpl* document, const XMLCh* name,
                                           const XMLCh* value) {
    auto* const made =
        new (document, xercesc::DOMMemoryManager::ATTR_OBJECT) xercesc::DOMAttrImpl(document, name);
    if (value)
        appendNew(*made, *makeText(document, value));
    return made;
}
/// @}

/// The value of an attribute.
inline const XMLCh* getValue(const xercesc::DOMAttr& attribute) {
    const xercesc::DOMNode* const text = attribute.getFirstChild();
    const bool isAlone =
        text && text->getNodeType() == xercesc::DOMNode::TEXT_NODE && !text->getNextSibling();
    return isAlone ? text->getNodeValue() : attribute.getValue();
}

inline xercesc::DOMElementImpl& appendElement(xercesc::DOMElementImpl& parent, const XMLCh* name) {
    auto* const made = makeElement(static_cast<xercesc::DOMDocumentImpl*>(parent.getOwnerDocument()), name);
    appendNew(parent, *made);
    return *made;
}

/// Gives an element an attribute that it doesn't have yet.
inline void addAttribute(xercesc::DOMElementImpl& element, const XMLCh* name, const XMLCh* value) {
    constexpr XMLSize_t kFirstPlaces = 4; // where there are none; they grow
    element.fAttributes->reserve(kFirstPlaces);
    AttributeLinks::put(
        element,
        *makeAttribute(static_cast<xercesc::DOMDocumentImpl*>(element.getOwnerDocument()), name, value));
}

} // namespace opc

#endif
