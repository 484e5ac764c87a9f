/// @file
/// The document of one slide while it is written.

#ifndef VELLOX_PPT_TEMPLATE_SLIDEDOCUMENT_H
#define VELLOX_PPT_TEMPLATE_SLIDEDOCUMENT_H

#include <map>
#include <string>
#include <vector>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class Rules;

/// Made when a slide's turn comes, and gone when its part holds it: no record of the template is changed, and
/// whatever goes wrong, the slide can be written again. Shapes are found by the marks of their records.
class SlideDocument {
public:
    /// A copy of the layout's prototype for a new slide, or of what was read for a slide of the template.
    SlideDocument(const TemplateSlide& slide, const Rules& rules);
    /// On a document with marks; new shapes are numbered from an id on.
    SlideDocument(OwnedDocument document, unsigned int firstFreeId);
    SlideDocument(const SlideDocument&) = delete;
    SlideDocument& operator=(const SlideDocument&) = delete;

    void setName(const std::wstring& name);
    /// A new element, attached to nothing.
    xercesc::DOMElement* createElement(const XMLCh* name) const;
    /// The element of a record; null if there is none.
    xercesc::DOMElement* findElement(const std::wstring& uid) const;
    /// The next id for a new shape.
    unsigned int takeShapeId() { return nextShapeId_++; }
    /// Puts a shape at the end of the shape tree, if the slide has one.
    void appendShape(xercesc::DOMElement* shape);
    /// @{ The one element that findElement() doesn't find for the time being.
    void hide(const std::wstring& uid);
    void showHidden();
    /// @}
    /// Takes the marks off, so that the document can be written.
    /// @return the elements that bore one
    std::vector<xercesc::DOMElement*> removeMarks();
    xercesc::DOMDocument* get() const { return document_.get(); }

private:
    using Elements = std::map<std::wstring, xercesc::DOMElement*>;

    OwnedDocument document_;
    Elements elements_;
    Elements::node_type hidden_;
    unsigned int nextShapeId_;
};

} // namespace vellox::ppt

#endif
