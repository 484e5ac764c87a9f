#include "vellox/opc/XercesHelper.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/BoundedParser.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/XercesProcess.h"
#include "vellox/opc/XercesString.h"

#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/util/XMLException.hpp>

namespace opc {

using namespace xercesc;

namespace {

class StreamTarget : public XMLFormatTarget {
public:
    explicit StreamTarget(OutputStream& stream) : stream_(stream) {}
    void writeChars(const XMLByte* const bytes, const XMLSize_t count, XMLFormatter* const) override {
        stream_.write(bytes, count);
    }

private:
    OutputStream& stream_;
};

DOMImplementation& getImplementation() {
    return *DOMImplementationRegistry::getDOMImplementation(u"LS");
}

} // namespace

DOMLSParser* XercesHelper::createParser(boost::shared_ptr<XmlBudget> budget) {
    return new BoundedParser(std::move(budget));
}

DOMLSSerializer* XercesHelper::createWriter() {
    return getImplementation().createLSSerializer(&getXercesMemory());
}

DOMDocument* XercesHelper::readDocumentFromStream(DOMLSParser* parser, InputStream& stream, bool,
                                                  const std::wstring&, const std::wstring&) {
    return dynamic_cast<BoundedParser&>(*parser).readDocument(stream);
}

void XercesHelper::writeDocumentToStream(DOMLSSerializer* serializer, DOMDocument* document,
                                         OutputStream& stream) {
    StreamTarget target(stream);
    const std::unique_ptr<DOMLSOutput, Release> output(
        getImplementation().createLSOutput(&getXercesMemory()));
    // A document that was read from UTF-16 would otherwise be written so, and without a byte-order mark.
    output->setEncoding(u"UTF-8");
    output->setByteStream(&target);
    try {
        if (!serializer->write(document, output.get()))
            throw Exception("a document can't be written");
    } catch (const XMLException& failure) {
        throw Exception(vellox::toUtf8(toWideString(failure.getMessage())));
    } catch (const DOMException& failure) {
        throw Exception(vellox::toUtf8(toWideString(failure.getMessage())));
    }
}

DOMDocument* XercesHelper::createDocument(const XMLCh* rootName) {
    DOMDocument* document = getImplementation().createDocument(&getXercesMemory());
    document->setXmlStandalone(true);
    document->appendChild(document->createElement(rootName));
    return document;
}

} // namespace opc
