/// @file
/// Elements by namespace and name, in documents that are read with namespaces. Internal.

#ifndef VELLOX_READING_MARKUP_H
#define VELLOX_READING_MARKUP_H

#include <string>
#include <xercesc/dom/DOM.hpp>

#include "vellox/check/Names.h"

namespace vellox::reading {

/// What names mean, in the transitional form and in the strict one.
class Markup {
public:
    bool is(const xercesc::DOMElement& element, check::Namespace space, const XMLCh* name);
    /// The first child of the name, or null.
    const xercesc::DOMElement* find(const xercesc::DOMElement& parent, check::Namespace space,
                                    const XMLCh* name);
    /// Likewise, along a path of names of one namespace.
    template <class... Path>
    const xercesc::DOMElement* find(const xercesc::DOMElement& parent, check::Namespace space,
                                    const XMLCh* name, const Path*... path) {
        const xercesc::DOMElement* child = find(parent, space, name);
        return child ? find(*child, space, path...) : nullptr;
    }

    /// Each child in order. Of alternatives the first counts that current readers understand.
    template <class Visit> void forEach(const xercesc::DOMElement& parent, Visit visit) {
        for (const xercesc::DOMElement* child = parent.getFirstElementChild(); child;
             child = child->getNextElementSibling()) {
            if (is(*child, check::kCompatibility, u"AlternateContent")) {
                if (const xercesc::DOMElement* choice = choose(*child))
                    forEach(*choice, visit);
            } else {
                visit(*child);
            }
        }
    }
    /// Each element of the name below another one, in the order of the document, none within another.
    template <class Visit>
    void forEachWithin(const xercesc::DOMElement& parent, check::Namespace space, const XMLCh* name,
                       const Visit& visit) {
        forEach(parent, [&](const xercesc::DOMElement& child) {
            if (is(child, space, name))
                visit(child);
            else
                forEachWithin(child, space, name, visit);
        });
    }

    /// The value of an attribute of no namespace, or of one of relationships ("embed").
    std::wstring get(const xercesc::DOMElement& element, const XMLCh* name) const;
    std::wstring getReference(const xercesc::DOMElement& element, const XMLCh* name);

private:
    const xercesc::DOMElement* choose(const xercesc::DOMElement& alternatives);
    bool isUnderstood(const xercesc::DOMElement& choice);
    bool isIn(const XMLCh* uri, check::Namespace space);

    check::Names names_;
};

/// "1" and "true", as the format has it.
bool isTrue(const std::wstring& value);
/// A text that stands once in the package and goes to many: it doesn't get long.
std::wstring shorten(const std::wstring& text);

} // namespace vellox::reading

#endif
