/// @file
/// What a package and the handles on its parts share. Package.h is the front door.

#ifndef VELLOX_OPC_PACKAGECONTENTS_H
#define VELLOX_OPC_PACKAGECONTENTS_H

#include <boost/make_shared.hpp>
#include <map>
#include <string_view>
#include <unordered_map>

#include "vellox/opc/Package.h"

namespace opc {

class PackageContents {
public:
    explicit PackageContents(boost::shared_ptr<PhysicalPackage> physical);

    void open(OpenMode mode);
    /// Writes the type and relationship streams that need it, then the container.
    void save();
    void closeUnsaved();

    /// @return an empty pointer if there is none
    boost::shared_ptr<PhysicalPart> findPart(const PartName& name) const;
    boost::shared_ptr<PhysicalPart> createPart(const PartName& name, const ContentType& type,
                                               StandardPartInfo info);
    void deleteParts(const std::set<PartName>& names);
    /// The relationships of the package (no source) or of a part; read on first use.
    RelationshipTable& getRelationships(const PartName* source);
    ContentTypes& getContentTypes() { return types_; }
    const boost::shared_ptr<XmlBudget>& getXmlBudget() const { return budget_; }

private:
    boost::shared_ptr<PhysicalPart> addPart(const PartName& name, const ContentType& type,
                                            StandardPartInfo info);
    void indexParts();
    void saveRelationships();
    bool hasChanges() const;

    XercesProcess xerces_;
    boost::shared_ptr<XmlBudget> budget_;
    ParserScope parser_; // from the opening on
    boost::shared_ptr<PhysicalPackage> physical_;
    ContentTypes types_;
    boost::shared_ptr<RelationshipTexts> relationshipTexts_ = boost::make_shared<RelationshipTexts>();
    std::unordered_map<std::string_view, boost::shared_ptr<PhysicalPart>>
        parts_; // by the keys of their names
    std::map<PartName, RelationshipTable>
        sources_; // by the name of the relationship part, in whose order they are saved
    bool hasDeleted_ = false;
};

} // namespace opc

#endif
