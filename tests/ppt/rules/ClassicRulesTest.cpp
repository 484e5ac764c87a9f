// What the classic rules answer, row by row.

#include "vellox/ppt/rules/ClassicRules.h"

#include "vellox/ppt/package/PackageNames.h"

#include <gtest/gtest.h>

using namespace vellox::ppt;

namespace {

ShapeFacts makeFacts(ShapeElement element, const wchar_t* placeholderType = nullptr, bool hasTable = false) {
    ShapeFacts facts;
    facts.element = element;
    facts.isPlaceholder = placeholderType != nullptr;
    if (placeholderType)
        facts.placeholderType = placeholderType;
    facts.hasTable = hasTable;
    return facts;
}

TEST(ClassicRules, ShapesAndTheirFates) {
    struct Row {
        ShapeFacts shape;
        NodeType type;
        Fate fate;
    };
    const auto ph = [](const wchar_t* type) { return makeFacts(ShapeElement::Shape, type); };
    const Row rows[] = {
        {ph(L""), NodeType::ContentPlaceholder, Fate::Empty},
        {ph(L"obj"), NodeType::None, Fate::Keep}, // written out it isn't the same
        {ph(L"body"), NodeType::BodyPlaceholder, Fate::Empty},
        {ph(L"pic"), NodeType::PicturePlaceholder, Fate::Empty},
        {ph(L"clipArt"), NodeType::PicturePlaceholder, Fate::Empty},
        {ph(L"tbl"), NodeType::TablePlaceholder, Fate::Empty},
        {ph(L"ctrTitle"), NodeType::TextBoxPlaceholder, Fate::Empty},
        {ph(L"subTitle"), NodeType::TextBoxPlaceholder, Fate::Empty},
        {ph(L"Title"), NodeType::None, Fate::Keep},
        {ph(L"sldNum"), NodeType::None, Fate::Keep},
        {makeFacts(ShapeElement::Shape), NodeType::TextBox, Fate::Drop},
        {makeFacts(ShapeElement::Picture), NodeType::Picture, Fate::Drop},
        {makeFacts(ShapeElement::Picture, L"pic"), NodeType::Picture, Fate::Drop},
        {makeFacts(ShapeElement::Group), NodeType::Group, Fate::Drop},
        {makeFacts(ShapeElement::GraphicFrame), NodeType::None, Fate::Keep},
        {makeFacts(ShapeElement::GraphicFrame, nullptr, true), NodeType::Table, Fate::Drop},
        {makeFacts(ShapeElement::Connector), NodeType::None, Fate::Drop},
        {makeFacts(ShapeElement::Other), NodeType::None, Fate::Keep},
    };
    const ClassicRules rules;
    for (const Row& row : rows) {
        const std::size_t number = static_cast<std::size_t>(&row - rows);
        EXPECT_EQ(rules.classify(row.shape), row.type) << number;
        EXPECT_EQ(rules.fateOf(row.shape), row.fate) << number;
    }
}

TEST(ClassicRules, Places) {
    const PlaceText whole{L"1", L"2", L"3", L"4", true};
    const PlaceText half{L"1", L"2", L"", L"", false};
    const PlaceText* const none = nullptr;
    struct Row {
        PlaceFacts kin;
        PlaceSource successor, text;
    };
    const NodeType content = NodeType::ContentPlaceholder;
    const Row rows[] = {
        {{content, &whole, none, none}, PlaceSource::None, PlaceSource::None},
        {{content, &whole, &whole, &whole}, PlaceSource::Layout, PlaceSource::Layout},
        {{content, none, &half, &whole}, PlaceSource::Master, PlaceSource::Layout},
        {{content, none, &half, &half}, PlaceSource::None, PlaceSource::Layout},
        {{NodeType::Table, &whole, &whole, &whole}, PlaceSource::Own, PlaceSource::Layout},
        {{NodeType::Table, &half, &whole, &whole}, PlaceSource::Layout, PlaceSource::Layout},
        {{NodeType::Picture, &whole, &whole, &whole}, PlaceSource::Own, PlaceSource::Layout},
        {{NodeType::Picture, none, &whole, &whole}, PlaceSource::Master, PlaceSource::Layout},
        {{NodeType::Picture, none, &whole, none}, PlaceSource::None, PlaceSource::Layout},
    };
    const ClassicRules rules;
    for (const Row& row : rows) {
        const std::size_t number = static_cast<std::size_t>(&row - rows);
        EXPECT_EQ(rules.choosePlace(row.kin, PlaceUse::Successor), row.successor) << number;
        EXPECT_EQ(rules.choosePlace(row.kin, PlaceUse::Text), row.text) << number;
    }
}

// Into a box of 9525000 EMU each way at 1000, 2000.
TEST(ClassicRules, PicturesAreFittedAndNeverEnlarged) {
    struct Row {
        const char* why;
        PictureFacts picture;
        Box box;
    };
    const Row rows[] = {
        {"wide", {2000, 1000, {}, {}}, {1000, 2383250, 9525000, 4762500}},
        {"high", {1000, 4000, {}, {}}, {3572875, 2000, 2381250, 9525000}},
        {"small", {100, 100, {}, {}}, {4287250, 4288250, 952500, 952500}},
        {"width alone", {100, 50, 1828800, {}}, {3849100, 4307300, 1828800, 914400}},
        {"height alone", {100, 50, {}, 1828800}, {2934700, 3850100, 3657600, 1828800}},
        {"both, out of proportion", {100, 50, 1828800, 1828800}, {3849100, 3850100, 1828800, 1828800}},
        {"beyond the box", {1, 1, 36576000, 18288000}, {1000, 2383250, 9525000, 4762500}},
        {"no size", {0, 0, {}, {}}, {4763500, 4764500, 0, 0}},
    };
    const Box place{1000, 2000, 9525000, 9525000};
    const ClassicRules rules;
    for (const Row& row : rows) {
        const Box box = rules.fit(row.picture, &place).value();
        EXPECT_EQ(box.x, row.box.x) << row.why;
        EXPECT_EQ(box.y, row.box.y) << row.why;
        EXPECT_EQ(box.cx, row.box.cx) << row.why;
        EXPECT_EQ(box.cy, row.box.cy) << row.why;
    }
    EXPECT_FALSE(rules.fit(rows[0].picture, nullptr));
}

TEST(ClassicRules, PackagesAndIds) {
    const ClassicRules rules;
    EXPECT_EQ(rules.refuse({false, contenttype::kMainTypes[0].contentType}), Refusal::NoMainPart);
    EXPECT_EQ(rules.refuse({true, L"application/xml"}), Refusal::OtherMainType);
    for (const contenttype::MainType& row : contenttype::kMainTypes)
        EXPECT_EQ(rules.refuse({true, row.contentType}),
                  row.hasMacros ? Refusal::OtherMainType : Refusal::None);
    EXPECT_EQ(rules.firstFreeId({true, 40}), 41u);
    EXPECT_EQ(rules.firstFreeId({false, 40}), 1u);
}

} // namespace
