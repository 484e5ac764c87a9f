// The tokens of slides: all documents are filled before the first slide has one of them.

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/fill/TokenDocument.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/template/SlideSource.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"
#include "vellox/ppt/tree/TableImpl.h"

#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>
#include <memory>

namespace vellox::ppt {

namespace {

using Fault = TokenDocument::Fault;

class FilledSlide {
public:
    FilledSlide(SlideImpl& slide, PresentationImpl* deck, TokenValues& values)
        : slide_(&slide),
          record_(slide.getTemplateSlide()) {
        if (!record_)
            return;
        collect(slide);
        if (record_->source)
            body_ = fill(record_->source->getDocument(), values,
                         [this](const std::wstring& uid) { return isShown(uid); });
        if (deck)
            deck->requireNotes(*record_);
        if (record_->notes)
            notes_ = fill(record_->notes->document, values);
        checkSuccessors();
    }

    const std::vector<TokenDocument::Report>& getReports() const { return reports_; }
    unsigned int getCount() const {
        return (body_ ? body_->getCount() : 0) + (notes_ ? notes_->getCount() : 0);
    }

    void tell() const {
        const std::size_t dropped = (body_ ? body_->getDropped() : 0) + (notes_ ? notes_->getDropped() : 0);
        if (dropped > 0)
            report(ppt_finding::charactersDropped(std::to_wstring(dropped)), *slide_);
        for (const TokenDocument::Report& each : reports_)
            tell(each);
    }

    void commit() {
        if (body_)
            record_->source = boost::make_shared<SlideSource>(std::move(body_->getDocument()));
        if (notes_)
            takeNotes();
        for (const TokenDocument::Successor& successor : successors_)
            place(successor);
    }

private:
    std::unique_ptr<TokenDocument> fill(const OwnedDocument& document, TokenValues& values,
                                        const TokenDocument::IsShown& isShown = nullptr) {
        if (!TokenDocument::mayHaveTokens(document.get()))
            return nullptr;
        auto filled = std::make_unique<TokenDocument>(document, values, isShown);
        filled->fill();
        reports_.insert(reports_.end(), filled->getReports().begin(), filled->getReports().end());
        return filled;
    }

    void collect(const PPTNodeImpl& parent) {
        for (const auto& child : parent.getChildren()) {
            auto* shape = implAs<ShapeImpl>(*child);
            if (shape && !shape->getTemplateUid().empty())
                shapes_.emplace(shape->getTemplateUid(), shape);
            if (shape && shape->getNodeType() == NodeType::Group)
                collect(*shape);
        }
    }

    ShapeImpl* findShape(const std::wstring& uid) const {
        const auto found = shapes_.find(uid);
        return found == shapes_.end() ? nullptr : found->second.get();
    }

    // Shapes that are gone, and what other contents have replaced, don't come into the deck.
    bool isShown(const std::wstring& uid) const {
        const ShapeImpl* shape = findShape(uid);
        return shape && !shape->isContentReplaced();
    }

    // Only texts give way.
    void checkSuccessors() {
        if (!body_)
            return;
        for (const TokenDocument::Successor& successor : body_->getSuccessors()) {
            const ShapeImpl* shape = findShape(successor.uid);
            if (!shape || !shape->isA(NodeType::BaseTextBox))
                continue;
            const bool isInGroup = shape->getParent() != slide_.get();
            const bool isPicture = getObjectImpl<PictureImpl>(successor.content) != nullptr;
            if (!isInGroup || (isPicture && shape->getTemplateShape()->givesWayInGroup))
                successors_.push_back(withTable(successor));
            else
                reports_.push_back({successor.uid, Fault::Refused, successor.token});
        }
    }

    // A table that can't be made is found out here.
    static TokenDocument::Successor withTable(TokenDocument::Successor successor) {
        if (const auto table = TableContent::getValue(successor.content))
            successor.content = boost::make_shared<ObjectContent>(Table(table));
        return successor;
    }

