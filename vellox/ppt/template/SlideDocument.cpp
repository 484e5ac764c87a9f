#include "vellox/ppt/template/SlideDocument.h"

#include "vellox/opc/DocumentCopy.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/template/SlidePrototype.h"
#include "vellox/ppt/template/SlideSource.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <algorithm>
#include <utility>

namespace vellox::ppt {

using namespace xercesc;

namespace {

// None for a slide in pieces.
OwnedDocument makeDocument(const TemplateSlide& slide, const Rules& rules, SlideDocument::Form form) {
    const bool mayBePieces = form == SlideDocument::Form::Pieces;
    if (mayBePieces && !slide.source && requirePrototype(*slide.layout, rules).pieces)
        return OwnedDocument();
    OwnedDocument document = copyDocument(slide.source ? slide.source->getDocument()
                                                       : requirePrototype(*slide.layout, rules).document);
    declarePrefixes(document->getDocumentElement());
    return document;
}

unsigned int findFirstFreeId(const TemplateSlide& slide, const Rules& rules) {
    IdFacts ids;
    ids.isNew = !slide.source;
    if (ids.isNew)
        ids.greatest = std::max(slide.layout->maxShapeId, requirePrototype(*slide.layout, rules).lastShapeId);
    ids.present = ids.isNew ? requirePrototype(*slide.layout, rules).lastId : findLastId(slide.source->get());
    return rules.firstFreeId(ids);
}

} // namespace

SlideDocument::SlideDocument(const TemplateSlide& slide, const Rules& rules, Form form)
    : SlideDocument(makeDocument(slide, rules, form), findFirstFreeId(slide, rules)) {
    if (document_ && slide.source && rules.renumbersRepeats())
        nextShapeId_ = renumberRepeatedIds(document_.get(), nextShapeId_);
    if (document_)
        return;
    prototype_ = slide.layout->prototype;
    pieces_ = &*prototype_->pieces;
    slots_.resize(pieces_->shapes.size());
}

SlideDocument::SlideDocument(OwnedDocument document, unsigned int firstFreeId)
    : document_(std::move(document)),
      nextShapeId_(firstFreeId) {
    if (document_)
        readMarks(document_->getDocumentElement());
}

void SlideDocument::readMarks(DOMElement* element) {
    if (element && element->hasAttribute(xml::kDataUid))
        elements_.emplace(getAttribute(element, xml::kDataUid), element);
    for (DOMElement* child : getChildElements(element))
        readMarks(child);
}

void SlideDocument::setName(const std::wstring& name) {
    if (pieces_)
        name_ = name;
    else if (DOMElement* data = findChild(document_->getDocumentElement(), xml::kCSld))
        setAttribute(data, xml::kName, name);
}

DOMDocument& SlideDocument::requireDocument() {
    if (!document_)
        document_.reset(static_cast<DOMDocument*>(prototype_->document->cloneNode(false)));
    return *document_.get();
}

DOMElement* SlideDocument::createElement(const XMLCh* name) {
    return requireDocument().createElement(name);
}

DOMElement* SlideDocument::findElement(const std::wstring& uid) {
    if (uid == hiddenUid_)
        return nullptr;
    if (pieces_) {
        const auto shape = pieces_->shapesByUid.find(uid);
        if (shape != pieces_->shapesByUid.end() && !slots_[shape->second].holder)
            makeNodes(shape->second);
    }
    const auto found = elements_.find(uid);
    return found == elements_.end() ? nullptr : found->second;
}

void SlideDocument::removeElement(const std::wstring& uid) {
    if (DOMElement* element = findElement(uid))
        removeNode(element);
}

void SlideDocument::makeNodes(std::size_t shape) {
    Slot& slot = slots_[shape];
    slot.holder = createElement(xml::kSpTree);
    DOMElement* element = opc::appendCopy(*slot.holder, *pieces_->shapes[shape].element);
    readMarks(element);
    if (!slot.text.isEmpty())
        contents_[findChild(element, xml::kTxBody)] = std::move(slot.text);
}

bool SlideDocument::takesText(const std::wstring& uid) const {
    if (!pieces_ || uid == hiddenUid_)
        return false;
    const auto found = pieces_->shapesByUid.find(uid);
    return found != pieces_->shapesByUid.end() && pieces_->shapes[found->second].takesText &&
           !slots_[found->second].holder;
}

opc::MarkupBuffer& SlideDocument::getText(const std::wstring& uid) {
    return slots_[pieces_->shapesByUid.at(uid)].text;
}

DOMElement* SlideDocument::getShapeTree() const {
    return pieces_ ? nullptr : findDescendant(document_->getDocumentElement(), {xml::kCSld, xml::kSpTree});
}

void SlideDocument::appendShape(DOMElement* shape) {
    if (pieces_ && !newShapes_)
        newShapes_ = createElement(xml::kSpTree);
    if (DOMElement* tree = pieces_ ? newShapes_ : getShapeTree())
        tree->appendChild(shape);
}

void SlideDocument::writeTo(opc::MarkupBuffer& out) {
    finishNodes();
    if (pieces_)
        writePieces(out);
    else
        opc::Utf8Serializer::appendDocument(*document_.get(), contents_, out);
}

void SlideDocument::finishNodes() {
    for (const auto& [uid, element] : elements_) {
        element->removeAttribute(xml::kDataUid);
        const auto content = contents_.find(findChild(element, xml::kTxBody));
        if (content == contents_.end())
            ensureParagraph(element);
    }
}

void SlideDocument::writePieces(opc::MarkupBuffer& out) const {
    out.append(pieces_->beforeName);
    if (name_)
        out.appendAttribute(xml::kName, opc::XercesString(*name_));
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        const SlidePieces::Shape& shape = pieces_->shapes[i];
        out.append(pieces_->between[i]);
        if (slots_[i].holder) {
            writeChildren(slots_[i].holder, out);
            continue;
        }
        out.append(shape.text);
        if (shape.takesText)
            out.append(slots_[i].text.isEmpty() ? kEmptyParagraph : slots_[i].text.get());
        out.append(shape.textBehind);
    }
    out.append(pieces_->between.back());
    if (newShapes_)
        writeChildren(newShapes_, out);
    out.append(pieces_->behind);
}

// All nodes come from a plain document or from the library: they are plain.
void SlideDocument::writeChildren(const DOMElement* holder, opc::MarkupBuffer& out) const {
    for (const DOMNode* child = holder->getFirstChild(); child; child = child->getNextSibling())
        if (!opc::Utf8Serializer::appendPlain(*child, contents_, out))
            throw opc::Exception("a slide can't be written");
}

} // namespace vellox::ppt
