/// @file
/// What the names in one document mean, whichever prefixes stand there.

#ifndef VELLOX_CHECK_NODENAMES_H
#define VELLOX_CHECK_NODENAMES_H

#include <unordered_map>
#include <utility>
#include <vector>
#include <xercesc/dom/DOM.hpp>

#include "vellox/check/Names.h"

namespace vellox::check {

/// The namespace of a name whose prefix nobody has declared.
constexpr Namespace kUndeclared = static_cast<Namespace>(~0U);

struct AttributeNode {
    Key key;
    const XMLCh* value;
};

/// Resolves prefixes on the way down a document and forgets them on the way up. It goes by the names as they
/// are spelled, so that it serves documents that were read with namespaces and without.
class NodeNames {
public:
    explicit NodeNames(Names& names);

    /// Forgets the document before.
    void reset();
    Names& getNames() const { return names_; }
    /// The meaning of a prefix here.
    Namespace findPrefix(std::u16string_view prefix);
    /// True once a strict namespace was declared.
    bool isStrict() const { return isStrict_; }

    /// An element that the walk is in: its name, its attributes without declarations, and its prefixes as
    /// long as it lives. Scopes end in the reverse order of their beginning.
    class Scope {
    public:
        Scope(NodeNames& names, const xercesc::DOMElement& element);
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope();

        Key getKey() const { return key_; }
        const AttributeNode* begin() const { return names_.attributes_.data() + firstAttribute_; }
        const AttributeNode* end() const { return begin() + attributeCount_; }
        /// The value of an attribute, or null.
        const XMLCh* find(Key key) const;

    private:
        NodeNames& names_;
        std::size_t firstDeclaration_;
        std::size_t firstAttribute_;
        std::size_t attributeCount_ = 0;
        Key key_ = 0;
    };

private:
    /// A name as it is spelled, taken apart once.
    struct Spelling {
        std::uint32_t prefix;
        std::uint32_t local;
        bool isDeclaration; // of the prefix whose number stands in "local"
    };

    struct Slot {
        const XMLCh* name = nullptr;
        Spelling spelling = {};
    };

    Spelling read(const XMLCh* name);
    Spelling takeApart(std::u16string_view name);
    Slot& findSlot(const XMLCh* name);
    void grow();
    std::uint32_t findPrefixNumber(std::u16string_view prefix);
    void declare(std::uint32_t prefix, const XMLCh* uri);

    Names& names_;
    // A document keeps one copy of each name, so that the address tells the name. This is asked for each
    // element and attribute, and a plain table with open addresses is what keeps the walk quick.
    std::vector<Slot> slots_;
    std::size_t usedSlots_ = 0;
    std::unordered_map<std::u16string, std::uint32_t> prefixNumbers_;
    std::vector<Namespace> meanings_; // by the number of the prefix
    std::vector<std::pair<std::uint32_t, Namespace>> former_;
    std::vector<AttributeNode> attributes_;
    bool isStrict_ = false;
};

/// What an element is called after its prefix.
std::u16string_view getLocalName(const xercesc::DOMNode& node);

} // namespace vellox::check

#endif