    void tell(const TokenDocument::Report& each) const {
        const PPTNodeImpl* node = findShape(each.uid);
        const PPTNodeImpl& about = node ? *node : *slide_;
        if (each.fault == Fault::NoValue)
            report(ppt_finding::tokenWithoutValue(each.token), about);
        else
            report(ppt_finding::tokenRefusesValue(each.token), about);
    }

    void takeNotes() {
        const auto notes = boost::make_shared<TemplateNotes>();
        notes->document = std::move(notes_->getDocument());
        notes->isChanged = true;
        record_->notes = notes;
    }

    void place(const TokenDocument::Successor& successor) const {
        ShapeImpl* shape = findShape(successor.uid);
        const auto& record = shape->getTemplateShape();
        Place where = successor.place ? successor.place : record->successorPlace;
        if (!where)
            where = record->textPlace;
        shape->giveWayTo(successor.content, where);
    }

    boost::intrusive_ptr<SlideImpl> slide_;
    boost::shared_ptr<TemplateSlide> record_;
    std::unique_ptr<TokenDocument> body_, notes_; // of those that have tokens
    std::map<std::wstring, boost::intrusive_ptr<ShapeImpl>> shapes_;
    std::vector<TokenDocument::Successor> successors_;
    std::vector<TokenDocument::Report> reports_;
};

using Filled = std::vector<std::unique_ptr<FilledSlide>>;

[[noreturn]] void refuse(const Filled& slides, const std::vector<std::wstring>& unused) {
    constexpr std::size_t kMostNames = 20;
    std::vector<std::wstring> names;
    for (const auto& slide : slides)
        for (const TokenDocument::Report& each : slide->getReports())
            names.push_back(L"{" + each.token + L"}");
    names.insert(names.end(), unused.begin(), unused.end());
    std::wstring text;
    for (std::size_t i = 0; i < names.size() && i < kMostNames; ++i)
        text += (i == 0 ? L"" : L", ") + names[i];
    raise(ppt_error::tokensLeft(text + (names.size() > kMostNames ? L", ..." : L"")));
}

unsigned int fillSlides(const PPTNode::Children& slides, PresentationImpl* deck, const Contents& contents,
                        bool strict, const PPTNodeImpl& about) {
    TokenValues values(contents, deck ? deck->getValues().getMarks() : NumberMarks());
    Filled filled;
    bool hasReports = false;
    unsigned int count = 0;
    for (const auto& child : slides) {
        auto* slide = implAs<SlideImpl>(*child);
        if (!slide)
            continue;
        filled.push_back(std::make_unique<FilledSlide>(*slide, deck, values));
        hasReports = hasReports || !filled.back()->getReports().empty();
        count += filled.back()->getCount();
    }
    const std::vector<std::wstring> unused = values.getUnused();
    if (strict && (hasReports || !unused.empty()))
        refuse(filled, unused);
    for (const auto& slide : filled) // a presentation that refuses to be other than asked does so here
        slide->tell();
    for (const std::wstring& name : unused)
        report(ppt_finding::valueWithoutToken(name), about);
    for (const auto& slide : filled)
        slide->commit();
    return count;
}

} // namespace

unsigned int Presentation::fillTokens(const Contents& values, bool strict) {
    open();
    const boost::intrusive_ptr<PresentationImpl> deck = heldImplOf<PresentationImpl>(*this);
    return fillSlides(Children(getChildren()), deck.get(), values, strict, *deck);
}

unsigned int Slide::fillTokens(const Contents& values, bool strict) {
    const boost::intrusive_ptr<SlideImpl> slide = heldImplOf<SlideImpl>(*this);
    auto* deck = dynamic_cast<PresentationImpl*>(slide->getParent());
    return fillSlides({makeInterface()}, deck, values, strict, *slide);
}

} // namespace vellox::ppt
