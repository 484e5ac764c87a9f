#include "vellox/check/Names.h"

#include "vellox/opc/XercesString.h"

namespace vellox::check {

namespace {

struct NamespaceRow {
    Namespace space;
    const char* prefix;
    const char16_t* uri;
    const char16_t* strictUri; // of the same, in the strict form; or null
};

constexpr NamespaceRow kNamespaces[] = {
    {kPresentation, "p", u"http://schemas.openxmlformats.org/presentationml/2006/main",
     u"http://purl.oclc.org/ooxml/presentationml/main"},
    {kDrawing, "a", u"http://schemas.openxmlformats.org/drawingml/2006/main",
     u"http://purl.oclc.org/ooxml/drawingml/main"},
    {kChart, "c", u"http://schemas.openxmlformats.org/drawingml/2006/chart",
     u"http://purl.oclc.org/ooxml/drawingml/chart"},
    {kPicture, "pic", u"http://schemas.openxmlformats.org/drawingml/2006/picture",
     u"http://purl.oclc.org/ooxml/drawingml/picture"},
    {kShared, "s", u"http://schemas.openxmlformats.org/officeDocument/2006/sharedTypes",
     u"http://purl.oclc.org/ooxml/officeDocument/sharedTypes"},
    {kRelationships, "r", u"http://schemas.openxmlformats.org/officeDocument/2006/relationships",
     u"http://purl.oclc.org/ooxml/officeDocument/relationships"},
    {kCompatibility, "mc", u"http://schemas.openxmlformats.org/markup-compatibility/2006", nullptr},
    {kPresentation2010, "p14", u"http://schemas.microsoft.com/office/powerpoint/2010/main", nullptr},
    {kContentTypes, "", u"http://schemas.openxmlformats.org/package/2006/content-types", nullptr},
    {kPackageRelationships, "", u"http://schemas.openxmlformats.org/package/2006/relationships", nullptr},
    {kXml, "xml", u"http://www.w3.org/XML/1998/namespace", nullptr},
    {kInstance, "xsi", u"http://www.w3.org/2001/XMLSchema-instance", nullptr},
};

} // namespace

Names::Names() {
    namespaces_[u""] = kNoNamespace;
    for (const NamespaceRow& row : kNamespaces) {
        namespaces_[row.uri] = row.space;
        if (row.strictUri)
            namespaces_[row.strictUri] = row.space;
    }
}

std::uint32_t Names::findName(std::u16string_view text) {
    const auto found = numbers_.find(text);
    if (found != numbers_.end())
        return found->second;
    texts_.emplace_back(text);
    const auto number = static_cast<std::uint32_t>(texts_.size() - 1);
    numbers_.emplace(texts_.back(), number);
    return number;
}

std::uint32_t Names::findName(std::string_view ascii) {
    return findName(std::u16string(ascii.begin(), ascii.end()));
}

Namespace Names::findNamespace(std::u16string_view uri) {
    const auto next = static_cast<Namespace>(kFirstOther + namespaces_.size());
    return namespaces_.emplace(uri, next).first->second;
}

bool Names::isStrict(std::u16string_view uri) {
    for (const NamespaceRow& row : kNamespaces)
        if (row.strictUri && uri == row.strictUri)
            return true;
    return false;
}

std::wstring Names::spell(Key key) const {
    for (const NamespaceRow& row : kNamespaces)
        if (row.space == getNamespace(key) && row.prefix[0])
            return widen(std::string_view(row.prefix)) + L":" + spellLocal(key);
    return spellLocal(key);
}

std::wstring Names::spellLocal(Key key) const {
    return key == kAnyKey ? L"any element" : widen(texts_[static_cast<std::uint32_t>(key)]);
}

Namespace findTableNamespace(std::string_view prefix) {
    for (const NamespaceRow& row : kNamespaces)
        if (prefix == row.prefix)
            return row.space;
    return kNoNamespace;
}

std::wstring widen(std::u16string_view text) {
    return opc::toWideString(std::u16string(text).c_str());
}

std::wstring widen(std::string_view ascii) {
    return std::wstring(ascii.begin(), ascii.end());
}

} // namespace vellox::check
