#include "vellox/opc/XercesHelper.h"

#include "vellox/opc/BoundedParser.h"
#include "vellox/opc/Utf8Serializer.h"
#include "vellox/opc/XercesProcess.h"

namespace opc {

using namespace xercesc;

DOMLSParser* XercesHelper::createParser(boost::shared_ptr<XmlBudget> budget) {
    return new BoundedParser(std::move(budget));
}

DOMLSSerializer* XercesHelper::createWriter() {
    return new Utf8Serializer;
}

DOMDocument* XercesHelper::readDocumentFromStream(DOMLSParser* parser, InputStream& stream, bool,
                                                  const std::wstring&, const std::wstring&) {
    return dynamic_cast<BoundedParser&>(*parser).readDocument(stream);
}

void XercesHelper::writeDocumentToStream(DOMLSSerializer* serializer, DOMDocument* document,
                                         OutputStream& stream) {
    dynamic_cast<Utf8Serializer&>(*serializer).writeDocument(*document, stream);
}

DOMDocument* XercesHelper::createDocument(const XMLCh* rootName) {
    DOMDocument* document =
        DOMImplementationRegistry::getDOMImplementation(u"LS")->createDocument(&getXercesMemory());
    document->setXmlStandalone(true);
    document->appendChild(document->createElement(rootName));
    return document;
}

} // namespace opc
