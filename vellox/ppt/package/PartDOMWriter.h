/// @file
/// From a DOM document to a part.

#ifndef VELLOX_PPT_PACKAGE_PARTDOMWRITER_H
#define VELLOX_PPT_PACKAGE_PARTDOMWRITER_H

#include <string>
#include <string_view>

#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"
#include "vellox/ppt/package/OPCPartWriter.h"

namespace vellox::ppt {

class PartDOMWriter : public OPCPartWriter {
public:
    explicit PartDOMWriter(boost::shared_ptr<OPCPackage> package);
    ~PartDOMWriter() override;

    /// Makes a document the content of an existing part.
    /// @throws opc::Exception
    void writeDocument(const std::wstring& partName, xercesc::DOMDocument* document);
    /// The same with the text of one.
    /// @throws opc::Exception
    void writeMarkup(const std::wstring& partName, std::string_view markup);
    /// Makes the part, then the same.
    /// @throws opc::Exception
    void writeNewDocument(const std::wstring& partName, const std::wstring& contentType,
                          xercesc::DOMDocument* document);

private:
    opc::XercesProcess xerces_;
    opc::SerializerScope serializer_;
};

} // namespace vellox::ppt

#endif
