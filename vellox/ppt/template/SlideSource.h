/// @file
/// The document that a slide of the template, or a copy of one, is made from.

#ifndef VELLOX_PPT_TEMPLATE_SLIDESOURCE_H
#define VELLOX_PPT_TEMPLATE_SLIDESOURCE_H

#include <map>
#include <string>

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// Shared by a slide and its copies, and so never changed: who fills something in makes another.
class SlideSource {
public:
    /// @param document with data-uid attributes
    explicit SlideSource(OwnedDocument document) : document_(std::move(document)) {}

    const OwnedDocument& getDocument() const { return document_; }
    xercesc::DOMDocument* get() const { return document_.get(); }
    /// The element with a data-uid, to be read; null if there is none.
    const xercesc::DOMElement* find(const std::wstring& uid) const;

private:
    OwnedDocument document_;
    mutable std::map<std::wstring, const xercesc::DOMElement*> elements_; // found when first asked for
};

} // namespace vellox::ppt

#endif
