// Charts of the template that are given data.

#include "tests/support/DeckTest.h"
#include "tests/support/TemplateBuilder.h"
#include "vellox/ppt/tree/Chart.h"

#include <cmath>
#include <limits>
#include <set>

using namespace vellox;
using namespace vellox::ppt;
using namespace vellox::test;

namespace {

using Texts = std::vector<std::string>;

const std::string kChartType = "application/vnd.openxmlformats-officedocument.drawingml.chart+xml";
const std::string kWorkbookType = "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet";
const std::string kChart = "ppt/charts/chart1.xml", kWorkbook = "ppt/embeddings/book.xlsx";

std::string ser(int index, const std::string& name, const std::string& look = "",
                const std::string& points = "") {
    const std::string number = std::to_string(index);
    return "<c:ser><c:idx val='" + number + "'/><c:order val='" + number +
           "'/><c:tx><c:strRef><c:f>'My Sheet'!$B$1</c:f><c:strCache><c:ptCount val='1'/><c:pt "
           "idx='0'><c:v>" +
           name + "</c:v></c:pt></c:strCache></c:strRef></c:tx>" + look + points +
           "<c:val><c:numRef><c:f>'My "
           "Sheet'!$B$2</c:f><c:numCache><c:formatCode>0.0</c:formatCode><c:ptCount val='1'/>"
           "<c:pt idx='0'><c:v>7</c:v></c:pt></c:numCache></c:numRef></c:val></c:ser>";
}

std::string fill(const std::string& color) {
    return "<c:spPr><a:solidFill><a:schemeClr val='" + color + "'/></a:solidFill></c:spPr>";
}

std::string chartXml(const std::string& plot, const std::string& behind = "<c:externalData r:id='rId7'/>") {
    return "<c:chartSpace xmlns:c='http://schemas.openxmlformats.org/drawingml/2006/chart'"
           " xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main'"
           " xmlns:r='http://schemas.openxmlformats.org/officeDocument/2006/"
           "relationships'><c:chart><c:plotArea>" +
           plot + "</c:plotArea></c:chart>" + behind + "</c:chartSpace>";
}

std::string columns(const std::string& series) {
    return "<c:barChart><c:barDir val='col'/><c:grouping val='clustered'/>" + series +
           "<c:gapWidth val='50'/><c:axId val='1'/><c:axId val='2'/></c:barChart>"
           "<c:catAx><c:axId val='1'/><c:scaling/><c:axPos val='b'/><c:crossAx val='2'/></c:catAx>"
           "<c:valAx><c:axId val='2'/><c:scaling/><c:axPos val='l'/><c:crossAx val='1'/></c:valAx>";
}

std::string frame(const std::string& name, const std::string& id) {
    return "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id='5' name='" + name +
           "'/><p:cNvGraphicFramePr/><p:nvPr/></p:nvGraphicFramePr><p:xfrm><a:off x='0' y='0'/><a:ext cx='9' "
           "cy='9'/>"
           "</p:xfrm><a:graphic><a:graphicData uri='http://schemas.openxmlformats.org/drawingml/2006/chart'>"
           "<c:chart xmlns:c='http://schemas.openxmlformats.org/drawingml/2006/chart' r:id='" +
           id + "'/></a:graphicData></a:graphic></p:graphicFrame>";
}

class ChartWritersTest : public DeckTest {
protected:
    /// A deck with one slide, on which "Sales" is this chart.
    Slide useChart(const std::string& xml, const std::string& type = kChartType) {
        TemplateBuilder builder;
        builder.addMaster("Theme");
        Page& layout = builder.addLayout("Layout");
        Page& slide = builder.addSlide("", layout, frame("Sales", "rId9") + frame("Lost", "rId1"));
        slide.relations = {{"rId9", "chart", "/" + kChart}};
        builder.addPart(kChart, type, xml, {{"rId7", "package", "/" + kWorkbook}});
        builder.addPart(kWorkbook, kWorkbookType, "a workbook");
        useTemplate(builder.build());
        deck.open();
        return *Slide::cast(deck.getChildren().at(0));
    }
    std::string chartOf(const Parts& parts) { return parts.at(kChart); }
    Parts openWorkbook(const std::string& bytes) {
        writeFile(folder / L"book.xlsx", bytes);
        return readParts(folder / L"book.xlsx");
    }
};

const Chart::Series kSeries = {{L"North & \"East\"", {1.5, 2}}, {L"B", {std::nan(""), 1e-7}}};

TEST_F(ChartWritersTest, ChartAndWorkbookHoldTheData) {
    Slide slide = useChart(chartXml(columns(ser(0, "A", fill("accent3")) + ser(1, "B"))));
    EXPECT_EQ(slide.getChartNames(), (std::vector<std::wstring>{L"Sales", L"Lost"}));
    slide.chart(L"Sales").setData({L"Spring", L"Summer"}, kSeries);
    const Parts& parts = close();
    const std::string chart = chartOf(parts);
    EXPECT_EQ(textsOf(chart, "c:f"),
              (Texts{"'My Sheet'!$B$1", "'My Sheet'!$A$2:$A$3", "'My Sheet'!$B$2:$B$3", "'My Sheet'!$C$1",
                     "'My Sheet'!$A$2:$A$3", "'My Sheet'!$C$2:$C$3"}));
    EXPECT_EQ(textsOf(chart, "c:v"),
              (Texts{"North & \"East\"", "Spring", "Summer", "1.5", "2", "B", "Spring", "Summer", "1e-07"}));
    EXPECT_EQ(valuesOf(chart, "c:ptCount", "val"), (Texts{"1", "2", "2", "1", "2", "2"}));
    EXPECT_EQ(textsOf(chart, "c:formatCode"), (Texts{"0.0", "0.0"}));
    EXPECT_EQ(valuesOf(chart, "a:schemeClr", "val"), Texts{"accent3"}); // "B" keeps its own look
    const Parts book = openWorkbook(parts.at(kWorkbook));
    EXPECT_EQ(valuesOf(book.at("xl/workbook.xml"), "sheet", "name"), Texts{"My Sheet"});
    EXPECT_EQ(textsOf(book.at("xl/sharedStrings.xml"), "t"),
              (Texts{"Spring", "Summer", "North & \"East\"", "B"}));
    const std::string sheet = book.at("xl/worksheets/sheet1.xml");
    EXPECT_EQ(valuesOf(sheet, "c", "r"), (Texts{"B1", "C1", "A2", "B2", "A3", "B3", "C3"}));
}

// Looks go by names, and where there are none any more, on with the colours of the theme.
TEST_F(ChartWritersTest, SeriesComeAndGo) {
    const std::string own = "<c:extLst><c:ext uri='u'/></c:extLst>";
    std::string last = ser(4, "B", fill("accent2"), "<c:dPt><c:idx val='0'/></c:dPt>");
    last.insert(last.size() - 8, own);
    Slide slide = useChart(chartXml(columns(ser(0, "A", fill("accent1")) + last)));
    slide.chart(L"Sales").setData(
        {L"x"}, {{L"B", {1}}, {L"C", {2}}, {L"D", {3}}, {L"E", {4}}, {L"F", {5}}, {L"G", {6}}, {L"H", {7}}});
    const std::string chart = chartOf(close());
    EXPECT_EQ(valuesOf(chart, "c:order", "val"), (Texts{"0", "1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(valuesOf(chart, "a:schemeClr", "val"),
              (Texts{"accent2", "accent1", "accent3", "accent4", "accent5", "accent6", "accent1"}));
    EXPECT_EQ(valuesOf(chart, "a:lumMod", "val"), Texts{"60000"}); // the second round
    const Texts indices = valuesOf(chart, "c:idx", "val");
    EXPECT_EQ(std::set<std::string>(indices.begin() + 2, indices.end()).size(), indices.size() - 2);
    EXPECT_EQ(findAll(chart, "c:extLst").size(), 1u); // which says who the series is
    useChart(chartXml(columns(ser(0, "A") + ser(1, "B"))));
    Slide::cast(deck.getChildren().at(0))
        ->chart(L"Sales")
        .setData(std::vector<double>{2024, 2025}, {{L"C", {1, 2}}});
    const std::string less = chartOf(close());
    EXPECT_EQ(findAll(less, "c:ser").size(), 1u);
    EXPECT_EQ(findAll(less, "c:numRef").size(), 2u); // years are numbers
}

TEST_F(ChartWritersTest, EachKindHasItsPlaces) {
    const struct {
        const char* kind;
        const char *categories, *values;
    } rows[] = {{"lineChart", "c:cat", "c:val"},      {"areaChart", "c:cat", "c:val"},
                {"pieChart", "c:cat", "c:val"},       {"doughnutChart", "c:cat", "c:val"},
                {"scatterChart", "c:xVal", "c:yVal"}, {"radarChart", "c:cat", "c:val"}};
    for (const auto& row : rows) {
        const std::string kind = row.kind;
        std::string series = ser(0, "A");
        if (kind == "scatterChart")
            for (std::size_t at; (at = series.find("c:val>")) != std::string::npos;)
                series.replace(at, 6, "c:yVal>");
        const std::string head = kind == "scatterChart" ? "<c:scatterStyle val='lineMarker'/>"
                                 : kind == "radarChart" ? "<c:radarStyle val='marker'/>"
                                 : kind == "lineChart"  ? "<c:grouping val='standard'/>"
                                                        : "";
        Slide slide = useChart(chartXml("<c:" + kind + ">" + head + series + "</c:" + kind + ">"));
        slide.chart(L"Sales").setData(std::vector<double>{1, 2, 3}, {{L"A", {1, 4, 9}}});
        deck.close();
        const std::string chart = readParts(output).at(kChart);
        EXPECT_EQ(textsOf(findOne("<r xmlns:c='c'>" + findOne(chart, row.categories) + "</r>", "c:numCache"),
                          "c:v"),
                  (Texts{"1", "2", "3"}))
            << kind;
        EXPECT_EQ(textsOf(findOne(chart, row.values), "c:v"), (Texts{"1", "4", "9"})) << kind;
    }
}

// The pieces of a pie that were coloured one by one.
TEST_F(ChartWritersTest, PointsComeAndGo) {
    std::string points;
    for (int i = 0; i < 2; ++i)
        points += "<c:dPt><c:idx val='" + std::to_string(i) + "'/>" + fill("accent" + std::to_string(i + 1)) +
                  "</c:dPt>";
    points += "<c:dPt/>"; // of no point
    const std::string pie = "<c:pieChart><c:varyColors val='1'/>" + ser(0, "A", "", points) + "</c:pieChart>";
    useChart(chartXml(pie)).chart(L"Sales").setData({L"a", L"b", L"c"}, {{L"A", {1, 2, 3}}});
    EXPECT_EQ(valuesOf(chartOf(close()), "a:schemeClr", "val"), (Texts{"accent1", "accent2", "accent3"}));
    useChart(chartXml(pie)).chart(L"Sales").setData({L"a"}, {{L"A", {1}}});
    EXPECT_EQ(valuesOf(chartOf(close()), "a:schemeClr", "val"), Texts{"accent1"});
}

TEST_F(ChartWritersTest, WhatCantBeShownIsRefused) {
    Slide slide = useChart(chartXml(columns(ser(0, "A"))));
    EXPECT_EQ(errorOf([&] { slide.chart(L"Sale"); }), "ppt_error:noSuchChart Sale \"Sales\", \"Lost\"");
    Chart chart = slide.chart(L"Sales");
    EXPECT_EQ(errorOf([&] { chart.setData({L"a"}, {}); }), "ppt_error:chartDataEmpty");
    EXPECT_EQ(errorOf([&] { chart.setData({L"a"}, {{L"A", {1, 2}}}); }), "ppt_error:chartDataRagged A 2 1");
    EXPECT_EQ(errorOf([&] {
                  chart.setData({L"a"}, {{L"A", {std::numeric_limits<double>::infinity()}}});
              }),
              "ppt_error:chartValueNoNumber A 1 inf");
    EXPECT_EQ(
        errorOf([&] {
            chart.setData(boost::make_shared<MemoryTable>(
                2u, std::initializer_list<HvContentPtr>{text(L""), text(L"A"), text(L"a"), text(L"much")}));
        }),
        "ppt_error:chartValueNoNumber A 1 much");
    slide.chart(L"Lost").setData({L"a"}, {{L"A", {1}}});
    EXPECT_EQ(errorOf([&] { deck.close(); }), "ppt_error:unsupportedChart 1 Lost -");
}

// A copy that was made before is as it was, and has a chart and a workbook of its own.
TEST_F(ChartWritersTest, CopiesHaveChartsOfTheirOwn) {
    Slide slide = useChart(chartXml(columns(ser(0, "A"))));
    Slide plain = deck.copy(slide);
    slide.chart(L"Sales").setData({L"a"}, {{L"First", {1}}});
    deck.copy(slide).chart(L"Sales").setData({L"b"}, {{L"Second", {2}}});
    deck.copy(slide);
    std::multiset<std::string> names;
    std::size_t workbooks = 0;
    for (const auto& [name, content] : close()) {
        if (name.compare(0, 16, "ppt/charts/chart") == 0)
            names.insert(textsOf(content, "c:v").at(0));
        workbooks += name.compare(0, 15, "ppt/embeddings/") == 0;
    }
    EXPECT_EQ(names, (std::multiset<std::string>{"A", "First", "First", "Second"}));
    EXPECT_EQ(workbooks, 4u);
}

// Whatever stands in a chart that somebody made.
TEST_F(ChartWritersTest, HostileChartsAreErrorsOrCharts) {
    const std::string good = chartXml(columns(ser(0, "A")));
    const struct {
        std::string xml;
        const char* error;
    } rows[] = {{"<c:chartSpace", "ppt_error:partDOMBuildError"},
                {"<!DOCTYPE c [<!ENTITY e 'e'>]>" + good, "ppt_error:partDOMBuildError"},
                {"<x/>", "ppt_error:unsupportedChart"},
                {chartXml("<c:bubbleChart/>"), "ppt_error:unsupportedChart"},
                {chartXml("<c:barChart/>", ""), "nothing"},
                {chartXml("<c:barChart><c:ser/><c:ser><c:idx val='-1'/><c:idx/><c:tx/></c:ser></c:barChart>"),
                 "nothing"}};
    for (const auto& row : rows) {
        useChart(row.xml).chart(L"Sales").setData({L"a", L"b"},
                                                  {{L"A", {1, 2}}, {L"B", {1, 2}}, {L"C", {1, 2}}});
        EXPECT_EQ(errorOf([&] { deck.close(); }).substr(0, std::string(row.error).size()), row.error)
            << row.xml;
    }
    useChart(good, "text/plain").chart(L"Sales").setData({L"a"}, {{L"A", {1}}});
    EXPECT_EQ(errorOf([&] { deck.close(); }), "ppt_error:unsupportedChart 1 Sales -");
    // Without a workbook it gets one.
    useChart(chartXml(columns(ser(0, "A")), "")).chart(L"Sales").setData({L"a"}, {{L"A", {1}}});
    const Parts& parts = close();
    EXPECT_EQ(valuesOf(chartOf(parts), "c:externalData", "r:id").size(), 1u);
    EXPECT_EQ(openWorkbook(parts.at("ppt/embeddings/Workbook1.xlsx")).count("xl/workbook.xml"), 1u);
}

} // namespace
