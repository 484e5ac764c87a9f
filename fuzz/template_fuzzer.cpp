// A template with one slide master, one layout and one slide, as small as can be, with one part replaced by the input:
// whatever the part holds, the template is read and a slide made of each layout, or an error says why not. The first
// byte chooses the part. What writes a deck isn't tried, so that this goes fast; part_fuzzer does that.

#include "tests/support/Files.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/package/OPCPackage.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/rules/ClassicRules.h"
#include "vellox/ppt/template/TemplateReader.h"

#include <vellox/vellox.h>

#include <boost/make_shared.hpp>
#include <cstdint>

using namespace vellox;

namespace {

// The parts, shorn of all that vellox doesn't look at. The order is that of the inputs' first bytes.
struct Part {
    std::string name;
    std::string xml;
};

std::string relationship(int id, const std::string& type, const std::string& target) {
    return "<Relationship Id='rId" + std::to_string(id) +
           "' Type='http://schemas.openxmlformats.org/officeDocument/2006/relationships/" + type +
           "' Target='" + target + "'/>";
}

std::string relationships(const std::string& rows) {
    return "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>" + rows +
           "</Relationships>";
}

const Part kParts[] = {
    {"ppt/slideLayouts/slideLayout1.xml",
     "<p:sldLayout xmlns:p='p' xmlns:a='a' xmlns:r='r' type='obj'><p:cSld "
     "name='Layout'><p:spTree><p:nvGrpSpPr>"
     "<p:cNvPr id='1' name=''/></p:nvGrpSpPr><p:grpSpPr/><p:sp><p:nvSpPr><p:cNvPr id='2' "
     "name='Title'/><p:nvPr>"
     "<p:ph type='title'/></p:nvPr></p:nvSpPr><p:spPr><a:xfrm><a:off x='1' y='2'/><a:ext cx='3' "
     "cy='4'/></a:xfrm>"
     "</p:spPr><p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r><a:t>text</a:t></a:r></a:p></p:txBody></"
     "p:sp><p:pic/>"
     "</p:spTree></p:cSld></p:sldLayout>"},
    {"ppt/presentation.xml", "<p:presentation xmlns:p='p' xmlns:r='r'><p:sldMasterIdLst><p:sldMasterId "
                             "id='7' r:id='rId1'/></p:sldMasterIdLst>"
                             "<p:sldIdLst><p:sldId id='256' r:id='rId2'/></p:sldIdLst></p:presentation>"},
    {"ppt/slideMasters/slideMaster1.xml",
     "<p:sldMaster xmlns:p='p'><p:cSld><p:spTree><p:sp><p:nvSpPr><p:cNvPr id='2' "
     "name='Title'/></p:nvSpPr></p:sp>"
     "</p:spTree></p:cSld></p:sldMaster>"},
    {"ppt/slides/slide1.xml", "<p:sld xmlns:p='p' xmlns:a='a'><p:cSld><p:spTree><p:sp><p:nvSpPr><p:cNvPr "
                              "id='2' name='Title'/></p:nvSpPr>"
                              "</p:sp><p:grpSp><p:nvGrpSpPr><p:cNvPr id='5' "
                              "name='Group'/></p:nvGrpSpPr><p:pic/></p:grpSp></p:spTree></p:cSld>"
                              "</p:sld>"},
    {"ppt/theme/theme1.xml", "<a:theme xmlns:a='a' name='Theme'/>"},
    {"ppt/tableStyles.xml",
     "<a:tblStyleLst xmlns:a='a'><a:tblStyle styleId='{1}' styleName='Style'/></a:tblStyleLst>"},
    {"[Content_Types].xml",
     "<Types xmlns='http://schemas.openxmlformats.org/package/2006/content-types'>"
     "<Default Extension='xml' ContentType='application/xml'/><Override PartName='/ppt/presentation.xml' "
     "ContentType='application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml'/></"
     "Types>"},
    {"_rels/.rels", relationships(relationship(1, "officeDocument", "ppt/presentation.xml") +
                                  relationship(2, "tableStyles", "ppt/tableStyles.xml"))},
    {"ppt/_rels/presentation.xml.rels",
     relationships(relationship(1, "slideMaster", "slideMasters/slideMaster1.xml") +
                   relationship(2, "slide", "slides/slide1.xml") +
                   relationship(3, "tableStyles", "tableStyles.xml"))},
    {"ppt/slideMasters/_rels/slideMaster1.xml.rels",
     relationships(relationship(1, "slideLayout", "../slideLayouts/slideLayout1.xml") +
                   relationship(2, "theme", "../theme/theme1.xml"))},
    {"ppt/slideLayouts/_rels/slideLayout1.xml.rels",
     relationships(relationship(1, "slideMaster", "../slideMasters/slideMaster1.xml"))},
    {"ppt/slides/_rels/slide1.xml.rels",
     relationships(relationship(1, "slideLayout", "../slideLayouts/slideLayout1.xml"))},
};
constexpr std::size_t kPartCount = sizeof kParts / sizeof *kParts;

// The template, unpacked: a part is exchanged by writing one file.
class Template {
public:
    Template() {
        for (const Part& part : kParts) {
            std::filesystem::create_directories((folder_.getPath() / part.name).parent_path());
            write(part, part.xml);
        }
    }
    std::wstring getPath() const { return fromUtf8(folder_.getPath().string()); }
    void write(const Part& part, const std::string& bytes) const {
        test::writeFile(folder_ / fromUtf8(part.name), bytes);
    }

private:
    test::TempFolder folder_;
};

void readTemplate(const std::wstring& path) {
    const auto package = boost::make_shared<ppt::OPCPackage>(path);
    package->openRead(true);
    ppt::PartDOMBuilder builder(*package);
    const auto rules = boost::make_shared<ppt::ClassicRules>();
    ppt::TemplateReader reader(builder, *rules);
    if (reader.load() != ppt::Refusal::None)
        return;
    const ppt::PresentationModel model(reader.getTemplate(), rules);
    for (const std::wstring& master : model.getMasterNames())
        for (const std::wstring& layout : model.getLayoutNames(master))
            model.createSlide(model.findLayout(layout, master));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const opc::XercesProcess xerces;
    static const Template package;
    if (size == 0)
        return 0;
    const Part& part = kParts[data[0] % kPartCount];
    package.write(part, std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
    try {
        readTemplate(package.getPath());
    } catch (const hostfx::except::IMsgIDException&) {
    } catch (const opc::Exception&) {
    }
    package.write(part, part.xml);
    return 0;
}
