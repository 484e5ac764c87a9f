/// @file
/// Names as numbers, so that documents are compared with the tables without comparing texts.

#ifndef VELLOX_CHECK_NAMES_H
#define VELLOX_CHECK_NAMES_H

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vellox::check {

/// The namespaces that the check knows. Others are numbered from Other on, as they come.
enum Namespace : std::uint32_t {
    kNoNamespace,
    kPresentation,
    kDrawing,
    kChart,
    kPicture,
    kShared,
    kRelationships,
    kCompatibility,
    kPresentation2010,
    kContentTypes,
    kPackageRelationships,
    kXml,
    kInstance,
    kFirstOther
};

/// A namespace and a local name.
using Key = std::uint64_t;

/// A key that no name has: it stands for an element of any kind.
constexpr Key kAnyKey = ~Key(0);

inline Namespace getNamespace(Key key) {
    return static_cast<Namespace>(key >> 32);
}

/// The numbers of names and namespaces. Grows with what it is asked for.
class Names {
public:
    Names();

    std::uint32_t findName(std::u16string_view text);
    std::uint32_t findName(std::string_view ascii);
    Namespace findNamespace(std::u16string_view uri);
    std::size_t count() const { return texts_.size() + namespaces_.size(); }
    /// Whether a namespace is that of the other, strict form of the format.
    static bool isStrict(std::u16string_view uri);

    static Key makeKey(Namespace space, std::uint32_t name) { return Key(space) << 32 | name; }
    Key makeKey(Namespace space, std::string_view ascii) { return makeKey(space, findName(ascii)); }
    /// The name with the prefix that is usual for its namespace.
    std::wstring spell(Key key) const;
    std::wstring spellLocal(Key key) const;

private:
    std::deque<std::u16string> texts_; // keeps the views of the index valid
    std::unordered_map<std::u16string_view, std::uint32_t> numbers_;
    std::unordered_map<std::u16string, Namespace> namespaces_;
};

/// The namespace that a prefix of the tables stands for.
Namespace findTableNamespace(std::string_view prefix);

/// The wide form of what stands in a document or is spelled in ASCII.
std::wstring widen(std::u16string_view text);
std::wstring widen(std::string_view ascii);

} // namespace vellox::check

#endif
