#include "vellox/ppt/template/Kin.h"

namespace vellox::ppt {

namespace {

// A master has one placeholder for titles and one for all that stands in the body of a slide.
std::wstring getMastersType(const std::wstring& placeholderType) {
    if (placeholderType == L"title" || placeholderType == L"ctrTitle")
        return L"title";
    const bool isOfMaster =
        placeholderType == L"dt" || placeholderType == L"ftr" || placeholderType == L"sldNum";
    return isOfMaster ? placeholderType : L"body";
}

// What isn't written out is "obj".
std::wstring getLayoutsType(const std::wstring& placeholderType) {
    return placeholderType.empty() ? L"obj" : placeholderType;
}

template <class Map> typename Map::mapped_type find(const Map& map, const std::wstring& key) {
    const auto found = map.find(key);
    return found == map.end() ? typename Map::mapped_type() : found->second;
}

} // namespace

void addKin(TemplateLayout& layout, const ShapeFacts& facts, const boost::shared_ptr<TemplateShape>& shape) {
    if (!facts.id.empty())
        layout.shapesById.emplace(facts.id, shape);
    if (!facts.isPlaceholder)
        return;
    if (!facts.placeholderIndex.empty())
        layout.shapesByIndex.emplace(facts.placeholderIndex, shape);
    layout.shapesByType.emplace(getLayoutsType(facts.placeholderType), shape);
}

void addKin(TemplateMaster& master, const ShapeFacts& facts, const Place& place) {
    if (facts.isPlaceholder)
        master.placesByType.emplace(getMastersType(facts.placeholderType), place);
}

// The layout's placeholder has inherited already what the master has for it.
Place findKinsPlace(const TemplateLayout& layout, const ShapeFacts& facts, Kinship kinship) {
    if (kinship == Kinship::Id) {
        const auto shape = find(layout.shapesById, facts.id);
        return shape ? shape->place : Place();
    }
    if (!facts.isPlaceholder)
        return {};
    auto shape = find(layout.shapesByIndex, facts.placeholderIndex);
    if (!shape)
        shape = find(layout.shapesByType, getLayoutsType(facts.placeholderType));
    return shape ? shape->successorPlace : Place();
}

Place findKinsPlace(const TemplateMaster& master, const ShapeFacts& facts, Kinship kinship) {
    if (kinship == Kinship::Id)
        return find(master.placesById, facts.id);
    return facts.isPlaceholder ? find(master.placesByType, getMastersType(facts.placeholderType)) : Place();
}

} // namespace vellox::ppt
