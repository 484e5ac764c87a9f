/// @file
/// The name of a part within a package (ECMA-376 Part 2, 9.1.1).

#ifndef VELLOX_OPC_PARTNAME_H
#define VELLOX_OPC_PARTNAME_H

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <string>
#include <utility>

#include "vellox/opc/Uri.h"

namespace opc {

/// An absolute name such as "/ppt/slides/slide1.xml". A value, whose copies share their text: that of a slide stands in
/// half a dozen tables.
///
/// Names are equal when they differ in the case of ASCII letters only, or in whether a character is written
/// as itself or percent-encoded. A dot at the end, which no part name may have, is dropped.
class PartName {
public:
    /// @throws opc::Exception for what can't be a part name: one that doesn't begin with "/", ends in "/",
    ///         has an empty element, "." or "..", a control character, or an encoded slash
    explicit PartName(const std::wstring& name);
    PartName(const PartName&) = default; // and no moving, after which there would be no text
    PartName& operator=(const PartName&) = default;

    const std::wstring& toString() const { return text_->name; }
    /// The form under which names compare. It stays where it is as long as any copy.
    const std::string& getKey() const { return text_->key; }
    /// What stands before the last element, "/" included: "/ppt/slides/".
    std::wstring getFolder() const;
    /// In lower case, without the dot; empty if there is none.
    std::wstring getExtension() const;
    /// The name of the part that holds this part's relationships: "/ppt/slides/_rels/slide1.xml.rels".
    PartName getRelationshipPartName() const;
    /// The name as a reference spells it: what a URI can't hold, or holds for another purpose, percent-encoded.
    URI toURI() const;
    /// The name as an archive entry spells it: no "/" in front, and what a URI can't hold percent-encoded.
    std::string toEntryName() const;

    bool operator==(const PartName& other) const { return getKey() == other.getKey(); }
    bool operator!=(const PartName& other) const { return getKey() != other.getKey(); }
    bool operator<(const PartName& other) const { return getKey() < other.getKey(); }

private:
    struct Text {
        std::wstring name;
        std::string key;
    };

    explicit PartName(Text text) : text_(boost::make_shared<const Text>(std::move(text))) {}
    static Text makeText(const std::wstring& name);

    boost::shared_ptr<const Text> text_;
};

} // namespace opc

#endif
