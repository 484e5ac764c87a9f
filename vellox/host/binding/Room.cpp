#include "vellox/host/binding/Room.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/engine/Presentation.h"
#include "vellox/ppt/rules/Facts.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/Slide.h"

namespace vellox::ppt::hostbind {

namespace {

constexpr double kEmuPerInch = 914400;

double toInches(const BaseAttribute<Dimension>& own, const std::wstring& inherited) {
    return (own.isSet() ? own.get().getEMUNumber() : str2double(inherited)) / kEmuPerInch;
}

PPTNode::Children findShapes(const PPTObject& owner, const std::wstring& name) {
    if (name.empty())
        return {};
    if (const auto* slide = dynamic_cast<const Slide*>(&owner))
        return Slide(*slide).find(name);
    if (const auto* deck = dynamic_cast<const Presentation*>(&owner))
        return Presentation(*deck).find(name);
    return {};
}

} // namespace

Room getRoom(const PPTObject& owner, const std::wstring& name) {
    const PPTNode::Children found = findShapes(owner, name);
    const PPTObject& object = found.empty() ? owner : *found.front();
    if (!dynamic_cast<const Shape*>(&object))
        return {};
    const auto* shape = implOf<ShapeImpl>(object);
    const auto& record = shape->getTemplateShape();
    const PlaceText* place = record ? record->successorPlace.get() : nullptr;
    if (record && !place)
        place = record->textPlace.get();
    const ShapeGeometry& geometry = shape->getGeometry();
    return {toInches(geometry.cx, place ? place->cx : L""), toInches(geometry.cy, place ? place->cy : L"")};
}

bool isForPictures(const PPTObject& slide, const std::wstring& name) {
    const PPTNode::Children found = findShapes(slide, name);
    const auto* shape = found.empty() ? nullptr : implAs<ShapeImpl>(*found.front());
    return shape && (shape->getNodeType() == NodeType::Picture ||
                     shape->getNodeType() == NodeType::PicturePlaceholder);
}

} // namespace vellox::ppt::hostbind
