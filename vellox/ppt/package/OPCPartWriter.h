/// @file
/// Making parts in a package by plain wide text.

#ifndef VELLOX_PPT_PACKAGE_OPCPARTWRITER_H
#define VELLOX_PPT_PACKAGE_OPCPARTWRITER_H

#include <boost/shared_ptr.hpp>
#include <istream>
#include <string>

#include "vellox/opc/Package.h"

namespace vellox::ppt {

class OPCPackage;

class OPCPartWriter {
public:
    /// On a new package of its own.
    /// @throws cannotOpenFile
    OPCPartWriter(const std::wstring& path, bool asFolder);
    /// On a package that is open.
    explicit OPCPartWriter(boost::shared_ptr<OPCPackage> package);
    virtual ~OPCPartWriter();

    bool hasPart(const std::wstring& partName) const;
    /// @throws opc::Exception if there is no such part
    opc::Part getPart(const std::wstring& partName) const;
    /// A new part, compressed.
    /// @throws opc::Exception if the name can't be had
    opc::Part createPart(const std::wstring& partName, const std::wstring& contentType);
    /// A new part whose bytes are stored as they are.
    /// @throws opc::Exception if the name can't be had
    opc::Part createStoredPart(const std::wstring& partName, const std::wstring& contentType);
    /// The package that is written to.
    const OPCPackage& getPackage() const { return *owner_; }
    /// A stream on any file; its state tells whether the file could be opened.
    boost::shared_ptr<std::istream> createFileInputStream(const std::wstring& path);

protected:
    boost::shared_ptr<opc::Package> package_;
    boost::shared_ptr<OPCPackage> owner_;
    std::wstring path_;
};

} // namespace vellox::ppt

#endif
