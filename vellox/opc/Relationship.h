/// @file
/// Typed references from a package or a part (ECMA-376 Part 2, 9.3).

#ifndef VELLOX_OPC_RELATIONSHIP_H
#define VELLOX_OPC_RELATIONSHIP_H

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "vellox/foundation/Lazy.h"
#include "vellox/opc/Streams.h"
#include "vellox/opc/Uri.h"
#include "vellox/opc/XercesHelper.h"

namespace opc {

/// What the relationships of a package have in common, each text once: types and folders are long, few, and those of
/// every slide are the same.
class RelationshipTexts {
public:
    using Text = boost::shared_ptr<const std::wstring>;

    Text share(const std::wstring& text);

private:
    std::map<std::wstring, Text> texts_;
};

/// One reference. A value.
class Relationship {
public:
    Relationship(std::wstring id, RelationshipTexts::Text type, URI targetURI, bool isExternal)
        : id_(std::move(id)),
          type_(std::move(type)),
          targetURI_(std::move(targetURI)),
          isExternal_(isExternal) {}

    const std::wstring& getID() const { return id_; }
    const std::wstring& getType() const { return *type_; }
    /// An absolute part name, or the target as it stands if that lies outside the package.
    const URI& getTargetURI() const { return targetURI_; }
    bool isExternal() const { return isExternal_; }

    /// The target of one within the package as its relationship part spells it, if that was read.
    const RelationshipTexts::Text& getSpelling() const { return spelling_; }
    void setSpelling(const std::wstring& target) {
        spelling_ = boost::make_shared<const std::wstring>(target);
    }

private:
    std::wstring id_;
    RelationshipTexts::Text type_;
    URI targetURI_;
    RelationshipTexts::Text spelling_;
    bool isExternal_;
};

/// The relationships of one source, in the order of its relationship part.
class RelationshipTable {
public:
    /// @param folder the folder of the source, from which relative targets start
    /// @param texts of the package
    RelationshipTable(const std::wstring& folder, boost::shared_ptr<RelationshipTexts> texts)
        : texts_(std::move(texts)),
          folder_(texts_->share(folder)) {}
    /// An empty table that counts as changed, and so takes the place of one that is stored.
    static RelationshipTable makeEmpty(const std::wstring& folder,
                                       const boost::shared_ptr<RelationshipTexts>& texts) {
        RelationshipTable table(folder, texts);
        table.isChanged_ = true;
        return table;
    }

    /// @throws opc::Exception if the stream isn't a list of relationships
    void read(xercesc::DOMLSParser& namespaceAwareParser, InputStream& stream);
    /// Writes the part, and closes the stream.
    void write(OutputStream& stream) const;

    const std::vector<Relationship>& getAll() const { return rows_; }
    /// @return null if there is none with that id
    const Relationship* find(const std::wstring& id) const;
    /// An empty id asks for the first of rId1, rId2 ... that is free.
    const Relationship& addInternal(const std::wstring& type, const URI& target, const std::wstring& id);
    const Relationship& addExternal(const std::wstring& type, const std::wstring& target,
                                    const std::wstring& id);
    void remove(const std::set<std::wstring>& ids);
    void removeOfType(const std::wstring& type);

    bool isChanged() const { return isChanged_; }

private:
    template <class Condition> void removeIf(Condition isCondemned);
    void index(std::size_t firstRow);
    std::wstring spellTarget(const Relationship& row) const;
    std::wstring chooseID(const std::wstring& wanted);
    const Relationship& add(Relationship row);

    boost::shared_ptr<RelationshipTexts> texts_;
    RelationshipTexts::Text folder_;
    std::vector<Relationship> rows_;
    vellox::Lazy<std::unordered_map<std::wstring, std::size_t>>
        rowByID_;         // the first of each id; none of few rows
    unsigned nextID_ = 1; // no smaller number is free
    bool isChanged_ = false;
};

} // namespace opc

#endif
