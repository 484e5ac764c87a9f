#include "vellox/ppt/package/PartDOMWriter.h"

namespace vellox::ppt {

PartDOMWriter::PartDOMWriter(boost::shared_ptr<OPCPackage> package) : OPCPartWriter(std::move(package)) {}

PartDOMWriter::~PartDOMWriter() = default;

void PartDOMWriter::writeDocument(const std::wstring& partName, xercesc::DOMDocument* document,
                                  const opc::Contents& contents) {
    markup_.truncate(0);
    opc::Utf8Serializer::appendDocument(*document, contents, markup_);
    writeMarkup(partName, markup_.get());
}

void PartDOMWriter::writeMarkup(const std::wstring& partName, std::string_view markup) {
    opc::Part part = getPart(partName);
    if (watcher_)
        watcher_(part, markup);
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
