#include "vellox/check/ElementFacts.h"

#include "vellox/check/GridCheck.h"
#include "vellox/opc/XercesString.h"

namespace vellox::check {

using namespace xercesc;

namespace {

struct WatchRow {
    Namespace space;
    const char* name;
    Watch watch;
};

constexpr WatchRow kWatched[] = {
    {kPresentation, "cNvPr", Watch::Shape},
    {kDrawing, "stCxn", Watch::TargetById},
    {kDrawing, "endCxn", Watch::TargetById},
    {kPresentation, "spTgt", Watch::TargetBySpid},
    {kPresentation, "bldP", Watch::TargetBySpid},
    {kPresentation, "bldGraphic", Watch::TargetBySpid},
    {kPresentation, "bldDgm", Watch::TargetBySpid},
    {kPresentation, "bldOleChart", Watch::TargetBySpid},
    {kPresentation, "sldId", Watch::Slide},
    {kPresentation, "sldMasterId", Watch::Master},
    {kPresentation, "sldLayoutId", Watch::Layout},
    {kPresentation, "notesMasterId", Watch::NotesMaster},
    {kPresentation, "handoutMasterId", Watch::HandoutMaster},
    {kPresentation2010, "sldId", Watch::SectionSlide},
    {kPresentation, "cmAuthor", Watch::Author},
    {kPresentation, "cm", Watch::Comment},
    {kDrawing, "tbl", Watch::Table},
};

/// What the references of an element have to lead to.
struct KindRow {
    Namespace space;
    const char* name;
    TargetKinds kinds;
};

constexpr KindRow kKinds[] = {
    {kDrawing, "blip", {L"image"}},
    {kChart, "chart", {L"chart"}},
    {kDrawing, "snd", {L"audio", L"media"}},
    {kPresentation, "snd", {L"audio", L"media"}},
    {kDrawing, "wavAudioFile", {L"audio", L"media"}},
    {kDrawing, "audioFile", {L"audio", L"media"}},
    {kDrawing, "videoFile", {L"video", L"media"}},
    {kPresentation, "tags", {L"tags"}},
    {kPresentation, "custData", {L"customXml"}},
};

bool isSpelled(std::u16string_view name, std::string_view ascii) {
    return std::equal(name.begin(), name.end(), ascii.begin(), ascii.end());
}

bool isShape(std::u16string_view name) {
    for (const char16_t* shape : {u"sp", u"pic", u"graphicFrame", u"cxnSp", u"grpSp", u"contentPart"})
        if (name == shape)
            return true;
    return false;
}

// The numbers of drawings from the binary format; they name no shape of the slide.
bool isForeignShapeId(const std::wstring& id) {
    return id.compare(0, 6, L"_x0000") == 0;
}

} // namespace

Watch findWatch(Namespace space, std::u16string_view name) {
    for (const WatchRow& row : kWatched)
        if (row.space == space && isSpelled(name, row.name))
            return row.watch;
    return Watch::Nothing;
}

bool isLink(std::u16string_view name) {
    return name == u"hlinkClick" || name == u"hlinkHover" || name == u"hlinkMouseOver";
}

TargetKinds findTargetKinds(Namespace space, std::u16string_view name, std::u16string_view action) {
    if (isLink(name) && action == u"ppaction://hlinksldjump")
        return {L"slide"};
    for (const KindRow& row : kKinds)
        if (row.space == space && isSpelled(name, row.name))
            return row.kinds;
    return {};
}

std::wstring findShapeName(const DOMElement& element) {
    for (const DOMNode* node = &element; node; node = node->getParentNode()) {
        if (node->getNodeType() != DOMNode::ELEMENT_NODE || !isShape(getLocalName(*node)))
            continue;
        const DOMElement* nonVisual = static_cast<const DOMElement*>(node)->getFirstElementChild();
        const DOMElement* properties = nonVisual ? nonVisual->getFirstElementChild() : nullptr;
        if (properties && getLocalName(*properties) == u"cNvPr")
            return opc::toWideString(properties->getAttribute(u"name"));
        return {};
    }
    return {};
}

ElementFacts::ElementFacts(Names& names)
    : names_(names),
      id_(names.makeKey(kNoNamespace, "id")),
      spid_(names.makeKey(kNoNamespace, "spid")),
      authorId_(names.makeKey(kNoNamespace, "authorId")),
      relationshipId_(names.makeKey(kRelationships, "id")),
      action_(names.makeKey(kNoNamespace, "action")) {
    for (const WatchRow& row : kWatched)
        watched_.emplace(names.makeKey(row.space, row.name), row.watch);
    lastWatched_ = static_cast<std::uint32_t>(names.count());
}

void ElementFacts::begin(const Place& place, const RelationshipKinds* kinds, Report& report) {
    place_ = place;
    kinds_ = kinds;
    report_ = &report;
    facts_ = DocumentFacts();
    shapeIds_.clear();
    otherShapeIds_.clear();
    targets_.clear();
}

void ElementFacts::see(const DOMElement& element, const NodeNames::Scope& scope, bool isActive) {
    const Key key = scope.getKey();
    if (static_cast<std::uint32_t>(key) < lastWatched_) {
        const auto found = watched_.find(key);
        if (found != watched_.end())
            act(found->second, element, scope, isActive);
    }
    if (!kinds_)
        return;
    for (const AttributeNode& attribute : scope)
        if (getNamespace(attribute.key) == kRelationships)
            seeReference(element, key, attribute);
}

void ElementFacts::act(Watch watch, const DOMElement& element, const NodeNames::Scope& scope, bool isActive) {
    switch (watch) {
    case Watch::Nothing:
        return;
    case Watch::Shape:
        return seeShape(element, scope, isActive);
    case Watch::TargetBySpid:
        return seeTarget(element, scope.find(spid_));
    case Watch::TargetById:
        return seeTarget(element, scope.find(id_));
    case Watch::Slide:
        return facts_.slides.push_back(readEntry(scope));
    case Watch::Master:
        return facts_.masters.push_back(readEntry(scope));
    case Watch::Layout:
        return facts_.layouts.push_back(readEntry(scope));
    case Watch::NotesMaster:
        return facts_.notesMasters.push_back(readEntry(scope));
    case Watch::HandoutMaster:
        return facts_.handoutMasters.push_back(readEntry(scope));
    case Watch::SectionSlide:
        return facts_.sectionSlides.push_back(getText(scope, id_));
    case Watch::Author:
        return facts_.authors.push_back(getText(scope, id_));
    case Watch::Comment:
        return facts_.commentAuthors.push_back(getText(scope, authorId_));
    case Watch::Table:
        return checkGrid(element, place_, *report_);
    }
}

std::wstring ElementFacts::getText(const NodeNames::Scope& scope, Key key) const {
    return opc::toWideString(scope.find(key));
}

ListEntry ElementFacts::readEntry(const NodeNames::Scope& scope) const {
    return {getText(scope, id_), scope.find(id_) != nullptr, getText(scope, relationshipId_)};
}

// The branches of an alternative rightly use the same numbers.
void ElementFacts::seeShape(const DOMElement& element, const NodeNames::Scope& scope, bool isActive) {
    const XMLCh* text = scope.find(id_);
    if (!text)
        return;
    const std::wstring id = opc::toWideString(text);
    if (!isActive)
        otherShapeIds_.insert(id);
    else if (!shapeIds_.insert(id).second)
        report_->add(Code::duplicateShapeId, place_, L"another shape has the id " + quote(id) + L" already",
                     findShapeName(element));
}

void ElementFacts::seeTarget(const DOMElement& element, const XMLCh* id) {
    if (id)
        targets_.push_back({&element, opc::toWideString(id)});
}

void ElementFacts::seeReference(const DOMElement& element, Key key, const AttributeNode& attribute) {
    const std::wstring id = opc::toWideString(attribute.value);
    const auto label = [&] {
        return names_.spell(attribute.key) + L"=" + quote(id) + L" of " + names_.spell(key);
    };
    if (id.empty()) {
        // A link without a target holds an action only, and what diagrams refer to may be nothing.
        const bool isOfSlide = getNamespace(key) >= kPresentation && getNamespace(key) <= kPicture;
        if (isOfSlide && !isLink(getLocalName(element)))
            report_->add(Code::emptyReference, place_, label() + L" is empty", findShapeName(element));
        return;
    }
    const auto found = kinds_->find(id);
    if (found == kinds_->end())
        report_->add(Code::unknownReference, place_, label() + L" names no relationship of the part",
                     findShapeName(element));
    else
        checkKind(element, key, attribute, found->second);
}

void ElementFacts::checkKind(const DOMElement& element, Key key, const AttributeNode& attribute,
                             const std::wstring& kind) {
    const TargetKinds wanted =
        findTargetKinds(getNamespace(key), getLocalName(element), element.getAttribute(u"action"));
    if (!wanted.take(kind))
        report_->add(Code::wrongReference, place_,
                     names_.spell(attribute.key) + L"=" + quote(opc::toWideString(attribute.value)) +
                         L" of " + names_.spell(key) + L" leads to a part of the kind " + quote(kind) +
                         L", and needs one of the kind " + quote(wanted.kind),
                     findShapeName(element));
}

DocumentFacts ElementFacts::finish() {
    for (const ShapeTarget& target : targets_)
        if (!isForeignShapeId(target.id) && shapeIds_.count(target.id) + otherShapeIds_.count(target.id) == 0)
            report_->add(Code::shapeReference, place_,
                         opc::toWideString(target.element->getNodeName()) + L" names a shape with the id " +
                             quote(target.id) + L", which there isn't",
                         findShapeName(*target.element));
    return std::move(facts_);
}

} // namespace vellox::check
