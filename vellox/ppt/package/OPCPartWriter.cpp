#include "vellox/ppt/package/OPCPartWriter.h"

#include "vellox/ppt/package/OPCPackage.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

OPCPartWriter::OPCPartWriter(const std::wstring& path, bool asFolder)
    : owner_(boost::make_shared<OPCPackage>(path)),
      path_(path) {
    owner_->openWrite(asFolder);
    package_ = owner_->getPackage();
}

OPCPartWriter::OPCPartWriter(boost::shared_ptr<OPCPackage> package)
    : package_(package->getPackage()),
      owner_(std::move(package)),
      path_(owner_->getPath()) {}

OPCPartWriter::~OPCPartWriter() = default;

bool OPCPartWriter::hasPart(const std::wstring& partName) const {
    return package_->hasPart(opc::PartName(partName));
}

opc::Part OPCPartWriter::getPart(const std::wstring& partName) const {
    return package_->getPart(opc::PartName(partName));
}

opc::Part OPCPartWriter::createPart(const std::wstring& partName, const std::wstring& contentType) {
    return package_->createPart(opc::PartName(partName), opc::ContentType(contentType),
                                opc::StandardPartInfo{1, 0});
}

opc::Part OPCPartWriter::createStoredPart(const std::wstring& partName, const std::wstring& contentType) {
    return package_->createPart(opc::PartName(partName), opc::ContentType(contentType),
                                opc::StandardPartInfo{0, 0});
}

boost::shared_ptr<std::istream> OPCPartWriter::createFileInputStream(const std::wstring& path) {
    return owner_->createFileInputStream(path);
}

} // namespace vellox::ppt
