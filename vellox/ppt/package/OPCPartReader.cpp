#include "vellox/ppt/package/OPCPartReader.h"

#include "vellox/opc/Exception.h"
#include "vellox/ppt/package/OPCPackage.h"

#include <boost/make_shared.hpp>

namespace vellox::ppt {

namespace {

std::wstring findTarget(const opc::RelationshipSource& source, const std::wstring& type) {
    for (const opc::Relationship& relationship : source.getRelationships())
        if (relationship.getType() == type)
            return relationship.getTargetURI().toString();
    return {};
}

} // namespace

OPCPartReader::OPCPartReader(const std::wstring& path)
    : owner_(boost::make_shared<OPCPackage>(path)),
      path_(path) {
    owner_->openRead(true);
    package_ = owner_->getPackage();
}

OPCPartReader::OPCPartReader(const OPCPackage& package)
    : package_(package.getPackage()),
      path_(package.getPath()) {}

OPCPartReader::~OPCPartReader() = default;

bool OPCPartReader::hasPart(const std::wstring& partName) const {
    try {
        return package_->hasPart(opc::PartName(partName));
    } catch (const opc::Exception&) { // of a text that can't be the name of any part
        return false;
    }
}

opc::Part OPCPartReader::getPart(const std::wstring& partName) const {
    return package_->getPart(opc::PartName(partName));
}

opc::Part OPCPartReader::getPart(const opc::Relationship& relationship) const {
    return getPart(relationship.getTargetURI().toString());
}

std::wstring OPCPartReader::getRelationshipTarget(const std::wstring& type) const {
    return findTarget(*package_, type);
}

std::wstring OPCPartReader::getRelationshipTarget(const opc::Part& part, const std::wstring& type) const {
    return findTarget(part, type);
}

std::vector<opc::Relationship> OPCPartReader::getRelationships(const opc::Part& part,
                                                               const std::wstring& type) const {
    std::vector<opc::Relationship> found;
    for (const opc::Relationship& relationship : part.getRelationships())
        if (relationship.getType() == type)
            found.push_back(relationship);
    return found;
}

std::vector<PackageExtra> OPCPartReader::findExtra(const opc::Part& mainPart, Extra what) const {
    return ppt::findExtra(*package_, mainPart, what);
}

} // namespace vellox::ppt
