// What a presentation makes of what it hears about itself.

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/MessageCatalog.h"
#include "vellox/foundation/NameHint.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/rules/Rules.h"

#include <locale>

namespace vellox::ppt {

namespace {

std::wstring placeInWords(const Finding& finding) {
    const std::wstring slide = std::to_wstring(finding.slide);
    if (finding.slide == 0)
        return finding.text;
    if (finding.shape.empty())
        return MessageCatalog::get_message(ppt_hint::onSlide(slide, finding.text), std::locale());
    return MessageCatalog::get_message(ppt_hint::inShape(slide, finding.shape, finding.text), std::locale());
}

[[noreturn]] void refuse(const Finding& finding) {
    raise(ppt_error::notAsAsked(placeInWords(finding), fromUtf8(finding.code)));
}

} // namespace

// What is raised isn't kept: whoever catches the error knows it.
void PresentationImpl::hear(const MsgID& finding, const ReportPlace& place) const {
    const boost::intrusive_ptr<PPTObjectImpl> kept(getRefCount() > 0 ? const_cast<PresentationImpl*>(this)
                                                                     : nullptr);
    if (isStrict_ && getSeverity(finding) == Severity::Error)
        refuse(FindingList::describe(finding, place, getChildren()));
    if (findings_.add(finding, place) && profile_.rules->sendsFindings() && wantsWarnings() && kept)
        sendFinding(finding, place);
}

// The source is the nearest that it is about.
void PresentationImpl::sendFinding(const MsgID& finding, const ReportPlace& place) const {
    const PPTNodeImpl* nearest = place.shape ? place.shape : place.slide ? place.slide : this;
    const boost::shared_ptr<PPTNode> source = const_cast<PPTNodeImpl*>(nearest)->makeInterface();
    const std::wstring text = MessageCatalog::get_message(finding, std::locale());
    MessageDispatcher::getTheDispatcher().dispatch(WarningMessage(text, *source));
}

void PresentationImpl::refuseWhatIsLeft() const {
    if (!isStrict_)
        return;
    for (const Finding& finding : getFindings())
        if (finding.severity == Severity::Error)
            refuse(finding);
}

void PresentationImpl::refuseLayout(const std::wstring& layoutName, const std::wstring* masterName) const {
    const bool isMasterKnown = masterName && model_ && !model_->getLayoutNames(*masterName).empty();
    NameHint hint;
    if (masterName && !isMasterKnown && model_)
        hint = makeNameHint(*masterName, model_->getMasterNames());
    else if (model_)
        hint = makeNameHint(layoutName,
                            masterName ? model_->getLayoutNames(*masterName) : model_->getAllLayoutNames());
    const bool isInText = profile_.rules->namesNearest();
    if (masterName)
        raiseWithHint(ppt_error::invalidLayoutOrSlideMasterName(layoutName, *masterName), hint, isInText);
    raiseWithHint(ppt_error::invalidLayoutName(layoutName), hint, isInText);
}

} // namespace vellox::ppt
