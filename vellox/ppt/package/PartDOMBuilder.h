/// @file
/// From a part to a DOM document.

#ifndef VELLOX_PPT_PACKAGE_PARTDOMBUILDER_H
#define VELLOX_PPT_PACKAGE_PARTDOMBUILDER_H

#include <cstdint>
#include <map>
#include <string>

#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"
#include "vellox/ppt/package/OPCPartReader.h"

namespace vellox::ppt {

/// Reads parts as documents without namespaces: names stay as written, prefix and all.
class PartDOMBuilder : public OPCPartReader {
public:
    explicit PartDOMBuilder(const OPCPackage& package);
    ~PartDOMBuilder() override;

    /// @{ A document that the caller ends with release().
    /// @throws partDOMBuildError with the part's name and the reason
    xercesc::DOMDocument* getDocument(const opc::Part& part);
    /// Null if the name is empty or there is no such part.
    xercesc::DOMDocument* getDocument(const std::wstring& partName);
    /// @}
    /// Charges what is made of the documents and kept.
    /// @throws opc::Exception if the package costs too much
    void charge(std::uint64_t cost);

private:
    opc::XercesProcess xerces_;
    opc::ParserScope parser_;
    std::map<opc::PartName, unsigned> readings_;
};

} // namespace vellox::ppt

#endif
