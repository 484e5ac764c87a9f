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

/// What there is to see at an element.
enum class Watch {
    Nothing,
    Shape,
    TargetBySpid,
    TargetById,
    Slide,
    Master,
    Layout,
    NotesMaster,
    HandoutMaster,
    SectionSlide,
    Author,
    Comment,
    Table
};

Watch findWatch(Namespace space, std::u16string_view name);

/// The kinds of relationships that references may name.
struct TargetKinds {
    const wchar_t* kind = nullptr;  ///< null for any
    const wchar_t* other = nullptr; ///< allowed too, or null

    bool take(const std::wstring& found) const { return !kind || found == kind || (other && found == other); }
};

/// Those of an element.
/// @param action what the element does; only links do anything
TargetKinds findTargetKinds(Namespace space, std::u16string_view name, std::u16string_view action);

/// Whether an element of this name is a link, which may do something without a reference.
bool isLink(std::u16string_view name);

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
