/// @file
/// From a DOM document to a part.

#ifndef VELLOX_PPT_PACKAGE_PARTDOMWRITER_H
#define VELLOX_PPT_PACKAGE_PARTDOMWRITER_H

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <xercesc/dom/DOM.hpp>

#include "vellox/opc/MarkupBuffer.h"
#include "vellox/opc/Utf8Serializer.h"
#include "vellox/opc/XercesProcess.h"
#include "vellox/ppt/package/OPCPartWriter.h"

namespace vellox::ppt {

class PartDOMWriter : public OPCPartWriter {
public:
    /// Hears of the text of each part before it is put in.
    using Watcher = std::function<void(const opc::Part& part, std::string_view markup)>;

    explicit PartDOMWriter(boost::shared_ptr<OPCPackage> package);
    ~PartDOMWriter() override;

    void setWatcher(Watcher watcher) { watcher_ = std::move(watcher); }
    /// Makes a document the content of an existing part.
    /// @param contents what stands in its elements without being nodes
    /// @throws opc::Exception
    void writeDocument(const std::wstring& partName, xercesc::DOMDocument* document,
                       const opc::Contents& contents = {});
    /// The same with the text of one.
    /// @throws opc::Exception
    void writeMarkup(const std::wstring& partName, std::string_view markup);
    /// Makes the part, then the same.
    /// @throws opc::Exception
    void writeNewDocument(const std::wstring& partName, const std::wstring& contentType,
                          xercesc::DOMDocument* document);

private:
    opc::XercesProcess xerces_;
    opc::MarkupBuffer markup_; // stays from document to document
    Watcher watcher_;
};

} // namespace vellox::ppt

#endif
