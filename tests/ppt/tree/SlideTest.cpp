#include "vellox/ppt/tree/Slide.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/tree/ContentPlaceholder.h"
#include "vellox/ppt/tree/GroupImpl.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/PicturePlaceholder.h"
#include "vellox/ppt/tree/PicturePlaceholderImpl.h"
#include "vellox/ppt/tree/TablePlaceholder.h"

#include "tests/support/DeckTest.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

class SlideTest : public DeckTest {
protected:
    template <class X> X get(const Slide& slide, const wchar_t* name) {
        return *X::cast(slide.find(name).at(0));
    }
};

TEST_F(SlideTest, FillsEveryShapeOfAName) {
    Slide slide = deck.add(L"Two Content");
    get<Shape>(slide, L"Left Content").setName(L"Same");
    get<Shape>(slide, L"Right Content").setName(L"Same");
    slide.add(L"Same", L"a");
    slide.add(L"Same", Paragraph(L"b"));
    ASSERT_EQ(slide.find(L"Same").size(), 2u);
    for (const auto& box : slide.find(L"Same"))
        EXPECT_EQ(outline(*box), L"a|b");
    const Paragraph taken(L"c");
    slide.replace(L"Title", taken);
    slide.replace(L"Same", taken); // copies, as it already has its place
    EXPECT_EQ(outline(get<BaseTextBox>(slide, L"Title")), L"c");
    EXPECT_EQ(outline(get<BaseTextBox>(slide, L"Same")), L"c");
    slide.replace(L"Nobody", L"x"); // says nothing
    deck.replace(L"Same", L"everywhere");
    for (const auto& box : deck.find(L"Same"))
        EXPECT_EQ(outline(*box), L"everywhere");
}

TEST_F(SlideTest, TakesAFreeObjectOnce) {
    Slide slide = deck.add(L"Blank");
    const TextBox box(L"Box");
    EXPECT_EQ(slide.add(box), box);
    EXPECT_EQ(errorOf([&] { slide.add(box); }), "ppt_error:failedToAppendChild");
    slide.add(static_cast<const TextBox&>(*box.clone()));
    EXPECT_EQ(slide.getNChildren(), 2u);
    EXPECT_EQ(slide.find(L"Box").size(), 1u); // a copy has no name
}

// What each kind of placeholder takes, and what stands on the slide then.
TEST_F(SlideTest, PlaceholdersTakeWhatTheyAreFor) {
    const Picture picture(folder / L"none.png");
    const Table table(1);
    struct Row {
        const wchar_t *layout, *name;
        HvContentPtr content;
        const char* error;
        NodeType then;
    };
    const HvContentPtr aPicture = object(picture), aTable = object(table), aList = list({text(L"a")});
    const Row rows[] = {
        {L"Title and Content", L"Content", aPicture, "nothing", NodeType::Picture},
        {L"Title and Content", L"Content", aTable, "nothing", NodeType::Table},
        {L"Title and Content", L"Content", aList, "nothing", NodeType::ContentPlaceholder},
        {L"Title and Picture", L"Picture", aPicture, "nothing", NodeType::Picture},
        {L"Title and Picture", L"Picture", aTable, "ppt_error:invalidReplaceArg",
         NodeType::PicturePlaceholder},
        {L"Title and Picture", L"Picture", aList, "nothing", NodeType::PicturePlaceholder},
        {L"Title and Table", L"Table", aTable, "nothing", NodeType::Table},
        {L"Title and Table", L"Table", aPicture, "ppt_error:invalidReplaceArg", NodeType::TablePlaceholder},
        {L"Title and Table", L"Table", aList, "nothing", NodeType::TablePlaceholder},
        {L"Title and Content", L"Title", aPicture, "ppt_error:invalidReplaceArg",
         NodeType::TextBoxPlaceholder},
        {L"Section Header", L"Text", aTable, "ppt_error:invalidReplaceArg", NodeType::BodyPlaceholder},
        {L"Section Header", L"Text", HvContentPtr(), "ppt_error:invalidReplaceArg",
         NodeType::BodyPlaceholder},
    };
    for (const Row& row : rows) {
        Slide slide = deck.add(row.layout);
        const unsigned int children = slide.getNChildren();
        EXPECT_EQ(errorOf([&] { slide.replace(row.name, row.content); }), row.error);
        EXPECT_EQ(slide.getNChildren(), children);
        EXPECT_EQ(slide.find(row.name).at(0)->getNodeType(), row.then);
    }
    EXPECT_FALSE(Picture(picture).getParent()); // the given ones stay free
    EXPECT_FALSE(Table(table).getParent());
    Slide slide = deck.add(L"Title and Table");
    slide.replace(L"Table", L"text"); // text by name doesn't reach a table's placeholder
    EXPECT_EQ(outline(get<BaseTextBox>(slide, L"Table")), L"");
    get<TablePlaceholder>(slide, L"Table").add(L"text"); // but through a handle it does
    EXPECT_EQ(outline(get<BaseTextBox>(slide, L"Table")), L"text");
}

