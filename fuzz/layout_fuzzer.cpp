// The input is the XML of a layout whose shapes are known already, by attributes data-uid of its own: a slide is made of
// it, and what is written of that slide can be read again.

#include "fuzz/xml.h"

#include "vellox/ppt/rules/ClassicRules.h"
#include "vellox/ppt/template/ShapeReader.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/xml/XmlNames.h"

using namespace vellox;

namespace {

xercesc::DOMDocument* parse(const std::string& bytes) {
    static const opc::ParserScope parser(opc::XercesHelper::createParser());
    opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(bytes));
    return opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {});
}

std::string write(ppt::SlideDocument&& slide) {
    opc::MarkupBuffer text;
    slide.writeTo(text);
    return std::string(text.get());
}

void chooseFates(ppt::TemplateLayout& layout, const ppt::Rules& rules) {
    const xercesc::DOMElement* shape = ppt::findFirstShape(layout.document.get(), rules.findsTree());
    for (; shape; shape = shape->getNextElementSibling())
        layout.fates.push_back(shape->hasAttribute(ppt::xml::kDataUid)
                                   ? ppt::Fate::Empty
                                   : rules.fateOf(ppt::readFacts(*shape)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Xml::get(); // keeps Xerces running
    const ppt::ClassicRules rules;
    ppt::TemplateSlide slide;
    slide.layout = boost::make_shared<ppt::TemplateLayout>();
    try {
        slide.layout->document.reset(parse(fuzz::toString(data, size)));
    } catch (const opc::Exception&) {
        return 0;
    }
    chooseFates(*slide.layout, rules);
    const std::string first = write(ppt::SlideDocument(slide, rules));
    const ppt::OwnedDocument read(parse(first));
    fuzz::require(write(ppt::SlideDocument(slide, rules)) == first, "the slides of one layout are alike");
    return 0;
}
