/// @file
/// Parts and relationships of a package by plain wide text.

#ifndef VELLOX_PPT_PACKAGE_OPCPARTREADER_H
#define VELLOX_PPT_PACKAGE_OPCPARTREADER_H

#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

#include "vellox/opc/Package.h"
#include "vellox/ppt/package/PackageExtras.h"

namespace vellox::ppt {

class OPCPackage;

/// Look-ups that find nothing give an empty text; the first of several of one type is taken.
class OPCPartReader {
public:
    /// On a package of its own, a file or a folder.
    /// @throws cannotOpenFile
    explicit OPCPartReader(const std::wstring& path);
    /// On a package that is open.
    explicit OPCPartReader(const OPCPackage& package);
    virtual ~OPCPartReader();

    const std::wstring& getPath() const { return path_; }
    bool hasPart(const std::wstring& partName) const;
    /// @{ @throws opc::Exception if there is no such part
    opc::Part getPart(const std::wstring& partName) const;
    /// The part that a relationship leads to.
    opc::Part getPart(const opc::Relationship& relationship) const;
    /// @}
    /// The target of the first relationship of a type that the package itself has.
    std::wstring getRelationshipTarget(const std::wstring& type) const;
    /// The same among the relationships of a part.
    std::wstring getRelationshipTarget(const opc::Part& part, const std::wstring& type) const;
    /// All relationships of a type, in the order of the package.
    std::vector<opc::Relationship> getRelationships(const opc::Part& part, const std::wstring& type) const;
    /// An extra of the package with this main part, as ppt::findExtra().
    /// @throws opc::Exception
    std::vector<PackageExtra> findExtra(const opc::Part& mainPart, Extra what) const;

protected:
    boost::shared_ptr<opc::Package> package_;
    boost::shared_ptr<OPCPackage> owner_; // empty on a package of somebody else's
    std::wstring path_;
};

} // namespace vellox::ppt

#endif
