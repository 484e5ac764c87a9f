#include "vellox/ppt/package/PartDOMWriter.h"

namespace vellox::ppt {

PartDOMWriter::PartDOMWriter(boost::shared_ptr<OPCPackage> package)
    : OPCPartWriter(std::move(package)),
      serializer_(opc::XercesHelper::createWriter()) {}

PartDOMWriter::~PartDOMWriter() = default;

void PartDOMWriter::writeDocument(const std::wstring& partName, xercesc::DOMDocument* document) {
    opc::Part part = getPart(partName);
    opc::OutputStream& stream = part.getOutputStream();
    opc::XercesHelper::writeDocumentToStream(serializer_.get(), document, stream);
    stream.close();
}

void PartDOMWriter::writeMarkup(const std::wstring& partName, std::string_view markup) {
    opc::Part part = getPart(partName);
    opc::OutputStream& stream = part.getOutputStream();
    stream.write(reinterpret_cast<const unsigned char*>(markup.data()), markup.size());
    stream.close();
}

void PartDOMWriter::writeNewDocument(const std::wstring& partName, const std::wstring& contentType,
                                     xercesc::DOMDocument* document) {
    createPart(partName, contentType);
    writeDocument(partName, document);
}

} // namespace vellox::ppt
