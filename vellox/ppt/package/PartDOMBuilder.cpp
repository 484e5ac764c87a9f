#include "vellox/ppt/package/PartDOMBuilder.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/XmlBudget.h"

namespace vellox::ppt {

// The parser comes from the package layer ready for the job: it checks well-formedness only, fetches nothing
// and knows no namespaces.
PartDOMBuilder::PartDOMBuilder(const OPCPackage& package)
    : OPCPartReader(package),
      parser_(opc::XercesHelper::createParser(package_->getXmlBudget())) {}

PartDOMBuilder::~PartDOMBuilder() = default;

xercesc::DOMDocument* PartDOMBuilder::getDocument(const opc::Part& part) {
    opc::Part source(part);
    try {
        if (++readings_[part.getName()] > opc::kMaxReadings)
            throw opc::Exception("it is referred to more than " + std::to_string(opc::kMaxReadings) +
                                 " times");
        return opc::XercesHelper::readDocumentFromStream(parser_.get(), source.getInputStream(), false, {},
                                                         {});
    } catch (const opc::Exception& failure) {
        raise(ppt_error::partDOMBuildError(part.getName().toString(), fromUtf8(failure.what())));
    }
}

void PartDOMBuilder::charge(std::uint64_t cost) {
    package_->getXmlBudget()->take(cost);
}

xercesc::DOMDocument* PartDOMBuilder::getDocument(const std::wstring& partName) {
    if (partName.empty() || !hasPart(partName))
        return nullptr;
    return getDocument(getPart(partName));
}

} // namespace vellox::ppt
