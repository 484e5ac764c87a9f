#include "tests/support/TemplateBuilder.h"

#include <algorithm>

namespace vellox::test {

namespace {

const std::string kDeclaration = "<?xml version='1.0' encoding='UTF-8' standalone='yes'?>\n";
const std::string kNamespaces =
    " xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main'"
    " xmlns:r='http://schemas.openxmlformats.org/officeDocument/2006/relationships'"
    " xmlns:p='http://schemas.openxmlformats.org/presentationml/2006/main'";
const std::string kTypePrefix = "application/vnd.openxmlformats-officedocument.";
const std::string kRelationshipPrefix =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
const std::string kPackageNamespace = "http://schemas.openxmlformats.org/package/2006/";
constexpr unsigned kFirstSlideId = 300; // not the least possible: ids are given anew when a deck is written

std::string number(unsigned value) {
    return std::to_string(value);
}

std::string identity(int id, const std::string& name) {
    return "<p:cNvPr id='" + std::to_string(id) + "' name='" + name + "'/>";
}

// Names with folders from the package's root lead anywhere.
std::string target(const std::string& part) {
    return "/" + part;
}

std::string tree(const std::string& shapes) {
    return "<p:spTree><p:nvGrpSpPr>" + identity(1, "") +
           "<p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>" + shapes + "</p:spTree>";
}

std::string page(const std::string& root, const Page& page, const std::string& more = "") {
    if (!page.xml.empty())
        return page.xml;
    const std::string name = page.name.empty() || root == "p:sldMaster" ? "" : " name='" + page.name + "'";
    return kDeclaration + "<" + root + kNamespaces + page.attributes + "><p:cSld" + name + ">" +
           page.background + tree(page.shapes) + page.behindTree + "</p:cSld>" + more + page.behindData +
           "</" + root + ">";
}

std::string theme(const std::string& name) {
    std::string colors;
    for (const char* color : {"dk1", "lt1", "dk2", "lt2", "accent1", "accent2", "accent3", "accent4",
                              "accent5", "accent6", "hlink", "folHlink"})
        colors += std::string("<a:") + color + "><a:srgbClr val='" +
                  (color[0] == 'l'   ? "FFFFFF"
                   : color[0] == 'd' ? "101010"
                                     : "1A6E82") +
                  "'/></a:" + color + ">";
    const auto thrice = [](const std::string& xml) { return xml + xml + xml; };
    const std::string font = "<a:latin typeface='Sans'/><a:ea typeface=''/><a:cs typeface=''/>";
    const std::string fills = thrice("<a:solidFill><a:schemeClr val='phClr'/></a:solidFill>");
    return kDeclaration + "<a:theme" + kNamespaces + " name='" + name +
           "'><a:themeElements><a:clrScheme name='c'>" + colors +
           "</a:clrScheme><a:fontScheme name='f'><a:majorFont>" + font + "</a:majorFont><a:minorFont>" +
           font + "</a:minorFont></a:fontScheme><a:fmtScheme name='m'><a:fillStyleLst>" + fills +
           "</a:fillStyleLst><a:lnStyleLst>" + thrice("<a:ln><a:noFill/></a:ln>") +
           "</a:lnStyleLst><a:effectStyleLst>" + thrice("<a:effectStyle><a:effectLst/></a:effectStyle>") +
           "</a:effectStyleLst><a:bgFillStyleLst>" + fills +
           "</a:bgFillStyleLst></a:fmtScheme></a:themeElements></a:theme>";
}

} // namespace

// Shapes

std::string place(int x, int y, int cx, int cy) {
    return "<a:xfrm><a:off x='" + std::to_string(x) + "' y='" + std::to_string(y) + "'/><a:ext cx='" +
           std::to_string(cx) + "' cy='" + std::to_string(cy) + "'/></a:xfrm>";
}

std::string shape(int id, const std::string& name, const std::string& ph, const std::string& spPr,
                  const std::string& text) {
    return "<p:sp><p:nvSpPr>" + identity(id, name) + "<p:cNvSpPr/><p:nvPr>" + ph +
           "</p:nvPr></p:nvSpPr><p:spPr>" + spPr +
           "</p:spPr><p:txBody><a:bodyPr/><a:lstStyle><a:lvl1pPr/></a:lstStyle><a:p><a:r><a:t>" + text +
           "</a:t></a:r></a:p></p:txBody></p:sp>";
}

std::string pictureShape(int id, const std::string& name, const std::string& relationshipId,
                         const std::string& spPr) {
    return "<p:pic><p:nvPicPr>" + identity(id, name) +
           "<p:cNvPicPr/><p:nvPr/></p:nvPicPr><p:blipFill><a:blip r:embed='" + relationshipId +
           "'/><a:stretch><a:fillRect/></a:stretch></p:blipFill><p:spPr>" + spPr + "</p:spPr></p:pic>";
}

namespace {

std::string frame(int id, const std::string& name, const std::string& data) {
    return "<p:graphicFrame><p:nvGraphicFramePr>" + identity(id, name) +
           "<p:cNvGraphicFramePr/><p:nvPr/></p:nvGraphicFramePr><p:xfrm><a:off x='100' y='200'/><a:ext "
           "cx='3000000' "
           "cy='400000'/></p:xfrm><a:graphic>" +
           data + "</a:graphic></p:graphicFrame>";
}

} // namespace

std::string tableShape(int id, const std::string& name, unsigned rows, unsigned columns) {
    std::string grid, row;
    for (unsigned i = 0; i < columns; ++i) {
        grid += "<a:gridCol w='1000000'/>";
        row += "<a:tc><a:txBody><a:bodyPr/><a:p><a:r><a:t>cell</a:t></a:r></a:p></a:txBody></a:tc>";
    }
    std::string body;
    for (unsigned i = 0; i < rows; ++i)
        body += "<a:tr h='100000'>" + row + "</a:tr>";
    return frame(
        id, name,
        "<a:graphicData uri='http://schemas.openxmlformats.org/drawingml/2006/table'><a:tbl><a:tblGrid>" +
            grid + "</a:tblGrid>" + body + "</a:tbl></a:graphicData>");
}

std::string chartShape(int id, const std::string& name) {
    return frame(id, name, "<a:graphicData uri='chart'/>");
}

std::string groupShape(int id, const std::string& name, const std::string& shapes) {
    return "<p:grpSp><p:nvGrpSpPr>" + identity(id, name) +
           "<p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>" + shapes + "</p:grpSp>";
}

std::string connectorShape(int id, const std::string& name) {
    return "<p:cxnSp><p:nvCxnSpPr>" + identity(id, name) +
           "<p:cNvCxnSpPr/><p:nvPr/></p:nvCxnSpPr><p:spPr/></p:cxnSp>";
}

// What is put into the package: parts with their types and relationships.

class TemplateBuilder::Output {
public:
    void add(const std::string& name, const std::string& contentType, const std::string& bytes,
             const std::vector<Relation>& relations) {
        parts_[name] = bytes;
        overrides_ += "<Override PartName='/" + name + "' ContentType='" + contentType + "'/>";
        addRelations(name, relations);
    }

