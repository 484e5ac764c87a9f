/// @file
/// A package in a folder, each part a file.

#ifndef VELLOX_OPC_FILESYSTEMPHYSICALPACKAGE_H
#define VELLOX_OPC_FILESYSTEMPHYSICALPACKAGE_H

#include <filesystem>
#include <string>

#include "vellox/opc/PhysicalPackage.h"

namespace opc {

/// A folder. Links in it are no parts, since they could lead anywhere. Saving writes each changed part
/// beside its file and renames it over that; unlike an archive, a folder isn't replaced as a whole.
class FileSystemPhysicalPackage : public PhysicalPackage {
public:
    explicit FileSystemPhysicalPackage(const std::wstring& path);

    void open(OpenMode mode) override;
    void close(bool save) override;
    boost::shared_ptr<PhysicalPart> createPart(const PartName& name, StandardPartInfo info) override;
    OutputStream& getContentTypeOutputStream() override;

private:
    class File;

    void listFiles();
    boost::shared_ptr<PhysicalPart> makeFile(const PartName& name, StandardPartInfo info) const;

    std::filesystem::path folder_;
};

} // namespace opc

#endif
