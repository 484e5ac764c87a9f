#include "tests/programs/classic/Templates.h"

#include "tests/support/TemplateBuilder.h"

namespace vellox::test {

namespace {

const std::string kPresentationType = "application/vnd.openxmlformats-officedocument.presentationml.";
const char kBackground[] =
    "<p:bg><p:bgPr><a:solidFill><a:srgbClr val='F0F4F8'/></a:solidFill><a:effectLst/></p:bgPr></p:bg>";

std::string ph(const std::string& attributes) {
    return "<p:ph " + attributes + "/>";
}

std::string title(int id, const std::string& spPr = place(600000, 300000, 11000000, 900000)) {
    return shape(id, "Title", ph("type='title'"), spPr);
}

std::string content(int id, const std::string& name, int idx, const std::string& spPr) {
    return shape(id, name, ph("idx='" + std::to_string(idx) + "'"), spPr);
}

std::string masterShapes() {
    return title(2) + shape(3, "Body", ph("type='body' idx='1'"), place(600000, 1400000, 11000000, 4500000));
}

// One layout for each kind of placeholder, with places of their own.
void addUsualLayouts(TemplateBuilder& builder) {
    builder.addLayout("Content",
                      title(2) + content(3, "Content", 1, place(600000, 1400000, 11000000, 4500000)));
    builder.addLayout("Two", title(2) + content(3, "Left", 1, place(600000, 1400000, 5000000, 4500000)) +
                                 content(5, "Right", 2, place(6500000, 1400000, 5000000, 4500000)));
    builder.addLayout("Pictures",
                      title(2) + shape(3, "Photo", ph("type='pic' idx='1'"), place(1, 2, 1905000, 1905000)) +
                          shape(4, "Clip", ph("type='clipArt' idx='2'"), place(100, 200, 300000, 9000000)) +
                          shape(5, "Caption", ph("type='body' idx='3'"), place(5, 6, 7000, 8000)));
    builder.addLayout("Table", title(2) + shape(3, "Table", ph("type='tbl' idx='1'"),
                                                place(600000, 1400000, 3000000, 4500000)));
    builder.addLayout("Opening", shape(2, "Title", ph("type='ctrTitle'")) +
                                     shape(3, "Subtitle", ph("type='subTitle' idx='1'")));
    builder.addLayout("Blank");
}

Template makePlain() {
    TemplateBuilder builder;
    builder.addMaster("Plain", masterShapes());
    addUsualLayouts(builder);
    return {L"plain", builder.build()};
}

// No place in the layout: it comes from the master's shape of the same id, or from nowhere.
Template makeInherited() {
    TemplateBuilder builder;
    builder.addMaster("Inherited", masterShapes() + shape(8, "Chart", ph("type='chart' idx='8'"),
                                                          place(10, 20, 3000, 4000)));
    builder.addLayout("By id", title(2, "") + content(3, "Content", 1, ""));
    builder.addLayout("By another id", title(12, "") + content(8, "Content", 1, "") +
                                           shape(13, "Table", ph("type='tbl' idx='2'")));
    builder.addLayout("Half a place",
                      title(2, "<a:xfrm><a:off x='5' y='6'/></a:xfrm>") +
                          shape(3, "Photo", ph("type='pic' idx='1'"), "<a:xfrm rot='60000'/>"));
    builder.addLayout("Filled", title(2, "<a:noFill/>") +
                                    content(3, "Content", 1, place(1, 2, 3, 4) + "<a:gradFill/>"));
    return {L"inherited", builder.build()};
}

// A background ahead of the tree hides its placeholders; behind it or on the master it doesn't.
Template makeBackgrounds() {
    TemplateBuilder builder;
    builder.addMaster("Designed", masterShapes()).background = kBackground;
    builder.addLayout("Hidden", title(2) + connectorShape(9, "Line")).background = kBackground;
    Page& picture = builder.addLayout("Picture behind",
                                      title(2) + content(3, "Content", 1, place(1, 2, 3000000, 4000000)));
    picture.shapes += pictureShape(10, "Logo", "rId5", place(7, 7, 7, 7)) + shape(11, "Slogan");
    picture.relations.push_back({"rId5", "image", "../media/logo.png"});
    Page& filled = builder.addLayout(
        "Filled", shape(2, "Title", ph("type='title'"), "<a:blipFill><a:blip r:embed='rId7'/></a:blipFill>"));
    filled.relations = {{"rId7", "image", "../media/logo.png"},
                        {"rId8", "hyperlink", "https://example.org/", true}};
    builder.addPart("ppt/media/logo.png", "image/png", makePng(20, 10));
    return {L"backgrounds", builder.build()};
}

// Several masters, two of one name, one without a theme; part names against the order of the list; layouts of
// one name.
Template makeMasters() {
    TemplateBuilder builder;
    builder.addMaster("Twin", masterShapes()).part = "ppt/slideMasters/z.xml";
    builder.addLayout("Shared", title(2) + content(3, "First", 1, place(1, 1, 1000, 1000)));
    builder.addLayout("Shared", title(2) + content(3, "Second", 1, place(2, 2, 2000, 2000)));
    builder.addMaster("Twin", masterShapes());
    builder.addLayout("Shared", title(2) + content(3, "Third", 1, place(3, 3, 3000, 3000)));
    builder.addLayout("Own", title(2));
    builder.addMaster("", "");
    builder.addLayout("Shared", shape(4, "Fourth", ph("type='body'")));
    builder.addMaster("Other", masterShapes()).part = "ppt/slideMasters/a.xml";
    builder.addLayout("Shared", title(2) + content(3, "Fifth", 1, ""));
    builder.addLayout("");
    return {L"masters", builder.build()};
}

// Date, footer and number and kinds that have no class of their own come along as they are; what is no
// placeholder doesn't.
Template makeFooters() {
    TemplateBuilder builder;
    builder.addMaster("Footers", masterShapes());
    std::string shapes = title(2);
    int id = 21;
    for (const char* type : {"dt", "ftr", "sldNum", "obj", "chart", "dgm", "media", "sldImg", "hdr"}) {
        shapes += shape(id, type, ph("type='" + std::string(type) + "' idx='" + std::to_string(id) + "'"));
        ++id;
    }
    shapes += connectorShape(40, "Line") +
              groupShape(41, "Group", shape(42, "Inner", ph("type='body' idx='9'"))) +
              chartShape(43, "Chart") + tableShape(44, "Fixed table", 1, 2) + shape(45, "Fixed text");
    builder.addLayout("Everything", shapes);
    builder.addLayout("Same names", shape(2, "Box", ph("type='title'")) + shape(2, "Box", ph("idx='1'")) +
                                        shape(3, "Box", ph("type='body' idx='2'")) +
                                        shape(4, "", ph("type='body' idx='3'")));
    return {L"footers", builder.build()};
}

// What stands on a layout beside its shapes, and what it says of itself.
Template makeCustom() {
    TemplateBuilder builder;
    builder.addMaster("Custom", masterShapes());
    Page& layout =
        builder.addLayout("Custom", title(2) + content(3, "Content", 1, place(1, 2, 300000, 400000)));
    layout.attributes =
        " type='obj' preserve='1' userDrawn='1' matchingName='m' showMasterSp='0' showMasterPhAnim='1'";
    layout.behindTree =
        "<p:custDataLst><p:tags r:id='rId9'/></p:custDataLst><p:extLst><p:ext uri='{x}'/></p:extLst>";
    layout.behindData = "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr><p:transition/><p:timing/>";
    layout.relations.push_back({"rId9", "tags", "../tags/tag1.xml"});
    builder.addPart("ppt/tags/tag1.xml", kPresentationType + "tags+xml", "<p:tagLst xmlns:p='p'/>");
    Page& slide = builder.addSlide("Custom slide", layout, title(2) + shape(9, "Free"));
    slide.attributes = " show='0'";
    slide.background = kBackground;
    slide.behindTree = "<p:custDataLst><p:tags r:id='rId9'/></p:custDataLst>";
    slide.behindData = "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr><p:timing/>";
    slide.relations.push_back({"rId9", "tags", "../tags/tag1.xml"});
    return {L"custom", builder.build()};
}

// Layouts as other programs write them: indented, without identities or a declaration for relationships,
// empty.
Template makeOdd() {
    TemplateBuilder builder;
    builder.addMaster("Odd", masterShapes());
    builder.addLayout("Indented", "\n   " + title(2) + "\n   <!-- a remark -->" +
                                      content(3, "Content", 1, "\n<a:noFill/>\n") + "\n");
    const std::string anonymous =
        "<p:sp><p:nvSpPr><p:cNvSpPr/><p:nvPr><p:ph type='body' idx='1'/></p:nvPr></p:nvSpPr>"
        "<p:spPr/><p:txBody><a:bodyPr/><a:p/></p:txBody></p:sp>";
    builder.addLayout("Anonymous", title(70) + anonymous + anonymous);
    builder.addLayout(
        "No bodies",
        "<p:sp><p:nvSpPr><p:cNvPr id='5' name='Bare'/><p:cNvSpPr/><p:nvPr><p:ph type='title'/></p:nvPr>"
        "</p:nvSpPr></p:sp><p:sp><p:nvSpPr><p:cNvPr id='6' name='No properties'/><p:cNvSpPr/><p:nvPr><p:ph/>"
        "</p:nvPr></p:nvSpPr><p:spPr/><p:txBody><a:lstStyle/></p:txBody></p:sp>");
    builder.addLayout("Undeclared").xml =
        "<p:sldLayout xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main' "
        "xmlns:p='http://schemas.openxmlformats.org/presentationml/2006/main'><p:cSld "
        "name='Undeclared'><p:spTree><p:nvGrpSpPr>"
        "<p:cNvPr id='1' name=''/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>" +
        title(2) + shape(3, "Photo", ph("type='pic'"), place(1, 2, 3000000, 4000000)) +
        "</p:spTree></p:cSld></p:sldLayout>";
    builder.addLayout("Other words", shape(3,
                                           "Gr\xC3\xB6\xC3\x9F"
                                           "e \xE2\x86\x92 &amp; &lt;b&gt;",
                                           ph("type='body' idx='1'")));
    return {L"odd", builder.build()};
}

// Slides with all kinds of shapes, nested groups, sections and notes.
Template makeFilled() {
    TemplateBuilder builder;
    builder.addMaster("Filled", masterShapes());
    builder.addLayout("Blank");
    Page& layout = builder.addLayout(
        "Content", title(2) + content(3, "Content", 1, place(600000, 1400000, 11000000, 4500000)) +
                       shape(7, "Photo", ph("type='pic' idx='2'"), place(0, 0, 900000, 900000)));
    Page& first = builder.addSlide("First", layout,
                                   title(2, "") + content(3, "Content", 1, "") +
                                       shape(30, "Free", "", place(1, 2, 3, 4)));
    first.relations = {{"rId2", "notesSlide", "../notesSlides/notesSlide1.xml"},
                       {"rId7", "hyperlink", "https://example.org/", true}};
    Page& second = builder.addSlide(
        "Second", layout,
        title(2) + pictureShape(31, "Picture", "rId4", place(10, 20, 1905000, 1905000)) +
            tableShape(32, "Table", 2, 3) + chartShape(33, "Chart") + connectorShape(34, "Line"));
    second.relations.push_back({"rId4", "image", "../media/image1.png"});
    builder.addSlide(
        "Third", layout,
        groupShape(40, "Group",
                   shape(41, "Inner") +
                       groupShape(42, "Deeper", shape(43, "Deep") + tableShape(44, "Table", 1, 1))) +
            shape(3, "Moved", ph("idx='1'"),
                  place(9, 8, 7, 6) + "<a:solidFill><a:srgbClr val='123456'/></a:solidFill>"));
    builder.addSlide("", layout);
    builder.addSection("one", 1, 2);
    builder.addSection("two", 3, 4);
    builder.addSection("none", 1, 0);
    builder.addTableStyle("Striped", "{11111111-1111-1111-1111-111111111111}");
    builder.addTableStyle("Striped", "{22222222-2222-2222-2222-222222222222}");
    builder.addPart("ppt/media/image1.png", "image/png", makePng(30, 30));
    builder.addPart("ppt/notesSlides/notesSlide1.xml", kPresentationType + "notesSlide+xml",
                    "<p:notes xmlns:p='p'/>",
                    {{"rId1", "slide", "../slides/slide1.xml"},
                     {"rId2", "notesMaster", "../notesMasters/notesMaster1.xml"}});
    builder.addPart("ppt/notesMasters/notesMaster1.xml", kPresentationType + "notesMaster+xml",
                    "<p:notesMaster xmlns:p='p'/>");
    builder.addToPresentation("<p:notesMasterIdLst><p:notesMasterId r:id='rIdNotes'/></p:notesMasterIdLst>",
                              {{"rIdNotes", "notesMaster", "notesMasters/notesMaster1.xml"}});
    return {L"filled", builder.build()};
}

// A slide show without slides: the list is made behind those of masters.
Template makeShow() {
    TemplateBuilder builder;
    builder.setContentType(kPresentationType + "slideshow.main+xml");
    builder.addMaster("Show", masterShapes());
    builder.addLayout("Content", title(2) + content(3, "Content", 1, ""));
    builder.addPart("ppt/handoutMasters/handoutMaster1.xml", kPresentationType + "handoutMaster+xml",
                    "<p:handoutMaster xmlns:p='p'/>");
    builder.addToPresentation(
        "<p:handoutMasterIdLst><p:handoutMasterId r:id='rIdHandout'/></p:handoutMasterIdLst>",
        {{"rIdHandout", "handoutMaster", "handoutMasters/handoutMaster1.xml"}});
    return {L"show", builder.build(), L"ppsx"};
}

// Slide parts whose numbers have gaps and aren't in order, and one that nobody lists.
Template makeGaps() {
    TemplateBuilder builder;
    builder.addMaster("Gaps", masterShapes());
    Page& layout = builder.addLayout("Content", title(2) + content(3, "Content", 1, place(1, 2, 3000, 4000)));
    builder.addSlide("Seventh", layout, title(2)).part = "ppt/slides/slide7.xml";
    builder.addSlide("Third", layout, title(2)).part = "ppt/slides/slide3.xml";
    builder.addPart("ppt/slides/slide4.xml", kPresentationType + "slide+xml", "<p:sld xmlns:p='p'/>");
    Parts parts = builder.build();
    parts["ppt/slides/_rels/slide5.xml.rels"] =
        "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'/>";
    return {L"gaps", parts, L"potx"};
}

} // namespace

std::vector<Template> makeTemplates() {
    return {makePlain(),
            makeInherited(),
            makeBackgrounds(),
            makeMasters(),
            makeFooters(),
            makeCustom(),
            makeOdd(),
            makeFilled(),
            makeShow(),
            makeGaps(),
            {L"default", getTemplateParts()}};
}

} // namespace vellox::test
