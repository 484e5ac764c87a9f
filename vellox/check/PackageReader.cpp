#include "vellox/check/PackageReader.h"

#include "vellox/check/NodeNames.h"
#include "vellox/check/ValueType.h"
#include "vellox/foundation/Conversions.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/FileSystemPhysicalPackage.h"
#include "vellox/opc/Uri.h"
#include "vellox/opc/XercesString.h"
#include "vellox/opc/ZipDirectory.h"
#include "vellox/opc/ZipPhysicalPackage.h"

#include <boost/algorithm/string/predicate.hpp>
#include <boost/make_shared.hpp>

#include <filesystem>
#include <set>

namespace vellox::check {

using namespace xercesc;

namespace {

const XMLCh kTypesNamespace[] = u"http://schemas.openxmlformats.org/package/2006/content-types";
const XMLCh kRelationshipsNamespace[] = u"http://schemas.openxmlformats.org/package/2006/relationships";
const Place kTypesPlace{L"/[Content_Types].xml", 0};

bool hasName(const DOMElement& element, const XMLCh* space, const XMLCh* name) {
    return XMLString::equals(element.getLocalName(), name) &&
           XMLString::equals(element.getNamespaceURI(), space);
}

bool isFolder(const std::wstring& path) {
    std::error_code failure;
    return std::filesystem::is_directory(toUtf8(path), failure);
}

/// The key of the part that a name or target stands for; empty if it can't be one.
PartKey makeKey(const std::wstring& name) {
    try {
        return opc::PartName(name).getKey();
    } catch (const opc::Exception&) {
        return {};
    }
}

bool isRelationshipPart(const opc::PartName& name) {
    return name.getExtension() == L"rels" && boost::algorithm::iends_with(name.getFolder(), L"/_rels/");
}

/// "/ppt/_rels/presentation.xml.rels" gives "/ppt/presentation.xml", "/_rels/.rels" gives "/".
std::wstring getSourceName(const std::wstring& name) {
    const std::size_t slash = name.rfind(L'/');
    const std::size_t folder = name.rfind(L'/', slash - 1);
    return name.substr(0, folder + 1) + name.substr(slash + 1, name.size() - slash - 1 - 5);
}

std::wstring getFolder(const std::wstring& name) {
    return name.substr(0, name.rfind(L'/') + 1);
}

std::wstring getLastStep(const std::wstring& type) {
    const std::size_t end = type.find_last_not_of(L'/');
    const std::wstring path = type.substr(0, end == type.npos ? 0 : end + 1);
    return path.substr(path.rfind(L'/') + 1);
}

bool isMediaType(const std::wstring& type) {
    const std::size_t slash = type.find(L'/');
    return slash != type.npos && slash > 0 && slash + 1 < type.size() && type.find(L' ') > slash;
}

/// An entry that lies outside the package, or has a name that reads otherwise elsewhere.
bool isForeignEntry(const std::string& name) {
    return name[0] == '/' || name.find('\\') != name.npos || ("/" + name + "/").find("/../") != name.npos;
}

} // namespace

bool PackageReader::read(PackageIndex& index) {
    if (!isFolder(path_))
        checkEntries();
    openContainer();
    if (!readContentTypes())
        return false;
    listParts(index);
    checkOverrides(index);
    readRelationships(index);
    return true;
}

void PackageReader::checkEntries() const {
    std::set<std::string> names;
    unsigned folders = 0;
    for (const opc::ZipEntryFacts& entry : opc::listZipEntries(path_)) {
        const Place place{fromUtf8("/" + entry.name), 0};
        if (entry.name.empty() || isForeignEntry(entry.name))
            report_.add(Code::entryName, place, L"the entry has a name that no part can have");
        else if (entry.name.back() == '/')
            ++folders;
        else if (!names.insert(toUtf8(toLowerString(fromUtf8(entry.name)))).second)
            report_.add(Code::duplicateEntry, place,
                        L"the archive has another entry of that name, upper and lower case aside");
        if (!entry.isUsualCompression)
            report_.add(Code::unsupportedCompression, place, L"the entry is neither stored nor deflated");
    }
    if (folders > 0)
        report_.add(Code::folderEntry, {},
                    L"folders aren't parts, and the archive has entries for " + std::to_wstring(folders));
}

void PackageReader::openContainer() {
    if (isFolder(path_))
        container_ = boost::make_shared<opc::FileSystemPhysicalPackage>(path_);
    else
        container_ = boost::make_shared<opc::ZipPhysicalPackage>(path_, true, std::wstring());
    container_->open(opc::OpenMode::Read);
}

// Content types

bool PackageReader::readContentTypes() {
    if (!container_->hasContentTypeStream()) {
        report_.add(Code::cannotOpen, {}, L"there is no [Content_Types].xml, so that this is no package");
        return false;
    }
    const auto stream = container_->getContentTypeInputStream();
    const opc::DocumentScope document = xml_.read(*stream, kTypesPlace);
    if (!document)
        return false;
    const DOMElement& root = *document->getDocumentElement();
    if (!hasName(root, kTypesNamespace, u"Types")) {
        report_.add(Code::contentTypes, kTypesPlace, L"it isn't a list of content types");
        return false;
    }
    if (root.getPrefix())
        report_.add(Code::prefixedContentTypes, kTypesPlace,
                    L"its elements have a prefix, and some readers refuse the package for it");
    for (const DOMElement* row = root.getFirstElementChild(); row; row = row->getNextElementSibling())
        readTypeRow(*row);
    return true;
}

void PackageReader::readTypeRow(const DOMElement& row) {
    const std::wstring type = getAttribute(row, u"ContentType");
    const bool isDefault = hasName(row, kTypesNamespace, u"Default");
    const std::wstring name = getAttribute(row, isDefault ? u"Extension" : u"PartName");
    if (!isDefault && !hasName(row, kTypesNamespace, u"Override"))
        report_.add(Code::contentTypes, kTypesPlace,
                    L"it has an element " + opc::toWideString(row.getNodeName()) +
                        L", which isn't allowed there");
    else if (!isMediaType(type))
        report_.add(Code::contentTypes, kTypesPlace,
                    quote(type) + L" for " + quote(name) + L" is no content type");
    else if (isDefault && name.empty())
        report_.add(Code::contentTypes, kTypesPlace, L"a default has no extension");
    else if (isDefault)
        setType(defaults_, toUtf8(toLowerString(name)), type, L"the extension " + quote(name));
    else if (const PartKey key = makeKey(name); key.empty())
        report_.add(Code::contentTypes, kTypesPlace, quote(name) + L" is no name of a part");
    else {
        setType(overrides_, key, type, quote(name));
        overrideNames_.emplace(key, name);
    }
}

void PackageReader::setType(TypeTable& table, const std::string& key, const std::wstring& type,
                            const std::wstring& label) {
    if (!table.emplace(key, type).second)
        report_.add(Code::duplicateContentType, kTypesPlace, L"there are two content types for " + label);
}

std::wstring PackageReader::findType(const opc::PartName& name) const {
    const auto single = overrides_.find(name.getKey());
    if (single != overrides_.end())
        return single->second;
    const auto general = defaults_.find(toUtf8(name.getExtension()));
    return general == defaults_.end() ? std::wstring() : general->second;
}

void PackageReader::checkOverrides(const PackageIndex& index) const {
    for (const auto& entry : overrideNames_)
        if (!index.find(entry.first) && !isRelationshipPart(opc::PartName(entry.second)))
            report_.add(Code::phantomContentType, kTypesPlace,
                        L"it has a content type for " + entry.second + L", and there is no such part");
}

void PackageReader::listParts(PackageIndex& index) {
    for (const auto& physical : container_->getParts()) {
        const opc::PartName& name = physical->getName();
        const std::wstring type = findType(name);
        if (type.empty())
            report_.add(Code::missingContentType, {name.toString(), 0}, L"it has no content type");
        if (isRelationshipPart(name))
            relationshipParts_.push_back(physical);
        else
            index.parts.emplace(name.getKey(), PartRecord{name.toString(), type, physical});
    }
}

// Relationships

void PackageReader::readRelationships(PackageIndex& index) {
    for (const auto& part : relationshipParts_)
        readRelationshipPart(*part, index);
}

void PackageReader::readRelationshipPart(const opc::PhysicalPart& part, PackageIndex& index) {
    const Place place{part.getName().toString(), 0};
    const std::wstring source = getSourceName(part.getName().toString());
    const PartKey key = source == L"/" ? PartKey() : makeKey(source);
    if (source != L"/" && !index.find(key))
        report_.add(Code::strayRelationships, place, L"there is no part that it could belong to");
    const opc::DocumentScope document = xml_.read(part, place);
    if (!document)
        return;
    const DOMElement& root = *document->getDocumentElement();
    if (!hasName(root, kRelationshipsNamespace, u"Relationships"))
        return report_.add(Code::relationship, place, L"it isn't a list of relationships");
    RelationshipList& list = index.relationships[key];
    for (const DOMElement* row = root.getFirstElementChild(); row; row = row->getNextElementSibling()) {
        if (!hasName(*row, kRelationshipsNamespace, u"Relationship"))
            report_.add(Code::relationship, place,
                        L"it has an element " + opc::toWideString(row->getNodeName()) +
                            L", which isn't allowed there");
        else if (!list.add(readRelationship(*row, source, place)))
            report_.add(Code::duplicateRelationship, place,
                        L"two relationships have the id " + quote(getAttribute(*row, u"Id")));
    }
}

RelationshipRow PackageReader::readRelationship(const DOMElement& element, const std::wstring& source,
                                                const Place& place) const {
    static const ValueType kName = ValueType::parse("NCName", {});
    const std::wstring type = getAttribute(element, u"Type"), mode = getAttribute(element, u"TargetMode");
    RelationshipRow row{getAttribute(element, u"Id"), getLastStep(type), getAttribute(element, u"Target"),
                        mode == L"External"};
    const std::wstring label = L"the relationship " + quote(row.id);
    if (!kName.accepts(element.getAttribute(u"Id")))
        report_.add(Code::relationship, place, label + L" has an id that isn't allowed");
    if (type.empty())
        report_.add(Code::relationship, place, label + L" has no type");
    if (!element.hasAttribute(u"Target"))
        report_.add(Code::relationship, place, label + L" has no target");
    if (element.hasAttribute(u"TargetMode") && mode != L"External" && mode != L"Internal")
        report_.add(Code::relationship, place, label + L" has the target mode " + quote(mode));
    // A fragment alone means a place in the source itself.
    const bool isWithin = opc::URI(row.target).getPath().empty();
    if (!row.isExternal && !row.target.empty())
        row.part = makeKey(isWithin ? source : opc::resolveTarget(getFolder(source), row.target));
    return row;
}

} // namespace vellox::check
