/// @file
/// From a file to the index of its parts, with findings about the archive, the content types and the rows of
/// relationship parts.

#ifndef VELLOX_CHECK_PACKAGEREADER_H
#define VELLOX_CHECK_PACKAGEREADER_H

#include <map>
#include <string>

#include "vellox/check/PackageIndex.h"
#include "vellox/check/XmlReader.h"

namespace vellox::check {

class PackageReader {
public:
    PackageReader(std::wstring path, XmlReader& xml, Report& report)
        : path_(std::move(path)),
          xml_(xml),
          report_(report) {}

    /// @return false if there is nothing to look at any further
    /// @throws opc::Exception if the container can't be opened
    bool read(PackageIndex& index);

private:
    using TypeTable = std::map<std::string, std::wstring>;

    void openContainer();
    void checkEntries() const;
    bool readContentTypes();
    void readTypeRow(const xercesc::DOMElement& row);
    void setType(TypeTable& table, const std::string& key, const std::wstring& type,
                 const std::wstring& label);
    void listParts(PackageIndex& index);
    std::wstring findType(const opc::PartName& name) const;
    void checkOverrides(const PackageIndex& index) const;
    void readRelationships(PackageIndex& index);
    void readRelationshipPart(const opc::PhysicalPart& part, PackageIndex& index);
    RelationshipRow readRelationship(const xercesc::DOMElement& element, const std::wstring& source,
                                     const Place& place) const;

    std::wstring path_;
    XmlReader& xml_;
    Report& report_;
    boost::shared_ptr<opc::PhysicalPackage> container_;
    TypeTable defaults_;  // by extension
    TypeTable overrides_; // by the key of the part
    std::map<PartKey, std::wstring> overrideNames_;
    std::vector<boost::shared_ptr<opc::PhysicalPart>> relationshipParts_;
};

} // namespace vellox::check

#endif
