#include "vellox/ppt/writers/DocumentProperties.h"

#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/xml/Dom.h"

#include <array>
#include <ctime>
#include <map>
#include <set>

namespace vellox::ppt {

using namespace xercesc;

namespace {

constexpr const XMLCh* kNamespaces[][2] = {
    {u"xmlns:cp", u"http://schemas.openxmlformats.org/package/2006/metadata/core-properties"},
    {u"xmlns:dc", u"http://purl.org/dc/elements/1.1/"},
    {u"xmlns:dcterms", u"http://purl.org/dc/terms/"},
    {u"xmlns:xsi", u"http://www.w3.org/2001/XMLSchema-instance"},
};

// All that there are, in the order in which programs write them.
constexpr const XMLCh* kCoreElements[] = {
    u"dc:title",          u"dc:subject",       u"dc:creator",     u"cp:keywords",     u"dc:description",
    u"cp:lastModifiedBy", u"cp:revision",      u"cp:lastPrinted", u"dcterms:created", u"dcterms:modified",
    u"cp:category",       u"cp:contentStatus", u"dc:identifier",  u"dc:language",     u"cp:version",
};

using Texts = std::map<std::u16string, std::wstring>; // by names without prefixes

std::u16string getLocalName(const XMLCh* name) {
    const std::u16string text(name);
    const std::size_t colon = text.find(u':');
    return colon == std::u16string::npos ? text : text.substr(colon + 1);
}

Texts readTexts(const OwnedDocument& document) {
    Texts texts;
    if (document)
        for (const DOMElement* element : getChildElements(document->getDocumentElement()))
            texts.emplace(getLocalName(element->getNodeName()), opc::toWideString(element->getTextContent()));
    return texts;
}

std::wstring tellTime() {
    const std::time_t now = std::time(nullptr);
    std::tm calendar{};
    gmtime_r(&now, &calendar);
    std::array<wchar_t, 32> text{};
    std::wcsftime(text.data(), text.size(), L"%Y-%m-%dT%H:%M:%SZ", &calendar);
    return text.data();
}

void renew(Texts& texts) {
    for (const char16_t* name : {u"creator", u"lastModifiedBy", u"lastPrinted"})
        texts.erase(name);
    texts[u"revision"] = L"1";
    texts[u"created"] = texts[u"modified"] = tellTime();
}

void apply(const DocumentProperties& properties, Texts& texts) {
    const auto set = [&](const char16_t* name, const std::optional<std::wstring>& value) {
        if (value)
            texts[name] = *value;
    };
    set(u"title", properties.title);
    set(u"subject", properties.subject);
    set(u"creator", properties.author);
    set(u"lastModifiedBy", properties.author);
    set(u"keywords", properties.keywords);
}

OwnedDocument makeCoreDocument(const Texts& texts) {
    OwnedDocument document(opc::XercesHelper::createDocument(u"cp:coreProperties"));
    document->setXmlStandalone(true);
    DOMElement* root = document->getDocumentElement();
    for (const auto& [name, uri] : kNamespaces)
        setAttribute(root, name, uri);
    for (const XMLCh* name : kCoreElements) {
        const auto text = texts.find(getLocalName(name));
        if (text == texts.end() || text->second.empty())
            continue;
        DOMElement* element = appendElement(root, name);
        if (XMLString::startsWith(name, u"dcterms:"))
            setAttribute(element, u"xsi:type", u"dcterms:W3CDTF");
        appendText(element, text->second);
    }
    return document;
}

// Counts and lists that nobody brings up to date.
bool tellsOfTemplate(const std::u16string& name) {
    static const auto& names = *new const std::set<std::u16string>{u"Characters",   u"CharactersWithSpaces",
                                                                   u"DigSig",       u"HLinks",
                                                                   u"HeadingPairs", u"HiddenSlides",
                                                                   u"Lines",        u"MMClips",
                                                                   u"Notes",        u"Pages",
                                                                   u"Paragraphs",   u"TitlesOfParts",
                                                                   u"TotalTime",    u"Words"};
    return names.count(name) > 0;
}

// A package with two such parts would be damaged.
std::wstring findCoreProperties(const PPTPartWriter& partWriter) {
    const std::wstring usual = partWriter.findPackagePart(relationship::kCoreProperties);
    return usual.empty() ? partWriter.findPackagePart(relationship::kOtherCoreProperties) : usual;
}

} // namespace

void writeCoreProperties(const DocumentProperties& properties, bool areRenewed, PPTPartWriter& partWriter) {
    const std::wstring present = findCoreProperties(partWriter);
    Texts texts = readTexts(partWriter.readIfWellFormed(present));
    if (areRenewed)
        renew(texts);
    apply(properties, texts);
    const OwnedDocument document = makeCoreDocument(texts);
    if (present.empty())
        partWriter.writePackageDocument(L"/docProps/core", relationship::kCoreProperties,
                                        contenttype::kCoreProperties, document.get());
    else
        partWriter.writeDocument(present, document.get());
}

void renewExtendedProperties(std::size_t slides, PPTPartWriter& partWriter) {
    const std::wstring present = partWriter.findPackagePart(relationship::kExtendedProperties);
    const OwnedDocument document = partWriter.readIfWellFormed(present);
    if (!document)
        return;
    for (DOMElement* element : getChildElements(document->getDocumentElement())) {
        const std::u16string name = getLocalName(element->getNodeName());
        if (tellsOfTemplate(name))
            removeNode(element);
        else if (name == u"Slides")
            element->setTextContent(opc::XercesString(std::to_wstring(slides)).get());
    }
    partWriter.writeDocument(present, document.get());
}

} // namespace vellox::ppt
