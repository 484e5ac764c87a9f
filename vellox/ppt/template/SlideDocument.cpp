#include "vellox/ppt/template/SlideDocument.h"

#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/template/SlidePrototype.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <utility>

namespace vellox::ppt {

using namespace xercesc;

namespace {

OwnedDocument makeDocument(const TemplateSlide& slide, const Rules& rules) {
    OwnedDocument document = slide.source ? copyDocument(*slide.source)
                                          : copyDocument(requirePrototype(*slide.layout, rules).document);
    declarePrefixes(document->getDocumentElement());
    return document;
}

unsigned int findFirstFreeId(const TemplateSlide& slide, const Rules& rules) {
    IdFacts ids;
    ids.isNew = !slide.source;
    if (ids.isNew)
        ids.greatest = std::max(slide.layout->maxShapeId, requirePrototype(*slide.layout, rules).lastShapeId);
    ids.present =
        ids.isNew ? requirePrototype(*slide.layout, rules).greatestId : findGreatestId(slide.source->get());
    return rules.firstFreeId(ids);
}

} // namespace

SlideDocument::SlideDocument(const TemplateSlide& slide, const Rules& rules)
    : SlideDocument(makeDocument(slide, rules), findFirstFreeId(slide, rules)) {}

SlideDocument::SlideDocument(OwnedDocument document, unsigned int firstFreeId)
    : document_(std::move(document)),
      nextShapeId_(firstFreeId) {
    for (DOMElement* element : getAllElements(document_.get())) {
        const std::wstring uid = getAttribute(element, xml::kDataUid);
        if (!uid.empty())
            elements_.emplace(uid, element);
    }
}

void SlideDocument::setName(const std::wstring& name) {
    if (DOMElement* data = findChild(document_->getDocumentElement(), xml::kCSld))
        setAttribute(data, xml::kName, name);
}

DOMElement* SlideDocument::createElement(const XMLCh* name) const {
    return document_->createElement(name);
}

DOMElement* SlideDocument::findElement(const std::wstring& uid) const {
    const auto found = elements_.find(uid);
    return found == elements_.end() ? nullptr : found->second;
}

void SlideDocument::appendShape(DOMElement* shape) {
    if (DOMElement* tree = findDescendant(document_->getDocumentElement(), {xml::kCSld, xml::kSpTree}))
        tree->appendChild(shape);
}

void SlideDocument::hide(const std::wstring& uid) {
    hidden_ = elements_.extract(uid);
}

void SlideDocument::showHidden() {
    if (hidden_)
        elements_.insert(std::move(hidden_));
}

std::vector<DOMElement*> SlideDocument::removeMarks() {
    std::vector<DOMElement*> marked;
    for (const auto& entry : elements_) {
        entry.second->removeAttribute(xml::kDataUid);
        marked.push_back(entry.second);
    }
    return marked;
}

} // namespace vellox::ppt
