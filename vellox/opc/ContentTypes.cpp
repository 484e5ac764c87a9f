#include "vellox/opc/ContentTypes.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/MarkupBuffer.h"
#include "vellox/opc/XercesString.h"

#include <boost/algorithm/string/predicate.hpp>
#include <utility>

namespace opc {

using namespace xercesc;

namespace {

const XMLCh kNamespace[] = u"http://schemas.openxmlformats.org/package/2006/content-types";
constexpr wchar_t kUnknownBytes[] = L"application/octet-stream";

std::wstring getAttribute(const DOMElement& element, const XMLCh* name) {
    return toWideString(element.getAttribute(name));
}

// With attributes in the order of their names.
void appendRow(MarkupBuffer& out, std::string_view start, const XMLCh* key, const std::wstring& keyText,
               const std::wstring& type) {
    out.append(start);
    out.appendAttribute(u"ContentType", XercesString(type));
    out.appendAttribute(key, XercesString(keyText));
    out.append("/>");
}

} // namespace

bool ContentType::isXml() const {
    // An SVG image is XML too, but it goes with the other images.
    if (boost::algorithm::starts_with(text_, L"image/"))
        return false;
    return boost::algorithm::ends_with(text_, L"+xml") || boost::algorithm::ends_with(text_, L"/xml");
}

void ContentTypes::read(DOMLSParser& parser, InputStream& stream) {
    const DocumentScope document(XercesHelper::readDocumentFromStream(&parser, stream, false, {}, {}));
    const DOMElement* root = document->getDocumentElement();
    if (!XMLString::equals(root->getLocalName(), u"Types") ||
        !XMLString::equals(root->getNamespaceURI(), kNamespace))
        throw Exception("[Content_Types].xml isn't a list of content types");
    hasPrefix_ = root->getPrefix() != nullptr;
    std::uint64_t rows = 0;
    for (const DOMElement* row = root->getFirstElementChild(); row; row = row->getNextElementSibling()) {
        if (++rows > kMaxEntries)
            throw Exception("[Content_Types].xml lists more than " + std::to_string(kMaxEntries) + " types");
        const std::wstring type = getAttribute(*row, u"ContentType");
        if (XMLString::equals(row->getLocalName(), u"Default"))
            setDefault(getAttribute(*row, u"Extension"), type);
        else if (XMLString::equals(row->getLocalName(), u"Override"))
            setOverride(PartName(getAttribute(*row, u"PartName")), type);
    }
}

void ContentTypes::write(OutputStream& stream) const {
    MarkupBuffer out;
    const std::size_t start = out.openDocument("Types", kNamespace);
    for (const Default& row : defaults_)
        appendRow(out, "<Default", u"Extension", row.extension, *row.type);
    for (const Override& row : overrides_)
        appendRow(out, "<Override", u"PartName", row.name.toString(), *row.type);
    out.closeElement("Types", start);
    stream.write(reinterpret_cast<const unsigned char*>(out.get().data()), out.getLength());
    stream.close();
}

ContentType ContentTypes::find(const PartName& name) const {
    const auto single = overrideByName_.find(name.getKey());
    if (single != overrideByName_.end())
        return ContentType(*overrides_[single->second].type);
    const auto general = defaultByExtension_.find(name.getExtension());
    return ContentType(general == defaultByExtension_.end() ? L"" : *defaults_[general->second].type);
}

void ContentTypes::add(const PartName& name, const ContentType& type) {
    const std::wstring present = find(name).toString();
    const bool isUnknown = type.toString().empty();
    const std::wstring text = isUnknown ? kUnknownBytes : type.toString();
    if (present == text || (isUnknown && !present.empty()))
        return;
    isChanged_ = true;
    const std::wstring extension = name.getExtension();
    const bool isOverridden = overrideByName_.count(name.getKey()) > 0; // a row that outlived its part
    if (type.isXml() || isOverridden || extension.empty() || defaultByExtension_.count(extension) > 0)
        setOverride(name, text);
    else
        setDefault(extension, text);
}

void ContentTypes::change(const PartName& name, const ContentType& type) {
    isChanged_ = true;
    setOverride(name, type.toString());
}

void ContentTypes::remove(const std::set<PartName>& names) {
    const std::vector<Override> former = std::exchange(overrides_, {});
    overrideByName_.clear();
    for (const Override& row : former)
        if (names.count(row.name) == 0)
            setOverride(row.name, *row.type);
    isChanged_ = isChanged_ || overrides_.size() != former.size();
}

void ContentTypes::setDefault(const std::wstring& extension, const std::wstring& type) {
    const std::wstring key = vellox::toLowerString(extension);
    if (defaultByExtension_.emplace(key, defaults_.size()).second)
        defaults_.push_back({extension, hold(type)});
}

void ContentTypes::setOverride(const PartName& name, const std::wstring& type) {
    const auto entry = overrideByName_.emplace(name.getKey(), overrides_.size());
    if (entry.second)
        overrides_.push_back({name, hold(type)});
    else
        overrides_[entry.first->second].type = hold(type);
}

} // namespace opc
