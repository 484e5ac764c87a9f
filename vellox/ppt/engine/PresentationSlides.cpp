// The slides of a presentation as a whole: copying, moving, removing, and their notes.

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/engine/Failures.h"
#include "vellox/ppt/engine/OutputFile.h"
#include "vellox/ppt/engine/OutputReader.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/template/NotesPage.h"
#include "vellox/ppt/tree/SlideImpl.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace {

// The copy is on what the original shows by now. Its part will be made of the original's.
boost::shared_ptr<TemplateSlide> copyRecord(const boost::shared_ptr<TemplateSlide>& record) {
    if (!record)
        return {};
    const auto copy = boost::make_shared<TemplateSlide>(*record);
    copy->id.clear();
    copy->relationshipId.clear();
    copy->partName.clear();
    if (copy->originName.empty() && copy->source)
        copy->originName = record->partName;
    return copy;
}

} // namespace

const SlideImpl& PresentationImpl::requireOwn(const Slide& slide) const {
    const auto* impl = implAs<SlideImpl>(slide);
    if (!impl || impl->getParent() != this)
        raise(ppt_error::slideNotInPresentation());
    return *impl;
}

boost::shared_ptr<Slide> PresentationImpl::copySlide(const Slide& slide) {
    const SlideImpl& original = requireOwn(slide);
    return Slide::cast(original.copyOn(copyRecord(original.getTemplateSlide())));
}

void PresentationImpl::moveSlide(const Slide& slide, unsigned int index) {
    requireOwn(slide);
    moveChild(slide, index);
}

void PresentationImpl::removeSlide(const Slide& slide) {
    requireOwn(slide);
    const Children taken = takeOut([&](const PPTNode& child) { return child == slide; });
    for (const Child& gone : taken)
        findings_.forget(*implOf<PPTNodeImpl>(*gone));
}

void PresentationImpl::clearSlides() {
    open();
    const Children taken = takeOut([](const PPTNode& child) {
        const auto* impl = implAs<SlideImpl>(child);
        const auto record = impl ? impl->getTemplateSlide() : nullptr;
        return record && record->source && record->originName.empty();
    });
    for (const Child& gone : taken)
        findings_.forget(*implOf<PPTNodeImpl>(*gone));
}

void PresentationImpl::requireNotes(TemplateSlide& record) {
    const std::wstring& part = record.originName.empty() ? record.partName : record.originName;
    if (record.areNotesRead || part.empty() || state_ != PresentationState::Open || !outputFile_)
        return;
    const std::wstring path = outputFile_->getPath();
    translate<opc::Exception, ppt_error::cannotOpenFile>(path, [&] {
        if (!reader_)
            reader_ = boost::make_shared<OutputReader>(path, outputFile_->getBytes());
        record.notes = reader_->readNotes(part);
    });
    record.areNotesRead = true;
}

// Presentation

Slide Presentation::copy(const Slide& slide) {
    const boost::shared_ptr<Slide> copied = pimpl()->copySlide(slide);
    pimpl()->insertSlide(copied);
    return *copied;
}

Slide Presentation::copy(const Slide& slide, unsigned int index) {
    const boost::shared_ptr<Slide> copied = pimpl()->copySlide(slide);
    pimpl()->insertSlideAt(copied, index);
    return *copied;
}

void Presentation::move(const Slide& slide, unsigned int index) {
    pimpl()->moveSlide(slide, index);
}

void Presentation::moveBefore(const Slide& slide, const Slide& before) {
    unsigned int index = 0;
    for (const auto& child : getChildren()) {
        if (*child == before)
            break;
        index += *child == slide ? 0 : 1;
    }
    move(slide, index);
}

void Presentation::remove(const Slide& slide) {
    pimpl()->removeSlide(slide);
}

void Presentation::clear() {
    pimpl()->clearSlides();
}

// Slide: a slide knows no file, its presentation does

namespace {

TemplateSlide* requireRecord(const SlideImpl& slide) {
    const boost::shared_ptr<TemplateSlide>& record = slide.getTemplateSlide();
    auto* deck = dynamic_cast<PresentationImpl*>(slide.getParent());
    if (record && deck)
        deck->requireNotes(*record);
    return record.get();
}

} // namespace

std::wstring Slide::getNotes() const {
    const TemplateSlide* record = requireRecord(*pimpl());
    return record ? readNotes(record->notes.get()) : std::wstring();
}

void Slide::setNotes(const std::wstring& text) {
    TemplateSlide* record = requireRecord(*pimpl());
    if (!record)
        return;
    record->notes = changeNotes(record->notes.get(), text);
    if (const std::size_t dropped = opc::XercesString(text).getDropped())
        report(ppt_finding::charactersDropped(std::to_wstring(dropped)), *pimpl());
}

double PresentationImpl::getSlideHeight() const {
    return model_ ? str2double(model_->getTemplate().slideHeight) : 0;
}

} // namespace vellox::ppt
