#include "vellox/ppt/engine/ShapeMakers.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/xml/XmlNames.h"

#include "tests/support/Xml.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <sstream>

using namespace vellox;
using namespace vellox::ppt;
using test::canonical;

namespace {

/// A slide with one shape in its tree, and a layout and a master whose documents are that of the slide.
class ShapeMakersTest : public testing::Test {
protected:
    xercesc::DOMElement* use(const std::string& shapeXml) {
        opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(
            "<p:sld><p:cSld><p:spTree>" + shapeXml + "</p:spTree></p:cSld></p:sld>"));
        slide.document.reset(opc::XercesHelper::readDocumentFromStream(parser_.get(), stream, false, {}, {}));
        slide.nextShapeId = 10;
        return goDownFirstChildren(slide.document.get(), 3);
    }

    TemplateSlide slide;

private:
    opc::XercesProcess xerces_;
    opc::ParserScope parser_{opc::XercesHelper::createParser()};
};

ShapeGeometry makeGeometry(const wchar_t* x, const wchar_t* y, const wchar_t* cx, const wchar_t* cy) {
    ShapeGeometry geometry;
    const auto set = [](BaseAttribute<Dimension>& length, const wchar_t* text) {
        if (text)
            length.set(Dimension(text));
    };
    set(geometry.x, x);
    set(geometry.y, y);
    set(geometry.cx, cx);
    set(geometry.cy, cy);
    return geometry;
}

std::string xfrm(const char* prefix, const char* x, const char* y, const char* cx, const char* cy) {
    const std::string name = std::string(prefix) + ":xfrm";
    return "<" + name + "><a:off x='" + x + "' y='" + y + "'/><a:ext cx='" + cx + "' cy='" + cy + "'/></" +
           name + ">";
}

std::string placeholder(const std::string& spPr) {
    return "<p:sp><p:nvSpPr><p:cNvPr id='4' name='Box'/><p:cNvSpPr/><p:nvPr><p:ph "
           "type='pic'/></p:nvPr></p:nvSpPr>"
           "<p:spPr>" +
           spPr + "</p:spPr><p:txBody/></p:sp>";
}

const BaseAttribute<std::wstring> kName(L"Name");

TEST_F(ShapeMakersTest, FreeShapesHaveDefaultsForWhatIsNotSet) {
    use("");
    EXPECT_EQ(
        canonical(*makeFreeTable(slide, kName, {}, 3).frame),
        canonical("<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id='11' name='Name'/><p:cNvGraphicFramePr>"
                  "<a:graphicFrameLocks noGrp='1'/></p:cNvGraphicFramePr><p:nvPr/></p:nvGraphicFramePr>" +
                  xfrm("p", "0", "0", "3234567", "3234567") +
                  "<a:graphic><a:graphicData uri='http://schemas.openxmlformats.org/drawingml/2006/table'>"
                  "<a:tbl><a:tblGrid><a:gridCol w='1078189'/><a:gridCol w='1078189'/><a:gridCol w='1078189'/>"
                  "</a:tblGrid></a:tbl></a:graphicData></a:graphic></p:graphicFrame>"));
    EXPECT_EQ(
        canonical(
            *makeFreePicture(slide, L"rId5", kName, makeGeometry(L"1in", nullptr, L"2in", nullptr)).pic),
        canonical("<p:pic><p:nvPicPr><p:cNvPr id='12' name='Name'/><p:cNvPicPr><a:picLocks noGrp='1' "
                  "noChangeAspect='1'/></p:cNvPicPr><p:nvPr/></p:nvPicPr><p:blipFill><a:blip r:embed='rId5'/>"
                  "<a:stretch><a:fillRect/></a:stretch></p:blipFill><p:spPr>" +
                  xfrm("a", "914400", "0", "1828800", "1234567") +
                  "<a:prstGeom prst='rect'/></p:spPr></p:pic>"));
    EXPECT_EQ(
        canonical(*makeFreeTextBox(slide, kName, makeGeometry(L"1cm", L"-1cm", L"-2cm", L"1")).sp),
        canonical("<p:sp><p:nvSpPr><p:cNvPr id='13' name='Name'/><p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr>" +
                  xfrm("a", "359999", "-359999", "0", "9525") +
                  "<a:prstGeom prst='rect'/></p:spPr><p:txBody><a:bodyPr/><a:lstStyle/></p:txBody></p:sp>"));
    EXPECT_EQ(
        getChildElements(findDescendant(slide.document->getDocumentElement(), {xml::kCSld, xml::kSpTree}))
            .size(),
        3u);
}

struct Fit {
    const char* why;
    PixelSize image;
    const wchar_t *width, *height;
    const char *x, *y, *cx, *cy;
};

