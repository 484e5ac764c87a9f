// What an inspection tells, and what a healing changes.

#include "vellox/doctor/TemplateDoctor.h"

#include "vellox/doctor/DoctorCodes.h"
#include "vellox/doctor/ReportJson.h"
#include "vellox/doctor/SpeakingNames.h"

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Lines = std::vector<std::wstring>;

class TemplateDoctorTest : public DeckTest {
protected:
    std::wstring write(const Parts& parts) {
        const std::wstring path = folder / L"inspected.pptx";
        writeParts(path, parts);
        return path;
    }

    /// "code shape" of each finding, but for fonts, which hang on the machine.
    static Lines tell(const std::vector<Finding>& findings) {
        Lines lines;
        for (const Finding& finding : findings)
            if (finding.code != "missingFont")
                lines.push_back(fromUtf8(finding.code) + L" " + finding.shape);
        return lines;
    }
};

/// A layout with something of everything that is amiss.
Parts makeSick() {
    TemplateBuilder builder;
    builder.addMaster("Same",
                      shape(2, "Title Placeholder 1", "<p:ph type='title'/>", place(10, 20, 3000, 400)));
    builder
        .addLayout(
            "Own&#xA;layout",
            shape(2, "Title 1", "<p:ph type='title'/>") +
                shape(3, "Content Placeholder 2", "<p:ph idx='1' type='obj'/>", place(0, 1000, 1000, 900)) +
                shape(4, "Content Placeholder 3", "<p:ph idx='1' type='obj'/>",
                      place(2000, 1000, 1000, 900)) +
                shape(5, " Padded", "<p:ph type='pic' idx='9'/>", place(0, 3000, 1000, 900)) +
                shape(6, "Date", "<p:ph type='dt' idx='10'/>", "", "1 April 1999"))
        .attributes = " showMasterSp='0'";
    builder.addLayout("Twice");
    Page& second = builder.addLayout("Twice", shape(2, "Chart 4", "<p:ph type='chart' idx='1'/>"));
    second.background = "<p:bg><p:bgPr><a:noFill/><a:effectLst/></p:bgPr></p:bg>";
    builder.addMaster("Same");
    builder.addLayout("Used");
    return builder.build();
}

TEST_F(TemplateDoctorTest, TellsWhatStandsInTheWay) {
    const TemplateReport report = inspectTemplate(write(makeSick()));
    EXPECT_EQ(
        tell(report.findings),
        (Lines{L"multilineName ", L"hidesMasterShapes ", L"inheritedPlace Title 1",
               L"unfilledByClassic Content Placeholder 2", L"equalPlaceholders Content Placeholder 3",
               L"unfilledByClassic Content Placeholder 3", L"paddedName  Padded", L"fixedDate Date",
               L"hiddenFromClassic ", L"noPlace Chart 4", L"duplicateLayoutName ", L"duplicateMasterName "}));
    ASSERT_EQ(report.masters.size(), 2u);
    EXPECT_EQ(report.masters[1].handle, L"Same (2)");
    const LayoutReport& layout = report.masters[0].layouts.at(0);
    const PlaceholderReport& title = layout.placeholders.at(0);
    EXPECT_EQ(title.kind, "TextBoxPlaceholder");
    ASSERT_TRUE(title.box && title.isBoxInherited);
    EXPECT_EQ(title.box->cx, 3000);
    EXPECT_EQ(layout.placeholders.at(4).kind, ""); // the date
    EXPECT_EQ(report.masters[0].layouts.at(2).handle, L"Twice (2)");
    EXPECT_NE(toJson(report).find("\"name\": \"Own\\u000alayout\""), std::string::npos);
}

TEST_F(TemplateDoctorTest, HealsOnceAndForAll) {
    const std::wstring sick = write(makeSick()), healed = folder / L"healed.pptx";
    EXPECT_EQ(tell(healTemplate(sick, healed)),
              (Lines{L"renamedMaster ", L"renamedLayout ", L"usualType Content Placeholder 2",
                     L"usualType Content Placeholder 3", L"renamedPlaceholder Title",
                     L"renamedPlaceholder Left Content", L"renamedPlaceholder Right Content",
                     L"renamedPlaceholder Padded", L"givenPlace Title", L"givenIndex Right Content",
                     L"renamedLayout ", L"renamedPlaceholder Chart"}));
    EXPECT_EQ(tell(inspectTemplate(healed).findings),
              (Lines{L"hidesMasterShapes ", L"fixedDate Date", L"hiddenFromClassic ", L"noPlace Chart"}));
    EXPECT_EQ(tell(healTemplate(healed, healed)), Lines());
    const Parts parts = readParts(healed);
    useTemplate(parts);
    Slide slide = deck.add(L"Own layout");
    slide.replace(L"Right Content", L"by classic");
    close();
    EXPECT_EQ(runsOf(slideXml(1)), "by classic");
}

