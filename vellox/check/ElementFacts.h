/// @file
/// What elements say about other things: identifiers, references, shapes, the cells of tables.

#ifndef VELLOX_CHECK_ELEMENTFACTS_H
#define VELLOX_CHECK_ELEMENTFACTS_H

#include <unordered_map>
#include <unordered_set>
#include <vector>
#include <xercesc/dom/DOM.hpp>

#include "vellox/check/DocumentFacts.h"
#include "vellox/check/NodeNames.h"
#include "vellox/check/Report.h"

namespace vellox::check {

/// Sees each element of a document once.
class ElementFacts {
public:
    explicit ElementFacts(Names& names);

    /// Begins with a document. Without relationships, references aren't looked at.
    void begin(const Place& place, const RelationshipKinds* kinds, Report& report);
    /// @param isActive false in a branch that readers which know more than the tables take instead of another
    void see(const xercesc::DOMElement& element, const NodeNames::Scope& scope, bool isActive);
    /// Compares what was seen, and hands it over.
    DocumentFacts finish();

private:
    enum class Watch;
    struct WatchRow;
    struct KindRow;
    static const WatchRow kWatched[];
    static const KindRow kKinds[];

    /// A shape that something on the slide points to.
    struct ShapeTarget {
        const xercesc::DOMElement* element;
        std::wstring id;
    };

    void act(Watch watch, const xercesc::DOMElement& element, const NodeNames::Scope& scope, bool isActive);
    void seeShape(const xercesc::DOMElement& element, const NodeNames::Scope& scope, bool isActive);
    void seeTarget(const xercesc::DOMElement& element, const XMLCh* id);
    void seeReference(const xercesc::DOMElement& element, Key key, const AttributeNode& attribute);
    void checkKind(const xercesc::DOMElement& element, Key key, const AttributeNode& attribute,
                   const std::wstring& kind);
    ListEntry readEntry(const NodeNames::Scope& scope) const;
    std::wstring getText(const NodeNames::Scope& scope, Key key) const;

    Names& names_;
    Key id_, spid_, authorId_, relationshipId_, action_;
    std::unordered_map<Key, Watch> watched_;
    std::uint32_t lastWatched_; // names are numbered as they come, and those of the map came first
    std::unordered_map<Key, const KindRow*> kindRows_; // by element

    Place place_;
    const RelationshipKinds* kinds_ = nullptr;
    Report* report_ = nullptr;
    DocumentFacts facts_;
    std::unordered_set<std::wstring> shapeIds_;      // in branches that count
    std::unordered_set<std::wstring> otherShapeIds_; // in others
    std::vector<ShapeTarget> targets_;
};

/// The name of the shape that an element belongs to; empty if it belongs to none.
std::wstring findShapeName(const xercesc::DOMElement& element);

} // namespace vellox::check

#endif