// Into a box of 9525000 EMU each way at 1000, 2000.
TEST_F(ShapeMakersTest, PicturesAreFittedAndNeverEnlarged) {
    const Fit rows[] = {
        {"wide", {2000, 1000}, nullptr, nullptr, "1000", "2383250", "9525000", "4762500"},
        {"high", {1000, 4000}, nullptr, nullptr, "3572875", "2000", "2381250", "9525000"},
        {"small", {100, 100}, nullptr, nullptr, "4287250", "4288250", "952500", "952500"},
        {"width alone", {100, 50}, L"2in", nullptr, "3849100", "4307300", "1828800", "914400"},
        {"height alone", {100, 50}, nullptr, L"2in", "2934700", "3850100", "3657600", "1828800"},
        {"both, out of proportion", {100, 50}, L"2in", L"2in", "3849100", "3850100", "1828800", "1828800"},
        {"beyond the box", {1, 1}, L"40in", L"20in", "1000", "2383250", "9525000", "4762500"},
        {"no size", {0, 0}, nullptr, nullptr, "4763500", "4764500", "0", "0"},
        {"no size and a width", {0, 0}, L"1in", nullptr, "4306300", "2000", "914400", "0"},
    };
    for (const Fit& row : rows) {
        xercesc::DOMElement* shape = use(placeholder(xfrm("a", "1000", "2000", "9525000", "9525000")));
        const PictureElements made = makePictureForPlaceholder(
            slide, L"rId1", shape, shape, row.image, makeGeometry(L"9in", L"9in", row.width, row.height));
        EXPECT_EQ(canonical(*made.xfrm), xfrm("a", row.x, row.y, row.cx, row.cy)) << row.why;
        EXPECT_EQ(canonical(*findChild(made.nvPicPr, xml::kCNvPr)), "<p:cNvPr id='4' name='Box'/>");
        EXPECT_EQ(canonical(*findChild(made.nvPicPr, xml::kNvPr)), "<p:nvPr><p:ph type='pic'/></p:nvPr>");
    }
}

TEST_F(ShapeMakersTest, PlacesComeFromTheLayoutThenFromTheMaster) {
    xercesc::DOMElement* shape = use(placeholder("") + placeholder(xfrm("a", "1", "2", "3000000", "4")));
    xercesc::DOMElement* withPlace = shape->getNextElementSibling();
    const auto xfrmOfTable = [&](xercesc::DOMElement* layoutShape) {
        const GraphicFrameElements made = makeTableForPlaceholder(slide, shape, layoutShape, 3);
        const std::string xml = canonical(*findChild(made.frame, xml::kXfrm));
        slide.document.get()->getDocumentElement(); // the placeholder's identity went over
        use(placeholder("") + placeholder(xfrm("a", "1", "2", "3000000", "4")));
        shape = goDownFirstChildren(slide.document.get(), 3);
        withPlace = shape->getNextElementSibling();
        return xml;
    };
    const std::string free = xfrm("p", "0", "0", "3234567", "3234567");
    EXPECT_EQ(xfrmOfTable(withPlace), xfrm("p", "1", "2", "3000000", "4"));
    EXPECT_EQ(xfrmOfTable(shape), free); // no layout, no master: as large as a free one
    EXPECT_EQ(xfrmOfTable(nullptr), free);
    slide.layout = boost::make_shared<TemplateLayout>();
    EXPECT_EQ(xfrmOfTable(shape), free);
    slide.layout->master = boost::make_shared<TemplateMaster>();
    slide.layout->master->shapeElementsById[L"4"] = withPlace;
    EXPECT_EQ(xfrmOfTable(shape), xfrm("p", "1", "2", "3000000", "4"));
    slide.layout->master->shapeElementsById.clear();

    const PictureElements picture = makePictureForPlaceholder(slide, L"r", shape, shape, {10, 10}, {});
    EXPECT_EQ(canonical(*picture.spPr), "<p:spPr><a:prstGeom prst='rect'/></p:spPr>"); // no place at all
}

TEST_F(ShapeMakersTest, WhatReplacesAnElementOfASlideStandsWhereThatStood) {
    xercesc::DOMElement* frame =
        use("<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id='4' name='T'/><p:cNvGraphicFramePr/><p:nvPr/>"
            "</p:nvGraphicFramePr>" +
            xfrm("p", "1", "2", "1000000", "4") + "<a:graphic/></p:graphicFrame>");
    const GraphicFrameElements table = makeTableForTable(slide, frame, nullptr, 3);
    EXPECT_EQ(canonical(*findChild(table.frame, xml::kXfrm)), xfrm("p", "1", "2", "1000000", "4"));
    EXPECT_EQ(canonical(*table.tblGrid->getFirstElementChild()), "<a:gridCol w='333333'/>");
    EXPECT_EQ(slide.nextShapeId, 10u);

    xercesc::DOMElement* pic =
        use("<p:pic><p:nvPicPr><p:cNvPr id='4' name='P'/><p:cNvPicPr/><p:nvPr/></p:nvPicPr>"
            "<p:spPr>" +
            xfrm("a", "0", "0", "1905000", "1905000") + "</p:spPr></p:pic>");
    const PictureElements picture = makePictureForPicture(slide, L"r", pic, {100, 50}, {});
    EXPECT_EQ(canonical(*picture.xfrm), xfrm("a", "476250", "714375", "952500", "476250"));
}

TEST_F(ShapeMakersTest, ATextShapeTakesFromTheLayoutWhatIsNotSet) {
    const std::string layoutXfrm = xfrm("a", "100", "200", "300", "400");
    struct Row {
        std::string own, layout;
        ShapeGeometry geometry;
        std::string then;
    };
    const Row rows[] = {
        {"", layoutXfrm, {}, ""}, // keeps inheriting
        {"", layoutXfrm, makeGeometry(L"1in", nullptr, nullptr, nullptr),
         xfrm("a", "914400", "200", "300", "400")},
        {"", "", makeGeometry(nullptr, nullptr, L"1in", nullptr), xfrm("a", "0", "0", "914400", "1234567")},
        {"<a:noFill/>", "", makeGeometry(L"1px", nullptr, nullptr, nullptr),
         "<a:noFill/>" + xfrm("a", "9525", "0", "1234567", "1234567")}, // always at the end
    };
    for (const Row& row : rows) {
        xercesc::DOMElement* shape = use(placeholder(row.own) + placeholder(row.layout));
        placeExistingTextShape(shape, slide, shape->getNextElementSibling(), row.geometry);
        EXPECT_EQ(canonical(*findChild(shape, xml::kSpPr)), canonical("<p:spPr>" + row.then + "</p:spPr>"));
    }
}

} // namespace
