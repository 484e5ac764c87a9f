#include "vellox/opc/DocumentCopy.h"

#include "vellox/opc/NodeLinks.h"
#include "vellox/opc/XercesHelper.h"

namespace opc {

using namespace xercesc;

namespace {

/// Copies for a document. Elements and attributes without namespaces and texts are made here, the rest is
/// imported.
class Copier {
public:
    explicit Copier(DOMDocument& target) : target_(&dynamic_cast<DOMDocumentImpl&>(target)) {}

    DOMNode& copy(const DOMNode& source) {
        if (source.getNodeType() == DOMNode::ELEMENT_NODE && isPlain(source))
            return copyElement(source);
        if (source.getNodeType() == DOMNode::TEXT_NODE)
            return *makeText(target_, source.getNodeValue());
        return *target_->importNode(&source, true);
    }

private:
    static bool isPlain(const DOMNode& element) {
        const DOMNamedNodeMap& attributes = *element.getAttributes();
        bool plain = !element.getLocalName();
        for (XMLSize_t i = 0, count = attributes.getLength(); plain && i < count; ++i)
            plain = isPlainAttribute(static_cast<const DOMAttr&>(*attributes.item(i)));
        return plain;
    }

    static bool isPlainAttribute(const DOMAttr& attribute) {
        const DOMNode* value = attribute.getFirstChild();
        const bool isOneText =
            !value || (value->getNodeType() == DOMNode::TEXT_NODE && !value->getNextSibling());
        return isOneText && attribute.getSpecified() && !attribute.getLocalName();
    }

    DOMElementImpl& copyElement(const DOMNode& source) {
        DOMElementImpl& element = *makeElement(target_, source.getNodeName());
        copyAttributes(*source.getAttributes(), element);
        for (const DOMNode* child = source.getFirstChild(); child; child = child->getNextSibling())
            appendNew(element, copy(*child));
        return element;
    }

    void copyAttributes(const DOMNamedNodeMap& from, DOMElementImpl& to) {
        const XMLSize_t count = from.getLength();
        if (count > 0)
            to.fAttributes->reserve(count);
        for (XMLSize_t i = 0; i < count; ++i) {
            const DOMNode& attribute = *from.item(i);
            const DOMNode* value = attribute.getFirstChild();
            AttributeLinks::put(to, *makeAttribute(target_, attribute.getNodeName(),
                                                   value ? value->getNodeValue() : nullptr));
        }
    }

    DOMDocumentImpl* target_;
};

} // namespace

DOMDocument* copyDocument(const DOMDocument& source) {
    DocumentScope document(static_cast<DOMDocument*>(source.cloneNode(false)));
    Copier copier(*document);
    for (const DOMNode* child = source.getFirstChild(); child; child = child->getNextSibling())
        document->appendChild(&copier.copy(*child));
    return document.release();
}

DOMElement* appendCopy(DOMElement& parent, const DOMElement& source) {
    DOMNode& made = Copier(*parent.getOwnerDocument()).copy(source);
    appendNew(static_cast<DOMElementImpl&>(parent), made);
    return static_cast<DOMElement*>(&made);
}

} // namespace opc
