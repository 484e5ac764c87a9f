// The input is the XML of a layout whose shapes are known already, by attributes data-uid of its own: a slide is made of
// it, and what is written of that slide can be read again.

#include "fuzz/xml.h"

#include "vellox/ppt/template/SlideDocuments.h"

using namespace vellox;

namespace {

xercesc::DOMDocument* parse(const std::string& bytes) {
    static const opc::ParserScope parser(opc::XercesHelper::createParser());
    opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(bytes));
    return opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {});
}

std::string write(const ppt::OwnedDocument& document) {
    std::string bytes;
    opc::StringOutputStream stream(bytes);
    opc::XercesHelper::writeDocumentToStream(fuzz::Xml::get().serializer.get(), document.get(), stream);
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Xml::get(); // keeps Xerces running
    ppt::TemplateLayout layout;
    try {
        layout.document.reset(parse(fuzz::toString(data, size)));
    } catch (const opc::Exception&) {
        return 0;
    }
    layout.elementsByUid = ppt::mapElementsByUid(layout.document.get());
    layout.shapes = boost::make_shared<ppt::TemplateShapes>();
    const std::string first = write(ppt::makeSlideDocument(layout));
    const ppt::OwnedDocument read(parse(first));
    fuzz::require(write(ppt::makeSlideDocument(layout)) == first, "the slides of one layout are alike");
    return 0;
}
