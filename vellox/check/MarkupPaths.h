/// @file
/// What may follow what in markup, learnt tag by tag.

#ifndef VELLOX_CHECK_MARKUPPATHS_H
#define VELLOX_CHECK_MARKUPPATHS_H

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "vellox/check/ElementFacts.h"
#include "vellox/check/NodeNames.h"
#include "vellox/check/Schema.h"

namespace vellox::check {

/// The tables as a net of spots and steps. A spot is where one can be in an element of some type: how far its
/// children have got, and what prefixes mean there. A step is a start tag as it is spelled, attributes and all.
/// Each is looked up in the tables when it first comes along; whoever comes the same way again only compares texts.
///
/// What is plain is told as sound. Anything else is no step at all: whether it is a fault isn't asked here.
class MarkupPaths {
public:
    struct Spot;

    /// What an element's attribute refers to.
    struct Reference {
        std::wstring id;
        TargetKinds kinds;
    };

    struct Step {
        std::string tag;        ///< "<a:off x=\"0\" y=\"0\"/>"
        Spot* after = nullptr;  ///< where one is behind the element
        Spot* within = nullptr; ///< where one is in it; null if the tag ends it, too
        Key key = 0;
        Watch watch = Watch::Nothing;
        std::string id = {}; ///< of the shape, or of the one that is pointed to
        std::vector<Reference> references = {};
        bool isPlain = false; ///< there is nothing to watch, and it is no piece of a table
    };

    struct Spot {
        const ElementType* type; ///< null where nothing is known
        TypeId typeId;
        ContentModel::State state;
        Key key;
        unsigned context;
        bool mayEnd;
        std::string end;           ///< "</a:p>"
        std::vector<Step> steps{}; ///< those that were taken often stand in front
    };

    MarkupPaths();
    MarkupPaths(const MarkupPaths&) = delete;
    MarkupPaths& operator=(const MarkupPaths&) = delete;

    /// Outside of a root element, ahead of it.
    Spot& getStart() { return *start_; }
    /// The step that a markup begins with.
    /// @return null if there is none; valid until the next is asked for
    const Step* follow(Spot& spot, std::string_view markup);
    /// Where one is behind some text.
    /// @return null if it can't stand there
    Spot* passText(Spot& spot, std::string_view text);
    /// Spots and steps so far, about.
    std::size_t count() const { return learnt_; }

    /// @{ Of tables.
    Key getColumn() const { return column_; }
    Key getRow() const { return row_; }
    Key getCell() const { return cell_; }
    /// @}

private:
    struct Attribute {
        std::string_view name, value;
        Key key = 0;
    };
    struct Tag {
        std::string_view text, name;
        std::vector<Attribute> attributes;
        bool isEmpty = false;
    };
    using Context = std::map<std::string, Namespace, std::less<>>; // by prefix

    static bool read(std::string_view markup, Tag& tag);
    const Step* learn(Spot& spot, Tag& tag);
    bool enter(Tag& tag, unsigned& context, Key& key);
    unsigned declare(unsigned context, const Tag& tag);
    bool findKey(unsigned context, std::string_view name, Namespace plain, Key& key);
    bool findType(const Spot& spot, Key key, ContentModel::State& next, TypeId& type);
    bool takesAttributes(const Tag& tag, const ElementType& type, unsigned context) const;
    bool isKnown(std::string_view prefixes, unsigned context) const;
    bool seeFacts(const Tag& tag, Key key, Step& step) const;
    bool mayEnd(const ElementType* type, ContentModel::State state) const;
    Spot& requireSpot(unsigned context, TypeId typeId, Key key, ContentModel::State state,
                      std::string_view end);

    Names names_;
    Schema schema_;
    Key alternate_, ignorable_, column_, row_, cell_;
    std::vector<Context> contexts_;
    std::map<std::tuple<unsigned, TypeId, Key, ContentModel::State, std::string>, Spot> spots_;
    Spot* start_;
    std::size_t learnt_ = 0;
};

} // namespace vellox::check

#endif