    void addRelations(const std::string& source, const std::vector<Relation>& relations) {
        if (relations.empty())
            return;
        std::string rows;
        for (const Relation& row : relations)
            rows += "<Relationship Id='" + row.id + "' Type='" + kRelationshipPrefix + row.kind +
                    "' Target='" + row.target + (row.isExternal ? "' TargetMode='External'/>" : "'/>");
        const std::size_t slash = source.rfind('/') == std::string::npos ? 0 : source.rfind('/') + 1;
        parts_[source.substr(0, slash) + "_rels/" + source.substr(slash) + ".rels"] =
            kDeclaration + "<Relationships xmlns='" + kPackageNamespace + "relationships'>" + rows +
            "</Relationships>";
    }

    Parts finish() {
        parts_["[Content_Types].xml"] =
            kDeclaration + "<Types xmlns='" + kPackageNamespace +
            "content-types'><Default Extension='rels' "
            "ContentType='application/vnd.openxmlformats-package.relationships+xml'/>"
            "<Default Extension='xml' ContentType='application/xml'/>" +
            overrides_ + "</Types>";
        return std::move(parts_);
    }

private:
    Parts parts_;
    std::string overrides_;
};

// TemplateBuilder

Page& TemplateBuilder::addMaster(const std::string& theme, const std::string& shapes) {
    Master& master = masters_.emplace_back();
    master.part = "ppt/slideMasters/slideMaster" + number(static_cast<unsigned>(masters_.size())) + ".xml";
    master.name = theme;
    master.shapes = shapes;
    return master;
}

Page& TemplateBuilder::addLayout(const std::string& name, const std::string& shapes) {
    Page& layout = masters_.back().layouts.emplace_back();
    layout.part = "ppt/slideLayouts/slideLayout" + number(++layoutCount_) + ".xml";
    layout.name = name;
    layout.shapes = shapes;
    return layout;
}

Page& TemplateBuilder::addSlide(const std::string& name, const Page& layout, const std::string& shapes) {
    Slide& slide = slides_.emplace_back();
    slide.part = "ppt/slides/slide" + number(static_cast<unsigned>(slides_.size())) + ".xml";
    slide.name = name;
    slide.shapes = shapes;
    slide.layout = &layout;
    return slide;
}

void TemplateBuilder::addSection(const std::string& name, unsigned first, unsigned last) {
    std::string ids;
    for (unsigned i = first; i <= last; ++i)
        ids += "<p14:sldId id='" + number(kFirstSlideId + i - 1) + "'/>";
    sections_.push_back("<p14:section name='" + name + "' id='{" + name + "}'><p14:sldIdLst>" + ids +
                        "</p14:sldIdLst></p14:section>");
}

void TemplateBuilder::addTableStyle(const std::string& name, const std::string& id) {
    tableStyles_.emplace_back(name, id);
}

void TemplateBuilder::addPart(const std::string& name, const std::string& contentType,
                              const std::string& bytes, const std::vector<Relation>& relations) {
    others_.push_back({name, contentType, bytes, relations});
}

void TemplateBuilder::addToPresentation(const std::string& xml, const std::vector<Relation>& relations) {
    behindMasters_ += xml;
    relations_.insert(relations_.end(), relations.begin(), relations.end());
}

Parts TemplateBuilder::build() const {
    Output output;
    output.addRelations("", {{"rId1", "officeDocument", "ppt/presentation.xml"}});
    writePresentation(output);
    for (std::size_t i = 0; i < masters_.size(); ++i)
        writeMaster(output, masters_[i], static_cast<unsigned>(i + 1));
    for (const Slide& slide : slides_) {
        std::vector<Relation> relations{{"rId1", "slideLayout", target(slide.layout->part)}};
        relations.insert(relations.end(), slide.relations.begin(), slide.relations.end());
        output.add(slide.part, kTypePrefix + "presentationml.slide+xml", page("p:sld", slide), relations);
    }
    for (const OtherPart& part : others_)
        output.add(part.name, part.contentType, part.bytes, part.relations);
    return output.finish();
}

void TemplateBuilder::writeMaster(Output& output, const Master& master, unsigned number_) const {
    std::vector<Relation> relations;
    std::string list;
    for (const Page& layout : master.layouts) {
        const std::string id = "rId" + number(static_cast<unsigned>(relations.size()) + 1);
        list += "<p:sldLayoutId id='" +
                number(2147483648u + number_ * 100 + static_cast<unsigned>(relations.size())) + "' r:id='" +
                id + "'/>";
        relations.push_back({id, "slideLayout", target(layout.part)});
        std::vector<Relation> ofLayout{{"rId1", "slideMaster", target(master.part)}};
        ofLayout.insert(ofLayout.end(), layout.relations.begin(), layout.relations.end());
        output.add(layout.part, kTypePrefix + "presentationml.slideLayout+xml", page("p:sldLayout", layout),
                   ofLayout);
    }
    if (!master.name.empty()) {
        const std::string part = "ppt/theme/theme" + number(number_) + ".xml";
        output.add(part, kTypePrefix + "theme+xml", theme(master.name), {});
        relations.push_back({"rIdTheme", "theme", target(part)});
    }
    relations.insert(relations.end(), master.relations.begin(), master.relations.end());
    const std::string map =
        "<p:clrMap bg1='lt1' tx1='dk1' bg2='lt2' tx2='dk2' accent1='accent1' accent2='accent2' "
        "accent3='accent3' "
        "accent4='accent4' accent5='accent5' accent6='accent6' hlink='hlink' folHlink='folHlink'/>";
    output.add(master.part, kTypePrefix + "presentationml.slideMaster+xml",
               page("p:sldMaster", master, map + "<p:sldLayoutIdLst>" + list + "</p:sldLayoutIdLst>"),
               relations);
}

std::string TemplateBuilder::makeSections() const {
    if (sections_.empty())
        return {};
    std::string sections;
    for (const std::string& section : sections_)
        sections += section;
    return "<p:extLst><p:ext uri='{521415D9-36F7-43E2-AB2F-B90AF26B5E84}'><p14:sectionLst xmlns:p14='http://"
           "schemas.microsoft.com/office/powerpoint/2010/main'>" +
           sections + "</p14:sectionLst></p:ext></p:extLst>";
}

void TemplateBuilder::writePresentation(Output& output) const {
    std::vector<Relation> relations;
    std::string masters, slides;
    const auto relate = [&](const std::string& kind, const std::string& part) {
        relations.push_back(
            {"rId" + number(static_cast<unsigned>(relations.size()) + 1), kind, target(part)});
        return relations.back().id;
    };
    for (std::size_t i = 0; i < masters_.size(); ++i)
        masters += "<p:sldMasterId id='" + number(2147483648u + static_cast<unsigned>(i + 1) * 100 + 99) +
                   "' r:id='" + relate("slideMaster", masters_[i].part) + "'/>";
    for (std::size_t i = 0; i < slides_.size(); ++i)
        slides += "<p:sldId id='" + number(kFirstSlideId + static_cast<unsigned>(i)) + "' r:id='" +
                  relate("slide", slides_[i].part) + "'/>";
    if (!tableStyles_.empty()) {
        std::string styles;
        for (const auto& style : tableStyles_)
            styles += "<a:tblStyle styleId='" + style.second + "' styleName='" + style.first + "'/>";
        relate("tableStyles", "ppt/tableStyles.xml");
        output.add("ppt/tableStyles.xml", kTypePrefix + "presentationml.tableStyles+xml",
                   kDeclaration + "<a:tblStyleLst" + kNamespaces + " def='{}'>" + styles + "</a:tblStyleLst>",
                   {});
    }
    relations.insert(relations.end(), relations_.begin(), relations_.end());
    const std::string list = slides.empty() ? "" : "<p:sldIdLst>" + slides + "</p:sldIdLst>";
    output.add("ppt/presentation.xml", mainType_,
               kDeclaration + "<p:presentation" + kNamespaces + "><p:sldMasterIdLst>" + masters +
                   "</p:sldMasterIdLst>" + behindMasters_ + list +
                   "<p:sldSz cx='12192000' cy='6858000'/><p:notesSz cx='6858000' cy='9144000'/>" +
                   makeSections() + "</p:presentation>",
               relations);
}

} // namespace vellox::test
