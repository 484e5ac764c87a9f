#include "tests/support/Mutations.h"

#include <boost/regex.hpp>

#include <stdexcept>

namespace vellox::test {

namespace {

const std::string kRelationshipTypes = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
const std::string kPml = "application/vnd.openxmlformats-officedocument.presentationml.";

std::string relationship(const std::string& id, const std::string& type, const std::string& target,
                         bool isExternal = false) {
    return "<Relationship Id=\"" + id + "\" Type=\"" + kRelationshipTypes + type + "\" Target=\"" + target +
           "\"" + (isExternal ? " TargetMode=\"External\"/>" : "/>");
}

std::string relationships(const std::string& rows) {
    return "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">" + rows +
           "</Relationships>";
}

const char kSlideHead[] =
    "<p:sld xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" "
    "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
    "xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\" "
    "xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\" "
    "xmlns:p14=\"http://schemas.microsoft.com/office/powerpoint/2010/main\" mc:Ignorable=\"p14\">"
    "<p:cSld><p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>"
    "<p:grpSpPr/>";
const char kSlideTail[] = "</p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr>";

const char kTextShape[] =
    "<p:sp><p:nvSpPr><p:cNvPr id=\"2\" name=\"Words\"/><p:cNvSpPr/><p:nvPr/></p:nvSpPr>"
    "<p:spPr><a:xfrm rot=\"600000\"><a:off x=\"-100\" y=\"200\"/><a:ext cx=\"300\" cy=\"400\"/></a:xfrm>"
    "<a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom><a:solidFill><a:srgbClr val=\"00FF7f\">"
    "<a:alpha val=\"50%\"/></a:srgbClr></a:solidFill><a:ln w=\"12700\"><a:noFill/></a:ln></p:spPr>"
    "<p:txBody><a:bodyPr wrap=\"square\" lIns=\"0\"><a:spAutoFit/></a:bodyPr><a:lstStyle/>"
    "<a:p><a:pPr marL=\"0\" lvl=\"1\" algn=\"ctr\"><a:lnSpc><a:spcPct val=\"90000\"/></a:lnSpc><a:buNone/>"
    "</a:pPr><a:r><a:rPr lang=\"en-US\" sz=\"1800\" b=\"1\" u=\"sng\" p14:new=\"1\"><a:solidFill>"
    "<a:schemeClr val=\"accent1\"/></a:solidFill><a:latin typeface=\"Arial\" pitchFamily=\"34\" "
    "charset=\"0\"/>"
    "<a:hlinkClick r:id=\"rId3\"/></a:rPr><a:t>there</a:t></a:r><a:br/>"
    "<a:fld id=\"{B6F15528-21DE-4FAA-801E-634DDDAF4B2B}\" type=\"slidenum\"><a:rPr/><a:t>1</a:t></a:fld>"
    "<a:endParaRPr sz=\"1200\"/></a:p></p:txBody></p:sp>";
const char kPicture[] =
    "<p:pic><p:nvPicPr><p:cNvPr id=\"3\" name=\"Picture\"/><p:cNvPicPr><a:picLocks noChangeAspect=\"1\"/>"
    "</p:cNvPicPr><p:nvPr/></p:nvPicPr><p:blipFill><a:blip "
    "r:embed=\"rId2\"/><a:stretch><a:fillRect/></a:stretch>"
    "</p:blipFill><p:spPr><a:xfrm><a:off x=\"0\" y=\"0\"/><a:ext cx=\"9\" cy=\"9\"/></a:xfrm>"
    "<a:prstGeom prst=\"ellipse\"><a:avLst/></a:prstGeom></p:spPr></p:pic>";
const char kConnector[] =
    "<p:cxnSp><p:nvCxnSpPr><p:cNvPr id=\"4\" name=\"Line\"/><p:cNvCxnSpPr><a:stCxn id=\"2\" idx=\"0\"/>"
    "<a:endCxn id=\"3\" idx=\"1\"/></p:cNvCxnSpPr><p:nvPr/></p:nvCxnSpPr><p:spPr><a:xfrm flipH=\"1\">"
    "<a:off x=\"5\" y=\"5\"/><a:ext cx=\"1\" cy=\"1\"/></a:xfrm><a:prstGeom "
    "prst=\"line\"><a:avLst/></a:prstGeom>"
    "</p:spPr></p:cxnSp>";
// The branches of an alternative may use one number.
const char kAlternative[] =
    "<mc:AlternateContent><mc:Choice Requires=\"p14\"><p:contentPart p14:bwMode=\"auto\" r:id=\"rId2\">"
    "<p14:nvContentPartPr><p14:cNvPr id=\"5\" "
    "name=\"Ink\"/></p14:nvContentPartPr></p:contentPart></mc:Choice>"
    "<mc:Fallback><p:pic><p:nvPicPr><p:cNvPr id=\"5\" name=\"Ink\"/><p:cNvPicPr/><p:nvPr/></p:nvPicPr>"
    "<p:blipFill><a:blip "
    "r:embed=\"rId2\"/></p:blipFill><p:spPr/></p:pic></mc:Fallback></mc:AlternateContent>";
const char kTiming[] =
    "<p:timing><p:tnLst><p:par><p:cTn id=\"1\" dur=\"indefinite\" nodeType=\"tmRoot\"><p:childTnLst><p:set>"
    "<p:cBhvr><p:cTn id=\"2\" dur=\"1\"/><p:tgtEl><p:spTgt spid=\"2\"/></p:tgtEl><p:attrNameLst>"
    "<p:attrName>style.visibility</p:attrName></p:attrNameLst></p:cBhvr><p:to><p:strVal "
    "val=\"visible\"/></p:to>"
    "</p:set></p:childTnLst></p:cTn></p:par></p:tnLst></p:timing>";

const char kTable[] =
    "<p:graphicFrame><p:nvGraphicFramePr><p:cNvPr id=\"2\" name=\"Table\"/><p:cNvGraphicFramePr/><p:nvPr/>"
    "</p:nvGraphicFramePr><p:xfrm><a:off x=\"1\" y=\"1\"/><a:ext cx=\"30\" cy=\"30\"/></p:xfrm><a:graphic>"
    "<a:graphicData uri=\"http://schemas.openxmlformats.org/drawingml/2006/table\"><a:tbl><a:tblPr "
    "firstRow=\"1\"/>"
    "<a:tblGrid><a:gridCol w=\"10\"/><a:gridCol w=\"10\"/><a:gridCol w=\"10\"/></a:tblGrid>"
    "<a:tr h=\"10\"><a:tc gridSpan=\"2\" rowSpan=\"2\">B</a:tc><a:tc rowSpan=\"2\" "
    "hMerge=\"1\">B</a:tc><a:tc>B</a:tc></a:tr>"
    "<a:tr h=\"10\"><a:tc gridSpan=\"2\" vMerge=\"1\">B</a:tc><a:tc hMerge=\"1\" "
    "vMerge=\"1\">B</a:tc><a:tc>B</a:tc></a:tr>"
    "<a:tr h=\"10\"><a:tc>B</a:tc><a:tc>B</a:tc><a:tc>B</a:tc></a:tr></a:tbl></a:graphicData></a:graphic>"
    "</p:graphicFrame>";
const char kCellBody[] = "<a:txBody><a:bodyPr/><a:lstStyle/><a:p><a:endParaRPr/></a:p></a:txBody>"
                         "<a:tcPr marL=\"0\" anchor=\"ctr\"><a:noFill/></a:tcPr>";

const char kSections[] =
    "<p:extLst><p:ext uri=\"{521415D9-36F7-43E2-AB2F-B90AF26B5E84}\">"
    "<p14:sectionLst xmlns:p14=\"http://schemas.microsoft.com/office/powerpoint/2010/main\">"
    "<p14:section name=\"All\" id=\"{B6F15528-21DE-4FAA-801E-634DDDAF4B2B}\"><p14:sldIdLst>"
    "<p14:sldId id=\"256\"/><p14:sldId "
    "id=\"257\"/></p14:sldIdLst></p14:section></p14:sectionLst></p:ext></p:extLst>";

void insertBefore(std::string& text, const std::string& place, const std::string& addition) {
    const std::size_t at = text.find(place);
    if (at == std::string::npos)
        throw std::runtime_error("there is no " + place);
    text.insert(at, addition);
}

// clang-format off
const std::vector<Mutation> kMutations = {
    {"missingElement", "slides/slide\\d", "<p:nvPr/>", ""},
    {"missingElement", "slides/slide\\d", "<a:bodyPr[^>]*/>", ""},
    {"missingElement", "slides/slide\\d", "<p:spPr/>|<a:p><a:endParaRPr/></a:p>|<p:cNvPicPr/>", ""},
    {"missingElement", "slides/slide\\d", "<a:blip [^>]*/>(<a:stretch>)|<p:grpSpPr/>|<a:t>there</a:t>", "$1"},
    {"missingElement", "slideMasters/.*1.xml$", "<p:clrMap [^>]*/>", ""},
    {"missingElement", "slideLayouts/[^_]*$", "<p:cNvPr [^>]*/>", ""},
    {"missingElement", "presentation.xml$", "<p:notesSz [^>]*/>", ""},
    {"missingElement", "theme1.xml$", "<a:accent4>[\\s\\S]*?</a:accent4>", ""},
    {"elementOrder", "(slides|slideLayouts)/slide[^_]*$", "(<a:off [^>]*/>)(\\s*<a:ext [^>]*/>)", "$2$1"},
    {"elementOrder", "slides/slide\\d", "(<p:cNvPr [^>]*/>)(<p:cNvSpPr/>|<p:cNvPicPr/>)", "$2$1"},
    {"elementOrder", "slides/slide\\d", "(<a:prstGeom .*?</a:prstGeom>)(<a:solidFill>.*?</a:solidFill>)", "$2$1"},
    {"elementOrder", "slides/slide\\d", "(<a:solidFill>.{0,50}</a:solidFill>)(<a:latin [^>]*/>)", "$2$1"},
    {"elementOrder", "slides/slide\\d", "(<a:latin [^>]*/>)(<a:hlinkClick [^>]*/>)", "$2$1"},
    {"elementOrder", "slides/slide\\d", "(<a:lnSpc>.*?</a:lnSpc>)(<a:buNone/>)", "$2$1"},
    {"elementOrder", "slides/slide\\d", "(<a:txBody>.*?</a:txBody>)(<a:tcPr .*?</a:tcPr>)", "$2$1"},
    {"elementOrder", "presentation.xml$", "(<p:sldSz [^>]*/>)\\s*(<p:notesSz [^>]*/>)", "$2$1"},
    {"elementOrder", "slides/slide\\d", "(<p:clrMapOvr>)", "<p:extLst/>$1"},
    {"elementOrder", "slides/slide\\d", "(<a:off [^>]*/>)", "$1$1"},
    {"unknownElement", "(slides|slideLayouts|slideMasters)/slide[^_]*$", "</p:spTree>", "<p:blob/></p:spTree>"},
    {"unknownElement", "slides/slide\\d", "<a:bodyPr[^>]*/>", "<a:bodyPr><a:xfrm/></a:bodyPr>"},
    {"unknownElement", "slides/slide\\d", "<a:t>", "<b xmlns=\"urn:b\"/><a:t>"},
    {"unknownElement", "slides/slide\\d", "<a:tbl>(.*)</a:tbl>", "<a:tblx>$1</a:tblx>"},
    {"unknownAttribute", "(slides|slideLayouts)/slide[^_]*$", "<p:cNvPr ", "<p:cNvPr blob=\"1\" "},
    {"unknownAttribute", "slides/slide\\d", "<a:(tbl|tr|p|r|t|tc)>", "<a:$1 data-uid=\"1\">"},
    {"missingAttribute", "(slides|slideLayouts)/slide[^_]*$", "(<p:cNvPr id=\"\\d+\") name=\"[^\"]*\"", "$1"},
    {"missingAttribute", "slides/slide\\d", "(<a:off) x=\"-?\\d+\"|(<a:gridCol) w=\"10\"|(<a:tr) h=\"10\"", "$1$2$3"},
    {"invalidValue", "(slides|slideLayouts)/slide[^_]*$", "(<a:ext cx=\")\\d+", "${1}-1"},
    {"invalidValue", "slides/slide\\d", "(<a:off x=\")-?\\d+", "$1 1.5"},
    {"invalidValue", "slides/slide\\d", "sz=\"\\d+\"", "sz=\"99\""},
    {"invalidValue", "slides/slide\\d", "sz=\"\\d+\"", "sz=\"400001\""},
    {"invalidValue", "slides/slide\\d", "(lvl|algn|b|u|anchor|wrap)=\"(1|ctr|sng|square)\"", "$1=\"9\""},
    {"invalidValue", "slides/slide\\d", "prst=\"\\w+\"", "prst=\"roundedRectangle\""},
    {"invalidValue", "slides/slide\\d", "(srgbClr val=\")\\w+", "$1red"},
    {"invalidValue", "slides/slide\\d", "(alpha val=\")[^\"]*", "${1}100.5.1%"},
    {"invalidValue", "slides/slide\\d", "(Merge|firstRow|flipH)=\"1\"", "$1=\"yes\""},
    {"invalidValue", "slides/slide\\d", "(id=\"\\{B6F15528)", "${1}-1"},
    {"invalidValue", "slideLayouts/[^_]*$", "type=\"(body|title|ftr|dt|sldNum|ctrTitle|pic)\"", "type=\"text\""},
    {"invalidValue", "(slides|slideLayouts)/slide[^_]*$", "(<p:cNvPr id=\")\\d+", "${1}-2"},
    {"unexpectedText", "slides/slide\\d", "<(p:nvSpPr|p:spPr|a:p|a:tbl)>", "<$1>text"},
    {"notWellFormed", "(slides|slideLayouts|slideMasters)/.*xml$", "</p:cSld>", ""},
    {"notWellFormed", "slides/slide\\d.xml$", "<p:cSld>", "<q:cSld>"},
    {"notWellFormed", "slides/slide\\d.xml$", "<p:sld ", "<!DOCTYPE x><p:sld "},
    {"notWellFormed", "slides/slide\\d.xml$", " id=\"2\"", " id=\"2\" id=\"3\""},
    {"rootElement", "Content_Types", "slide\\+xml", "slideLayout+xml"},
    {"unknownPrefix", "slides/slide\\d", "Ignorable=\"p14\"", "Ignorable=\"p14 p15\""},
    {"unknownReference", "slides/slide\\d", "r:embed=\"rId2\"|r:id=\"rId3\"", "r:link=\"rId99\""},
    {"unknownReference", "presentation.xml$", "(<p:sldId [^>]*r:id=\")rId\\d+", "$1rId99"},
    {"wrongReference", "slides/slide1.xml$", "r:embed=\"rId2\"", "r:embed=\"rId1\""},
    {"emptyReference", "slides/slide\\d", "r:embed=\"rId2\"", "r:embed=\"\""},
    {"duplicateShapeId", "slides/slide\\d", "(<p:cNvPr id=\")[2-4]", "${1}1"},
    {"shapeReference", "slides/slide\\d", "((st|end)Cxn id|spTgt spid)=\"\\d", "$1=\"87"},
    {"tableGrid", "slides/slide\\d", "<a:gridCol [^>]*/>", ""},
    {"tableGrid", "slides/slide\\d", "<a:tc>.*?</a:tc>", ""},
    {"tableGrid", "slides/slide\\d", "gridSpan=\"2\"", "gridSpan=\"4\""},
    {"tableGrid", "slides/slide\\d", "(gridSpan=\"2\" rowSpan=\")2", "${1}4"},
    {"tableSpan", "slides/slide\\d", "<a:tc>", "<a:tc hMerge=\"1\">"},
    {"tableSpan", "slides/slide\\d", "<a:tc rowSpan=\"2\" hMerge=\"1\">", "<a:tc>"},
    {"slideId", "presentation.xml$", "(<p:sldId id=\")\\d+", "${1}255"},
    {"duplicateSlideId", "presentation.xml$", "(<p:sldId id=\")257", "${1}256"},
    {"slideList", "presentation.xml$", "(<p:sldId id=\"\\d+\" r:id=\")rId\\d+", "$1rId1"},
    {"masterId", "(presentation|slideMaster1).xml$", "(<p:sld(Master|Layout)Id id=\")\\d+", "${1}300"},
    {"duplicateMasterId", "slideMaster1.xml$", "(<p:sldLayoutId id=\")\\d+", "${1}2147483648"},
    {"masterList", "presentation.xml$", "<p:sldMasterIdLst>[\\s\\S]*?</p:sldMasterIdLst>", ""},
    {"layoutList", "slideMaster1.xml$", "(<p:sldLayoutId [^>]*r:id=\")\\w+", "$1rId99"},
    {"unlistedLayout", "slideMaster1.xml$", "<p:sldLayoutId [^>]*/>", ""},
    {"unlistedSlide", "presentation.xml$", "<p:sldId [^>]*/>", ""},
    {"sectionSlide", "presentation.xml$", "(<p14:sldId id=\")\\d+", "${1}999"},
    {"sectionMembership", "presentation.xml$", "<p14:sldId [^>]*/>", ""},
    {"danglingRelationship", "(slides|slideMasters|slideLayouts)/_rels/", "Target=\"\\.\\.[^\"]*\"", "Target=\"../none.xml\""},
    {"danglingRelationship", "ppt/_rels/", "Target=\"[^\"]*\"", "Target=\"\""},
    {"duplicateRelationship", "ppt/(slides|slideMasters)/_rels/", "Id=\"rId2\"", "Id=\"rId1\""},
    {"relationship", "_rels/", "Type=\"[^\"]*\"", ""},
    {"relationship", "_rels/", "Id=\"(\\w+)\"", "Id=\"1 $1\""},
    {"relationship", "slides/_rels/", "TargetMode=\"External\"", "TargetMode=\"Outside\""},
    {"emptyTarget", "slides/_rels/", "Target=\"http[^\"]*\"", "Target=\"\""},
    {"invalidTarget", "slides/_rels/", "Target=\"http[^\"]*\"", "Target=\"http://a/%zz\""},
    {"unencodedTarget", "slides/_rels/", "Target=\"http[^\"]*\"", "Target=\"http://a/b c\""},
    {"targetSpelling", "slides/_rels/", "slideLayouts/slide", "slideLayouts/SLIDE"},
    {"structure", "slides/_rels/", "<Relationship [^>]*/slideLayout\"[^>]*>", ""},
    {"structure", "slideMasters/_rels/", "<Relationship [^>]*/theme\"[^>]*>", ""},
    {"structure", "slideLayouts/_rels/", "<Relationship [^>]*/slideMaster\"[^>]*>", ""},
    {"mainPart", "^_rels/", "relationships/officeDocument\"", "relationships/document\""},
    {"missingContentType", "Content_Types", "<Default Extension=\"(png|rels)\"[^>]*/>", ""},
    {"duplicateContentType", "Content_Types", "(<(Default|Override) [^>]*/>)", "$1$1"},
    {"wrongContentType", "Content_Types", "<Override PartName=\"/ppt/(slide|theme|pres)[^>]*/>", ""},
    {"wrongContentType", "Content_Types", "image/png", "application/png"},
    {"wrongFileExtension", "Content_Types", "presentation\\.main", "template.main"},
    {"phantomContentType", "Content_Types", "(<Override PartName=\"/ppt/)", "$1none.xml\" ContentType=\"a/b\"/>$1"},
    {"contentTypes", "Content_Types", "ContentType=\"[^\"]*\"", "ContentType=\"\""},
    {"unreachablePart", "^_rels/", "<Relationship [^>]*/extended-properties\"[^>]*>", ""},
};
// clang-format on

// Three layouts are enough, and quicker.
void dropLayouts(Parts& parts) {
    const boost::regex rows("<[^<>]*(/ppt/|\"\\.\\./)slideLayouts/slideLayout([4-9]|1\\d)\\.xml\"[^<>]*/>");
    std::string& types = parts["[Content_Types].xml"];
    std::string& links = parts["ppt/slideMasters/_rels/slideMaster1.xml.rels"];
    std::string& master = parts["ppt/slideMasters/slideMaster1.xml"];
    for (boost::sregex_iterator at(links.begin(), links.end(), rows), end; at != end; ++at) {
        const std::string row = at->str(), id = row.substr(row.find("Id=\"") + 4);
        const boost::regex entry("<p:sldLayoutId [^>]*r:id=\"" + id.substr(0, id.find('"')) + "\"[^>]*/>");
        master = boost::regex_replace(master, entry, "");
    }
    links = boost::regex_replace(links, rows, "");
    types = boost::regex_replace(types, rows, "");
    for (auto part = parts.begin(); part != parts.end();)
        part = boost::regex_search(part->first, boost::regex("slideLayout([4-9]|1\\d)\\.xml"))
                   ? parts.erase(part)
                   : std::next(part);
}

} // namespace

Parts makeSoundDeck() {
    Parts parts = getTemplateParts();
    dropLayouts(parts);
    std::string& types = parts["[Content_Types].xml"];
    std::string& main = parts["ppt/presentation.xml"];
    insertBefore(types, "</Types>", "<Default Extension=\"png\" ContentType=\"image/png\"/>");
    for (const char* number : {"1", "2"})
        insertBefore(types, "</Types>",
                     "<Override PartName=\"/ppt/slides/slide" + std::string(number) +
                         ".xml\" ContentType=\"" + kPml + "slide+xml\"/>");
    insertBefore(
        main, "<p:sldSz ",
        "<p:sldIdLst><p:sldId id=\"256\" r:id=\"rId21\"/><p:sldId id=\"257\" r:id=\"rId22\"/></p:sldIdLst>");
    insertBefore(main, "</p:presentation>", kSections);
    insertBefore(parts["ppt/_rels/presentation.xml.rels"], "</Relationships>",
                 relationship("rId21", "slide", "slides/slide1.xml") +
                     relationship("rId22", "slide", "slides/slide2.xml"));
    parts["ppt/media/image1.png"] = "no picture, but nobody looks";
    parts["ppt/slides/slide1.xml"] = std::string(kSlideHead) + kTextShape + kPicture + kConnector +
                                     kAlternative + kSlideTail + kTiming + "</p:sld>";
    parts["ppt/slides/slide2.xml"] =
        kSlideHead +
        boost::regex_replace(std::string(kTable), boost::regex(">B<"), std::string(">") + kCellBody + "<") +
        kSlideTail + "</p:sld>";
    const std::string layout = relationship("rId1", "slideLayout", "../slideLayouts/slideLayout2.xml");
    parts["ppt/slides/_rels/slide1.xml.rels"] =
        relationships(layout + relationship("rId2", "image", "../media/image1.png") +
                      relationship("rId3", "hyperlink", "https://example.org/a?b=c", true));
    parts["ppt/slides/_rels/slide2.xml.rels"] = relationships(layout);
    return parts;
}

const std::vector<Mutation>& getMutations() {
    return kMutations;
}

Parts mutate(const Parts& parts, const Mutation& mutation, unsigned seed) {
    const boost::regex name(mutation.part), place(mutation.place);
    struct Match {
        std::string part;
        std::size_t place, length;
        std::string replacement;
    };
    std::vector<Match> matches;
    for (const auto& part : parts) {
        if (!boost::regex_search(part.first, name))
            continue;
        for (boost::sregex_iterator at(part.second.begin(), part.second.end(), place), end; at != end; ++at)
            matches.push_back({part.first, static_cast<std::size_t>(at->position()),
                               static_cast<std::size_t>(at->length()), at->format(mutation.replacement)});
    }
    if (matches.empty())
        throw std::runtime_error(std::string("nothing fits ") + mutation.place);
    const Match& chosen = matches[seed * 7919ULL % matches.size()];
    Parts changed = parts;
    std::string& text = changed[chosen.part];
    text.replace(chosen.place, chosen.length, chosen.replacement);
    return changed;
}

} // namespace vellox::test
