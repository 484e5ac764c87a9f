#include "vellox/opc/PhysicalPackage.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <fstream>
#include <sstream>

namespace opc {

const wchar_t PhysicalPackage::kContentTypesEntry[] = L"[Content_Types].xml";

PhysicalPart::~PhysicalPart() = default;
PhysicalPackage::~PhysicalPackage() = default;

boost::shared_ptr<InputStream> PhysicalPart::openInput() const {
    if (content_ == Content::Original)
        return openOriginal();
    if (content_ == Content::Bytes)
        return boost::make_shared<StdIStreamAdaptor>(boost::make_shared<std::istringstream>(readBytes()));
    return boost::make_shared<StdIStreamAdaptor>(
        LocalFileSystemOps().createInputStream(getContentFile(), kReadBinary));
}

OutputStream& PhysicalPart::startOutput() {
    content_ = Content::Bytes;
    bytes_.clear();
    beginBytes();
    return output_;
}

void PhysicalPart::setContentFile(const std::wstring& path) {
    content_ = Content::File;
    file_.require() = path;
}

void PhysicalPackage::deleteParts(const std::set<PartName>& names) {
    parts_.erase(std::remove_if(parts_.begin(), parts_.end(),
                                [&](const auto& part) { return names.count(part->getName()) > 0; }),
                 parts_.end());
}

void PhysicalPackage::addEntry(const std::wstring& entryName, boost::shared_ptr<PhysicalPart> part) {
    if (vellox::toLowerString(entryName) != vellox::toLowerString(kContentTypesEntry)) {
        parts_.push_back(std::move(part));
        return;
    }
    if (contentTypes_)
        throw Exception("it has two entries named " + vellox::toUtf8(kContentTypesEntry));
    contentTypes_ = std::move(part);
}

} // namespace opc
