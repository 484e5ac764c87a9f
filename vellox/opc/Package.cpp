#include "vellox/opc/Package.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/BoundedParser.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/PackageContents.h"

#include <boost/make_shared.hpp>

namespace opc {

namespace {

constexpr wchar_t kRelationshipType[] = L"application/vnd.openxmlformats-package.relationships+xml";

xercesc::DOMLSParser* createNamespaceAwareParser(const boost::shared_ptr<XmlBudget>& budget) {
    auto parser = std::make_unique<BoundedParser>(budget);
    parser->setNamespaceAware(true);
    return parser.release();
}

std::string quote(const PartName& name) {
    return vellox::toUtf8(name.toString());
}

} // namespace

// RelationshipSource

RelationshipSource::~RelationshipSource() = default;

const std::vector<Relationship>& RelationshipSource::getRelationships() const {
    return getTable().getAll();
}

Relationship RelationshipSource::getRelationshipByID(const std::wstring& id) const {
    if (const Relationship* found = getTable().find(id))
        return *found;
    throw Exception("there is no relationship with the id \"" + vellox::toUtf8(id) + "\"");
}

Relationship RelationshipSource::createInternalRelationship(const std::wstring& type, const URI& target,
                                                            const std::wstring& id) {
    return getTable().addInternal(type, target, id);
}

Relationship RelationshipSource::createExternalRelationship(const std::wstring& type,
                                                            const std::wstring& target,
                                                            const std::wstring& id) {
    return getTable().addExternal(type, target, id);
}

void RelationshipSource::deleteRelationship(const std::wstring& id) {
    getTable().remove({id});
}

void RelationshipSource::deleteRelationships(const std::set<std::wstring>& ids) {
    getTable().remove(ids);
}

void RelationshipSource::deleteRelationships(const std::wstring& type) {
    getTable().removeOfType(type);
}

// Part

Part::Part(boost::shared_ptr<PackageContents> contents, boost::shared_ptr<PhysicalPart> physical)
    : contents_(std::move(contents)),
      physical_(std::move(physical)) {}

const PartName& Part::getName() const {
    return physical_->getName();
}

ContentType Part::getContentType() const {
    return contents_->getContentTypes().find(getName());
}

void Part::setContentType(const ContentType& type) {
    contents_->getContentTypes().change(getName(), type);
}

InputStream& Part::getInputStream() {
    input_ = physical_->openInput();
    return *input_;
}

OutputStream& Part::getOutputStream() {
    return physical_->startOutput();
}

void Part::setContentFile(const std::wstring& path) {
    physical_->setContentFile(path);
}

RelationshipTable& Part::getTable() const {
    return contents_->getRelationships(&getName());
}

// PackageContents

PackageContents::PackageContents(boost::shared_ptr<PhysicalPackage> physical)
    : physical_(std::move(physical)) {}

void PackageContents::open(OpenMode mode) {
    physical_->open(mode);
    budget_ = boost::make_shared<XmlBudget>(physical_->getSize());
    parser_.reset(createNamespaceAwareParser(budget_));
    if (mode == OpenMode::Write) {
        types_.add(PartName(L"/a.rels"), ContentType(kRelationshipType));
        return;
    }
    if (!physical_->hasContentTypeStream())
        throw Exception("it has no [Content_Types].xml, so that it is no package");
    types_.read(*parser_, *physical_->getContentTypeInputStream());
    indexParts();
}

void PackageContents::indexParts() {
    for (const auto& part : physical_->getParts())
        if (!parts_.emplace(part->getName().getKey(), part).second)
            throw Exception("it has two parts named " + quote(part->getName()));
}

boost::shared_ptr<PhysicalPart> PackageContents::findPart(const PartName& name) const {
    const auto found = parts_.find(name.getKey());
    return found == parts_.end() ? boost::shared_ptr<PhysicalPart>() : found->second;
}

boost::shared_ptr<PhysicalPart> PackageContents::createPart(const PartName& name, const ContentType& type,
                                                            StandardPartInfo info) {
    if (findPart(name))
        throw Exception("there is a part named " + quote(name) + " already");
    // Relationships that some program has left behind under the name aren't those of the new part.
    const PartName leftBehind = name.getRelationshipPartName();
    if (findPart(leftBehind))
        sources_.insert_or_assign(leftBehind,
                                  RelationshipTable::makeEmpty(name.getFolder(), relationshipTexts_));
    return addPart(name, type, info);
}

boost::shared_ptr<PhysicalPart> PackageContents::addPart(const PartName& name, const ContentType& type,
                                                         StandardPartInfo info) {
    types_.add(name, type);
    auto part = physical_->createPart(name, info);
    parts_.emplace(part->getName().getKey(), part);
    return part;
}

void PackageContents::deleteParts(const std::set<PartName>& names) {
    std::set<PartName> all;
    for (const PartName& name : names) {
        all.insert(name);
        all.insert(name.getRelationshipPartName());
    }
    for (const PartName& name : all) {
        sources_.erase(name);
        hasDeleted_ = parts_.erase(name.getKey()) > 0 || hasDeleted_;
    }
    types_.remove(all);
    physical_->deleteParts(all);
}

RelationshipTable& PackageContents::getRelationships(const PartName* source) {
    const PartName part = source ? source->getRelationshipPartName() : PartName(L"/_rels/.rels");
    const auto known = sources_.find(part);
    if (known != sources_.end())
        return known->second;
    RelationshipTable table(source ? source->getFolder() : L"/", relationshipTexts_);
    try {
        if (const auto stored = findPart(part))
            table.read(*parser_, *stored->openInput());
    } catch (const Exception& failure) {
        throw Exception(quote(part) + ": " + failure.what());
    }
    return sources_.emplace(part, std::move(table)).first->second;
}

bool PackageContents::hasChanges() const {
    bool changed = types_.isChanged() || hasDeleted_;
    for (const auto& part : parts_)
        changed = changed || part.second->getContent() != PhysicalPart::Content::Original;
    for (const auto& source : sources_)
        changed = changed || source.second.isChanged();
    return changed;
}

// Each table ends when it is written: there are as many as slides.
void PackageContents::saveRelationships() {
    for (auto source = sources_.begin(); source != sources_.end(); source = sources_.erase(source)) {
        const auto& [name, table] = *source;
        if (!table.isChanged())
            continue;
        auto part = findPart(name);
        if (!part)
            part = addPart(name, ContentType(kRelationshipType), StandardPartInfo());
        table.write(part->startOutput());
    }
}

void PackageContents::save() {
    if (!hasChanges())
        return physical_->close(false);
    saveRelationships();
    if (types_.needsWriting())
        types_.write(physical_->getContentTypeOutputStream());
    physical_->close(true);
}

void PackageContents::closeUnsaved() {
    physical_->close(false);
}

// Package

Package::Package(boost::shared_ptr<PhysicalPackage> physical, bool)
    : contents_(boost::make_shared<PackageContents>(std::move(physical))) {}

Package::~Package() = default;

void Package::open(OpenMode mode) {
    mode_ = mode;
    contents_->open(mode);
    isOpen_ = true;
}

void Package::close(bool) {
    if (!isOpen_)
        return;
    isOpen_ = false;
    if (mode_ == OpenMode::Read)
        contents_->closeUnsaved();
    else
        contents_->save();
}

const boost::shared_ptr<XmlBudget>& Package::getXmlBudget() const {
    return contents_->getXmlBudget();
}

bool Package::hasPart(const PartName& name) const {
    return contents_->findPart(name) != nullptr;
}

Part Package::getPart(const PartName& name) const {
    if (const auto part = contents_->findPart(name))
        return Part(contents_, part);
    throw Exception("there is no part named " + quote(name));
}

Part Package::createPart(const PartName& name, const ContentType& type, const StandardPartInfo& info) {
    return Part(contents_, contents_->createPart(name, type, info));
}

void Package::deleteParts(const std::set<PartName>& names) {
    contents_->deleteParts(names);
}

RelationshipTable& Package::getTable() const {
    return contents_->getRelationships(nullptr);
}

} // namespace opc
