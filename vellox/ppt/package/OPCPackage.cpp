#include "vellox/ppt/package/OPCPackage.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/FileSystemPhysicalPackage.h"
#include "vellox/opc/ZipPhysicalPackage.h"

#include <boost/interprocess/streams/bufferstream.hpp>
#include <boost/make_shared.hpp>
#include <exception>
#include <filesystem>

namespace vellox::ppt {

OPCPackage::OPCPackage(const std::wstring& path) : path_(path) {}

OPCPackage::~OPCPackage() {
    if (!package_ || std::uncaught_exceptions() > exceptionsAtOpen_)
        return;
    try {
        package_->close(false);
    } catch (const std::exception& failure) {
        // Nobody is left to catch this; who must know whether the file was saved calls close().
        reportWarningAtEnd(ppt_error::cannotOpenFile(fromUtf8(failure.what()) + L" " + path_));
    }
}

bool OPCPackage::isFolder() const {
    std::error_code failure;
    return std::filesystem::symlink_status(toUtf8(path_), failure).type() ==
           std::filesystem::file_type::directory;
}

template <class Body> void OPCPackage::openGuarded(opc::OpenMode mode, Body makePhysicalPackage) {
    exceptionsAtOpen_ = std::uncaught_exceptions();
    try {
        makePhysicalPackage();
        physicalPackage_->setCompression(compression_);
        package_ = boost::make_shared<opc::Package>(physicalPackage_, true);
        package_->open(mode);
    } catch (const std::exception& failure) {
        raise(ppt_error::cannotOpenFile(fromUtf8(failure.what()) + L" " + path_));
    } catch (...) {
        raise(ppt_error::cannotOpenFile(path_));
    }
}

void OPCPackage::openRead(bool allowFolder) {
    openGuarded(opc::OpenMode::Read, [&] {
        if (allowFolder && isFolder()) {
            physicalPackage_ = boost::make_shared<opc::FileSystemPhysicalPackage>(path_);
            return;
        }
        fileOps_ = boost::make_shared<opc::LocalFileSystemOps>();
        inputFile_ = fileOps_->createInputStream(path_, opc::kReadBinary);
        inputAdaptor_ = boost::make_shared<opc::StdIStreamAdaptor>(inputFile_);
        physicalPackage_ = boost::make_shared<opc::ZipPhysicalPackage>(inputAdaptor_);
    });
}

void OPCPackage::openRead(boost::shared_ptr<std::istream> content) {
    openGuarded(opc::OpenMode::Read, [&] {
        inputFile_ = std::move(content);
        inputAdaptor_ = boost::make_shared<opc::StdIStreamAdaptor>(inputFile_);
        physicalPackage_ = boost::make_shared<opc::ZipPhysicalPackage>(inputAdaptor_);
    });
}

void OPCPackage::openWrite(bool asFolder) {
    openGuarded(opc::OpenMode::Write, [&] {
        if (asFolder) {
            physicalPackage_ = boost::make_shared<opc::FileSystemPhysicalPackage>(path_);
            return;
        }
        fileOps_ = boost::make_shared<opc::LocalFileSystemOps>();
        outputFile_ = fileOps_->createOutputStream(path_, opc::kWriteBinary);
        outputAdaptor_ = boost::make_shared<opc::StdOStreamAdaptor>(outputFile_);
        physicalPackage_ = boost::make_shared<opc::ZipPhysicalPackage>(outputAdaptor_, false);
    });
}

void OPCPackage::openReadWrite(bool allowFolder) {
    openGuarded(opc::OpenMode::ReadWrite, [&] {
        if (allowFolder && isFolder())
            physicalPackage_ = boost::make_shared<opc::FileSystemPhysicalPackage>(path_);
        else
            physicalPackage_ = boost::make_shared<opc::ZipPhysicalPackage>(path_, true, std::wstring());
    });
}

void OPCPackage::openToSave(boost::shared_ptr<const std::string> content) {
    openGuarded(opc::OpenMode::ReadWrite, [&] {
        content_ = std::move(content);
        inputFile_ =
            boost::make_shared<boost::interprocess::ibufferstream>(content_->data(), content_->size());
        inputAdaptor_ = boost::make_shared<opc::StdIStreamAdaptor>(inputFile_);
        physicalPackage_ = boost::make_shared<opc::ZipPhysicalPackage>(inputAdaptor_, path_);
    });
}

void OPCPackage::close() {
    if (package_)
        package_->close(false);
}

boost::shared_ptr<std::istream> OPCPackage::createFileInputStream(const std::wstring& path) {
    return opc::LocalFileSystemOps().createInputStream(path, opc::kReadBinary);
}

} // namespace vellox::ppt