// Slides are tied to their layouts by indexes.
TEST_F(TemplateDoctorTest, LeavesIndexesThatSlidesUse) {
    TemplateBuilder builder;
    builder.addMaster("Master");
    const std::string twins = shape(2, "A", "<p:ph type='body' idx='1'/>", place(0, 0, 10, 10)) +
                              shape(3, "B", "<p:ph type='body' idx='1'/>", place(0, 0, 10, 10));
    const Page& used = builder.addLayout("Used", twins);
    builder.addLayout("Unused", twins);
    builder.addSlide("Slide", used);
    EXPECT_EQ(tell(healTemplate(write(builder.build()), folder / L"healed.pptx")), Lines{L"givenIndex B"});
}

TEST_F(TemplateDoctorTest, RefusesWhatIsNoTemplate) {
    const std::wstring file = folder / L"none.pptx", present = folder / L"output.pptx";
    writeFile(file, "no package");
    writeFile(present, "precious");
    for (const std::wstring& path : {file, folder / L"missing.pptx", std::wstring(folder / L"")}) {
        EXPECT_EQ(errorOf([&] { inspectTemplate(path); }).substr(0, 24), "ppt_error:cannotOpenFile");
        EXPECT_EQ(errorOf([&] { healTemplate(path, present); }), errorOf([&] { inspectTemplate(path); }));
    }
    TemplateBuilder builder;
    builder.setContentType("application/xml");
    const std::wstring other = write(builder.build());
    EXPECT_EQ(errorOf([&] { inspectTemplate(other); }).substr(0, 25), "ppt_error:invalidTemplate");
    EXPECT_EQ(errorOf([&] { healTemplate(other, present); }).substr(0, 25), "ppt_error:invalidTemplate");
    EXPECT_EQ(readFile(present), "precious");
}

TEST(SpeakingNames, SayWherePlaceholdersStand) {
    const auto make = [](const wchar_t* name, const wchar_t* type, BoxEmu box) {
        PlaceholderReport placeholder;
        placeholder.name = name;
        placeholder.type = type;
        placeholder.box = box;
        return placeholder;
    };
    std::vector<PlaceholderReport> grid;
    for (const long long y : {100, 205, 300}) // the middle row isn't quite straight
        for (const long long x : {0, 100, 200})
            grid.push_back(make(L"Picture 1", L"pic", {x, y, 90, 90}));
    grid.push_back(make(L"Kunde", L"body", {0, 0, 10, 10}));
    grid.push_back(make(L"Untertitel 3", L"subTitle", {0, 0, 10, 10}));
    EXPECT_EQ(
        makeSpeakingNames(grid),
        (Lines{L"Upper Left Picture", L"Upper Middle Picture", L"Upper Right Picture", L"Middle Left Picture",
               L"Center Picture", L"Middle Right Picture", L"Lower Left Picture", L"Lower Middle Picture",
               L"Lower Right Picture", L"Kunde", L"Subtitle"}));
    // One upon the other, and a name that is taken.
    EXPECT_EQ(makeSpeakingNames(
                  {make(L"Text 1", L"body", {0, 0, 10, 10}), make(L"Text 2", L"body", {0, 0, 10, 10})}),
              (Lines{L"Text", L"Text (2)"}));
    EXPECT_EQ(
        makeSpeakingNames({make(L"", L"body", {0, 0, 10, 10}), make(L"", L"body", {0, 0, 0, 0})}).size(), 2u);
    EXPECT_EQ(makeSpeakingNames({}), Lines());
}

TEST(DoctorCodes, AreInTheDocuments) {
    const std::string page = readFile(fromUtf8(SOURCE_FOLDER "/docs/doctor.md"));
    for (const DoctorCode* code : doctor::kCodes)
        EXPECT_NE(page.find("`" + std::string(code->code) + "`"), std::string::npos) << code->code;
}

} // namespace
