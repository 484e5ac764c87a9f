// The input is the XML of a chart of a template: given data, it can be written and read again, and given the same data
// once more it stays as it is.

#include "fuzz/xml.h"

#include "vellox/opc/MarkupBuffer.h"
#include "vellox/opc/Utf8Serializer.h"
#include "vellox/ppt/writers/ChartDocument.h"

using namespace vellox;

namespace {

xercesc::DOMDocument* parse(const std::string& bytes) {
    static const opc::ParserScope parser(opc::XercesHelper::createParser());
    opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(bytes));
    return opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {});
}

std::string fill(xercesc::DOMDocument& document) {
    const ppt::ChartData data{{{L"a", {}}, {L"b", 2}, {L"c", {}}}, {{L"A", {1, 2, 3}}, {L"B", {4, 5, 6}}}};
    ppt::ChartDocument chart(document);
    if (!chart.findUnsupportedKind().empty())
        return {};
    chart.setData(data, chart.findSheetName());
    if (chart.getWorkbookId().empty())
        chart.setWorkbookId(L"rId1");
    opc::MarkupBuffer text;
    opc::Utf8Serializer::appendDocument(document, {}, text);
    return std::string(text.get());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Xml::get(); // keeps Xerces running
    try {
        const ppt::OwnedDocument document(parse(fuzz::toString(data, size)));
        const std::string first = fill(*document.get());
        if (first.empty())
            return 0;
        const ppt::OwnedDocument read(parse(first));
        fuzz::require(fill(*read.get()) == first, "the same data again change nothing");
    } catch (const opc::Exception&) {
        return 0;
    }
    return 0;
}
