/// @file
/// One package on disk, open in one of three modes.

#ifndef VELLOX_PPT_PACKAGE_OPCPACKAGE_H
#define VELLOX_PPT_PACKAGE_OPCPACKAGE_H

#include <boost/shared_ptr.hpp>
#include <istream>
#include <ostream>
#include <string>

#include "vellox/opc/Package.h"
#include "vellox/opc/Streams.h"

namespace vellox::ppt {

/// Opens a file or a folder, once, and owns everything that must stay alive while it is open. A package that
/// may be written is saved by close(), or at the latest when this object ends; but not when it ends because
/// of an exception: the file on disk is as it was then.
class OPCPackage {
public:
    explicit OPCPackage(const std::wstring& path);
    OPCPackage(const OPCPackage&) = delete;
    OPCPackage& operator=(const OPCPackage&) = delete;
    virtual ~OPCPackage();

    /// How small what is written is made: for a package that is opened after this. Normal if nothing is said.
    void setCompression(opc::Compression compression) { compression_ = compression; }
    /// @{ @throws cannotOpenFile with what is wrong and the path
    void openRead(bool allowFolder);
    /// From a stream with what stands at the path, or stood there.
    void openRead(boost::shared_ptr<std::istream> content);
    void openWrite(bool asFolder);
    void openReadWrite(bool allowFolder);
    /// From bytes in memory, to be saved to the path, which keeps what stands there until then.
    void openToSave(boost::shared_ptr<const std::string> content);
    /// @}
    /// @throws opc::Exception if the package can't be saved; the file is as it was then
    void close();

    const boost::shared_ptr<opc::Package>& getPackage() const { return package_; }
    const std::wstring& getPath() const { return path_; }
    /// A stream on any file; its state tells whether the file could be opened.
    boost::shared_ptr<std::istream> createFileInputStream(const std::wstring& path);

private:
    template <class Body> void openGuarded(opc::OpenMode mode, Body makePhysicalPackage);
    bool isFolder() const;

    boost::shared_ptr<const std::string> content_; // that the input is read from, if it isn't a file
    boost::shared_ptr<std::istream> inputFile_;
    boost::shared_ptr<std::ostream> outputFile_;
    boost::shared_ptr<opc::LocalFileSystemOps> fileOps_;
    boost::shared_ptr<opc::StdIStreamAdaptor> inputAdaptor_;
    boost::shared_ptr<opc::StdOStreamAdaptor> outputAdaptor_;
    boost::shared_ptr<opc::PhysicalPackage> physicalPackage_;
    boost::shared_ptr<opc::Package> package_;
    std::wstring path_;
    opc::Compression compression_ = opc::Compression::Normal;
    int exceptionsAtOpen_ = 0;
};

} // namespace vellox::ppt

#endif
