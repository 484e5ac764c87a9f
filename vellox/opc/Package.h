/// @file
/// Packages, parts and what ties them together (ECMA-376 Part 2), over a container of either kind.
///
///     Package package(physicalPackage, true);
///     package.open(OpenMode::ReadWrite);
///     Part slide = package.createPart(PartName(L"/ppt/slides/slide1.xml"), ContentType(...), {});
///     slide.getOutputStream().write(bytes, count);
///     package.close(false); // saves

#ifndef VELLOX_OPC_PACKAGE_H
#define VELLOX_OPC_PACKAGE_H

#include <boost/shared_ptr.hpp>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "vellox/opc/ContentTypes.h"
#include "vellox/opc/PartName.h"
#include "vellox/opc/PhysicalPackage.h"
#include "vellox/opc/Relationship.h"
#include "vellox/opc/XercesProcess.h"

namespace opc {

/// What relationships can start from: a package or a part.
class RelationshipSource {
public:
    virtual ~RelationshipSource();

    /// All of them, in the order of the relationship part; none if there is no such part.
    /// @throws opc::Exception if the relationship part can't be read
    const std::vector<Relationship>& getRelationships() const;
    /// @throws opc::Exception if there is none with this id
    Relationship getRelationshipByID(const std::wstring& id) const;
    /// Points to another part. An empty id asks for a new one.
    Relationship createInternalRelationship(const std::wstring& type, const URI& target,
                                            const std::wstring& id);
    /// Points out of the package. An empty id asks for a new one.
    Relationship createExternalRelationship(const std::wstring& type, const std::wstring& target,
                                            const std::wstring& id);
    void deleteRelationship(const std::wstring& id);
    void deleteRelationships(const std::set<std::wstring>& ids);
    /// All of a type.
    void deleteRelationships(const std::wstring& type);

protected:
    virtual RelationshipTable& getTable() const = 0;
};

class PackageContents;

/// One part of a package. A handle: copies stand for the same part, and keep the package's contents.
class Part : public RelationshipSource {
public:
    Part(boost::shared_ptr<PackageContents> contents, boost::shared_ptr<PhysicalPart> physical);

    const PartName& getName() const;
    ContentType getContentType() const;
    /// Gives the part another type.
    void setContentType(const ContentType& type);
    /// The content as it stands, from its first byte. The stream is valid until this is called again.
    InputStream& getInputStream();
    /// Replaces the content: it is empty at first, and becomes what is written.
    OutputStream& getOutputStream();
    /// Makes a file the content. It is read, in small blocks, when the package is saved.
    void setContentFile(const std::wstring& path);

protected:
    RelationshipTable& getTable() const override;

private:
    boost::shared_ptr<PackageContents> contents_;
    boost::shared_ptr<PhysicalPart> physical_;
    boost::shared_ptr<InputStream> input_;
};

/// A package. What isn't saved by close() never happened.
class Package : public RelationshipSource {
public:
    /// The flag has only this value.
    Package(boost::shared_ptr<PhysicalPackage> physical, bool strict);
    ~Package() override;

    /// Reads the list of types and finds the parts.
    /// @throws opc::Exception if this is no package
    void open(OpenMode mode);
    /// Ends the use of the package and saves what has changed, unless it was opened for reading. Does
    /// nothing on a package that is closed. The flag has only this value.
    /// @throws opc::Exception if it can't be saved; the container is as it was then
    void close(bool discard);

    /// What all that is read of the open package is charged to, by whoever reads it.
    const boost::shared_ptr<XmlBudget>& getXmlBudget() const;
    bool hasPart(const PartName& name) const;
    /// @throws opc::Exception if there is none
    Part getPart(const PartName& name) const;
    /// @throws opc::Exception if there is a part of that name
    Part createPart(const PartName& name, const ContentType& type, const StandardPartInfo& info);
    /// Takes parts out, with the relationships that start from them. Handles on them are of no use any more, and
    /// relationships that lead to them stay.
    void deleteParts(const std::set<PartName>& names);

protected:
    RelationshipTable& getTable() const override;

private:
    boost::shared_ptr<PackageContents> contents_;
    OpenMode mode_ = OpenMode::Read;
    bool isOpen_ = false;
};

} // namespace opc

#endif