TEST_F(SlideTest, AReplacedPlaceholderIsOutOfUse) {
    Slide slide = deck.add(L"Title and Content");
    ContentPlaceholder placeholder = get<ContentPlaceholder>(slide, L"Content");
    placeholder.add(L"kept");
    placeholder.setX(L"1in");
    Picture given(folder / L"none.png");
    given.unsetWidth();
    const Picture onSlide = placeholder.replace(given);
    EXPECT_NE(onSlide, given);
    EXPECT_EQ(*slide.getChildren()[1], onSlide);
    EXPECT_EQ(onSlide.getName(), L"Content");
    EXPECT_EQ(onSlide.getX().get().getRawValue(), L"1in");        // the place is the placeholder's
    EXPECT_FALSE(onSlide.getWidth().isSet());                     // as the placeholder's was
    EXPECT_EQ(onSlide.getHeight().get().getRawValue(), L"300px"); // the size the picture's
    EXPECT_FALSE(placeholder.getParent());
    EXPECT_EQ(outline(placeholder), L"kept");
    const char* const refused = "ppt_error:placeholderWasReplacedByObject";
    EXPECT_EQ(errorOf([&] { placeholder.add(L"x"); }), refused);
    EXPECT_EQ(errorOf([&] { placeholder.replace(L"x"); }), refused);
    EXPECT_EQ(errorOf([&] { placeholder.replace(given); }), refused);
    EXPECT_EQ(errorOf([&] { placeholder.replace(Table()); }), refused);
    EXPECT_EQ(errorOf([&] { placeholder.replace(list({})); }), refused);
    EXPECT_EQ(errorOf([&] { PicturePlaceholder().add(L"x"); }), refused); // nor was it ever in use
    EXPECT_EQ(errorOf([&] { placeholder.add(list({text(L"x")})); }), "nothing");

    Picture again = Picture(onSlide).replace(Picture(folder / L"none.png"));
    EXPECT_EQ(errorOf([&] { Picture(onSlide).replace(given); }), "ppt_error:pictureCannotBeReplaced");
    EXPECT_EQ(again.getName(), L"Content");
    slide.replace(L"Content", object(given)); // a picture isn't replaced by name
    EXPECT_EQ(*slide.getChildren()[1], again);
}

// The size of a picture as it can be read, and a star where it is its file's.
std::wstring sizeOf(const Picture& picture) {
    const ShapeGeometry& geometry = implOf<PictureImpl>(picture)->getGeometry();
    std::wstring text;
    for (const Extent* extent : {&geometry.cx, &geometry.cy}) {
        text += extent->isSet() ? extent->get().getRawValue() : L"none";
        text += extent->isFromFile() ? L"* " : L" ";
    }
    const ImageInfo& file = implOf<PictureImpl>(picture)->getFileSize();
    return text + num2str(file.getWidth()) + L"x" + num2str(file.getHeight());
}

TEST_F(SlideTest, PicturesTellTheirFilesSizeFromOneThatWasSet) {
    const std::wstring small = folder / L"small.png", large = folder / L"large.png";
    writeFile(small, makePng(20, 10));
    writeFile(large, makePng(800, 600));
    EXPECT_EQ(sizeOf(Picture()), L"none none 0x0");
    Picture picture(large);
    EXPECT_EQ(sizeOf(picture), L"800px* 600px* 800x600");
    picture.setWidth(L"1in"); // the height stays as it is
    EXPECT_EQ(sizeOf(picture), L"1in 600px* 800x600");
    EXPECT_EQ(sizeOf(*Picture::cast(picture.clone())), L"1in 600px* 800x600");
    picture.setHeight(L"600px"); // even if the file's is the same
    EXPECT_EQ(sizeOf(picture), L"1in 600px 800x600");
    picture.setPath(small);
    EXPECT_EQ(sizeOf(picture), L"20px* 10px* 20x10");
    picture.unsetWidth();
    EXPECT_EQ(sizeOf(picture), L"none 10px* 20x10");

    Slide slide = deck.add(L"Title and Picture");
    Picture onSlide = get<PicturePlaceholder>(slide, L"Picture").replace(Picture(large));
    EXPECT_EQ(sizeOf(onSlide), L"800px* 600px* 800x600");
    EXPECT_EQ(sizeOf(onSlide.replace(picture)), L"800px 10px* 20x10"); // the former's width isn't this file's
}

TEST_F(SlideTest, NothingGivesWayInsideAGroup) {
    const auto group = (new GroupImpl(L"Group"))->makeInterface();
    const auto placeholder = (new PicturePlaceholderImpl)->makeInterface();
    implOf<GroupImpl>(*group)->appendChild(placeholder);
    const Picture given;
    EXPECT_EQ(PicturePlaceholder::cast(placeholder)->replace(given), given);
    EXPECT_TRUE(placeholder->getParent());
}

} // namespace
