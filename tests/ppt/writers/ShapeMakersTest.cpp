#include "vellox/ppt/writers/ShapeMakers.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/xml/XmlNames.h"

#include "tests/support/Xml.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

using namespace vellox;
using namespace vellox::ppt;
using test::canonical;

namespace {

/// A slide with one shape in its tree.
class ShapeMakersTest : public testing::Test {
protected:
    xercesc::DOMElement* use(const std::string& shapeXml) {
        opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(
            "<p:sld><p:cSld><p:spTree>" + shapeXml + "</p:spTree></p:cSld></p:sld>"));
        slide_.emplace(
            OwnedDocument(opc::XercesHelper::readDocumentFromStream(parser_.get(), stream, false, {}, {})),
            11);
        return slide_->getShapeTree()->getFirstElementChild();
    }
    SlideDocument& slide() { return *slide_; }

private:
    opc::XercesProcess xerces_;
    opc::ParserScope parser_{opc::XercesHelper::createParser()};
    std::optional<SlideDocument> slide_;
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
        canonical(*makeFreeTable(slide(), kName, {}, 3).frame),
        canonical("<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id='11' name='Name'/><p:cNvGraphicFramePr>"
                  "<a:graphicFrameLocks noGrp='1'/></p:cNvGraphicFramePr><p:nvPr/></p:nvGraphicFramePr>" +
                  xfrm("p", "0", "0", "3234567", "3234567") +
                  "<a:graphic><a:graphicData uri='http://schemas.openxmlformats.org/drawingml/2006/table'>"
                  "<a:tbl><a:tblGrid><a:gridCol w='1078189'/><a:gridCol w='1078189'/><a:gridCol w='1078189'/>"
                  "</a:tblGrid></a:tbl></a:graphicData></a:graphic></p:graphicFrame>"));
    EXPECT_EQ(
        canonical(
            *makeFreePicture(slide(), L"rId5", kName, makeGeometry(L"1in", nullptr, L"2in", nullptr)).pic),
        canonical("<p:pic><p:nvPicPr><p:cNvPr id='12' name='Name'/><p:cNvPicPr><a:picLocks noGrp='1' "
                  "noChangeAspect='1'/></p:cNvPicPr><p:nvPr/></p:nvPicPr><p:blipFill><a:blip r:embed='rId5'/>"
                  "<a:stretch><a:fillRect/></a:stretch></p:blipFill><p:spPr>" +
                  xfrm("a", "914400", "0", "1828800", "1234567") +
                  "<a:prstGeom prst='rect'/></p:spPr></p:pic>"));
    EXPECT_EQ(
        canonical(*makeFreeTextBox(slide(), kName, makeGeometry(L"1cm", L"-1cm", L"-2cm", L"1")).sp),
        canonical("<p:sp><p:nvSpPr><p:cNvPr id='13' name='Name'/><p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr>" +
                  xfrm("a", "359999", "-359999", "0", "9525") +
                  "<a:prstGeom prst='rect'/></p:spPr><p:txBody><a:bodyPr/><a:lstStyle/></p:txBody></p:sp>"));
    EXPECT_EQ(getChildElements(slide().getShapeTree()).size(), 3u);
}

TEST_F(ShapeMakersTest, WhatComesInAnElementsSteadTakesItsIdentity) {
    const std::string identity = "<p:cNvPr id='4' name='Box'/>";
    const PlaceText place{L"1", L"2", L"1000000", L"4", true};
    const GraphicFrameElements table = makeTableInPlace(slide(), use(placeholder("")), &place, 3);
    EXPECT_EQ(canonical(*findChild(table.frame, xml::kXfrm)), xfrm("p", "1", "2", "1000000", "4"));
    EXPECT_EQ(canonical(*table.tblGrid->getFirstElementChild()), "<a:gridCol w='333333'/>");
    EXPECT_EQ(canonical(*findChild(table.nvGraphicFramePr, xml::kCNvPr)), identity);
    const GraphicFrameElements free = makeTableInPlace(slide(), use(placeholder("")), nullptr, 3);
    EXPECT_EQ(canonical(*findChild(free.frame, xml::kXfrm)), xfrm("p", "0", "0", "3234567", "3234567"));

    const PictureElements picture =
        makePictureInPlace(slide(), L"rId1", use(placeholder("")), Box{1.5, -2.5, 3, -4});
    EXPECT_EQ(canonical(*picture.xfrm), xfrm("a", "1", "-2", "3", "0"));
    EXPECT_EQ(canonical(*findChild(picture.nvPicPr, xml::kCNvPr)), identity);
    EXPECT_EQ(canonical(*findChild(picture.nvPicPr, xml::kNvPr)), "<p:nvPr><p:ph type='pic'/></p:nvPr>");
    const PictureElements nowhere = makePictureInPlace(slide(), L"r", use(placeholder("")), {});
    EXPECT_EQ(canonical(*nowhere.spPr), "<p:spPr><a:prstGeom prst='rect'/></p:spPr>");
    EXPECT_EQ(slide().takeShapeId(), 11u); // nobody needed a new one

    xercesc::DOMElement* frame = use("<p:graphicFrame><p:nvGraphicFramePr/></p:graphicFrame>");
    const GraphicFrameElements nameless = makeTableInPlace(slide(), frame, nullptr, 1);
    EXPECT_EQ(getAttribute(findChild(nameless.nvGraphicFramePr, xml::kCNvPr), xml::kId), L"11");
}

TEST_F(ShapeMakersTest, ATextShapeTakesFromTheLayoutWhatIsNotSet) {
    const PlaceText layout{L"100", L"200", L"300", L"400", true};
    const PlaceText half{L"", L"200", L"", L"400", false};
    struct Row {
        std::string own;
        const PlaceText* place;
        ShapeGeometry geometry;
        std::string then;
    };
    const Row rows[] = {
        {"", &layout, {}, ""}, // keeps inheriting
        {"", &layout, makeGeometry(L"1in", nullptr, nullptr, nullptr),
         xfrm("a", "914400", "200", "300", "400")},
        {"", &half, makeGeometry(L"1in", nullptr, nullptr, nullptr),
         xfrm("a", "914400", "200", "1234567", "400")},
        {"", nullptr, makeGeometry(nullptr, nullptr, L"1in", nullptr),
         xfrm("a", "0", "0", "914400", "1234567")},
        {"<a:noFill/>", nullptr, makeGeometry(L"1px", nullptr, nullptr, nullptr),
         "<a:noFill/>" + xfrm("a", "9525", "0", "1234567", "1234567")}, // always at the end
    };
    for (const Row& row : rows) {
        xercesc::DOMElement* shape = use(placeholder(row.own));
        placeExistingTextShape(shape, row.place, row.geometry);
        EXPECT_EQ(canonical(*findChild(shape, xml::kSpPr)), canonical("<p:spPr>" + row.then + "</p:spPr>"));
    }
}

} // namespace
