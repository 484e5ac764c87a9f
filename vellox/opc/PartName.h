/// @file
/// The name of a part within a package (ECMA-376 Part 2, 9.1.1).

#ifndef VELLOX_OPC_PARTNAME_H
#define VELLOX_OPC_PARTNAME_H

#include <string>

#include "vellox/opc/Uri.h"

namespace opc {

/// An absolute name such as "/ppt/slides/slide1.xml". A value.
///
/// Names are equal when they differ in the case of ASCII letters only, or in whether a character is written
/// as itself or percent-encoded. A dot at the end, which no part name may have, is dropped.
class PartName {
public:
    /// @throws opc::Exception for what can't be a part name: one that doesn't begin with "/", ends in "/",
    ///         has an empty element, "." or "..", a control character, or an encoded slash
    explicit PartName(const std::wstring& name);

    const std::wstring& toString() const { return name_; }
    /// The form under which names compare.
    const std::string& getKey() const { return key_; }
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

    bool operator==(const PartName& other) const { return key_ == other.key_; }
    bool operator!=(const PartName& other) const { return key_ != other.key_; }
    bool operator<(const PartName& other) const { return key_ < other.key_; }

private:
    std::wstring name_;
    std::string key_;
};

} // namespace opc

#endif
