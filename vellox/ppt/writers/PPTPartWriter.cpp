#include "vellox/ppt/writers/PPTPartWriter.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/FileUtils.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/ppt/package/OPCPackage.h"
#include "vellox/ppt/package/PackageExtras.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/package/PartDOMBuilder.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/template/SlidePrototype.h"

#include <algorithm>
#include <boost/algorithm/string/predicate.hpp>
#include <set>

namespace vellox::ppt {

namespace {

// Empty for what is unknown: the package may have a type for the extension.
std::wstring findImageType(const std::wstring& path) {
    const std::wstring common = FileUtils::getContentType(path);
    if (!common.empty())
        return common;
    const std::wstring extension = toLowerString(FileUtils::getFileNameExtension(path));
    for (const contenttype::ImageType& row : contenttype::kImageTypes)
        if (extension == row.extension)
            return row.contentType;
    return {};
}

// Kinds of images that deflate would make no smaller, and only slow down.
bool isCompressed(const std::wstring& contentType) {
    static const auto& compressed = *new const std::set<std::wstring>{
        L"image/apng",         L"image/avif",  L"image/gif",  L"image/heic", L"image/heif",
        L"image/jp2",          L"image/jpeg",  L"image/jxl",  L"image/png",  L"image/webp",
        L"image/vnd.ms-photo", L"image/x-emz", L"image/x-wmz"};
    return compressed.count(contentType) > 0;
}

} // namespace

void copyRelationships(const opc::Part& from, opc::Part& to, const std::vector<std::wstring>* ids) {
    std::set<std::wstring> copied; // a damaged list may have an id twice
    for (const opc::Relationship& row : from.getRelationships()) {
        const std::wstring& id = row.getID();
        if ((ids && !std::binary_search(ids->begin(), ids->end(), id)) || !copied.insert(id).second)
            continue;
        if (row.isExternal())
            to.createExternalRelationship(row.getType(), row.getTargetURI().toString(), id);
        else
            to.createInternalRelationship(row.getType(), row.getTargetURI(), id);
    }
}

PPTPartWriter::PPTPartWriter(boost::shared_ptr<OPCPackage> package) : PartDOMWriter(std::move(package)) {}

PPTPartWriter::~PPTPartWriter() = default;

std::wstring PPTPartWriter::takeSlideName() {
    std::wstring name;
    do {
        name = L"/ppt/slides/slide" + num2str(++slideCounter_) + L".xml";
    } while (hasPart(name));
    name.shrink_to_fit(); // it stays for as long as the deck is written
    return name;
}

std::wstring PPTPartWriter::chooseNameLike(const std::wstring& name) {
    const std::size_t dot = std::min(name.find(L'.', name.rfind(L'/') + 1), name.size());
    const std::size_t last = name.find_last_not_of(L"0123456789", dot - 1);
    const std::wstring start = name.substr(0, last + 1), end = name.substr(dot);
    unsigned int& counter = counters_[start + L"\n" + end];
    std::wstring chosen;
    do {
        chosen = start + num2str(++counter) + end;
    } while (hasPart(chosen));
    return chosen;
}

opc::Part PPTPartWriter::copyPart(opc::Part from, const std::wstring& name, bool isStored) {
    const std::wstring type = from.getContentType().toString();
    opc::Part copy = isStored ? createStoredPart(name, type) : createPart(name, type);
    opc::OutputStream& target = copy.getOutputStream();
    opc::InputStream& source = from.getInputStream();
    std::array<unsigned char, 64 << 10> block;
    while (const std::size_t count = source.read(block.data(), block.size()))
        target.write(block.data(), count);
    target.close();
    return copy;
}

std::wstring PPTPartWriter::createSlidePart(const TemplateSlide& slide, const std::wstring& name) {
    opc::Part part = createPart(name, contenttype::kSlide);
    const std::vector<std::wstring>& ids = slide.layout->prototype->relationshipIds;
    if (!ids.empty())
        copyRelationships(getPart(slide.layout->partName), part, &ids);
    part.createInternalRelationship(relationship::kSlideLayout, opc::PartName(slide.layout->partName).toURI(),
                                    {});
    return name;
}

std::wstring PPTPartWriter::addHyperlink(const std::wstring& partName, const std::wstring& target) {
    const bool isBlank = target.find_first_not_of(L" \t\r\n") == std::wstring::npos;
    if (isBlank || !hasPart(partName))
        return {};
    return getPart(partName).createExternalRelationship(relationship::kHyperlink, target, {}).getID();
}

std::wstring PPTPartWriter::chooseMediaName(const std::wstring& imagePath) const {
    // Lists of types know extensions of letters and digits only.
    std::wstring extension;
    for (const wchar_t c : FileUtils::getFileNameExtension(imagePath))
        if ((c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'))
            extension += c;
    std::wstring name;
    do {
        name = L"/ppt/media/" + uuid_gen() + (extension.empty() ? L"" : L".") + extension;
    } while (hasPart(name));
    return name;
}

std::wstring PPTPartWriter::addImage(const std::wstring& partName, const ImageSource& image, bool isShared) {
    const std::wstring imagePart = requireImagePart(image, isShared);
    return imagePart.empty() ? imagePart : addRelationship(partName, relationship::kImage, imagePart);
}

std::wstring PPTPartWriter::requireImagePart(const ImageSource& image, bool isShared) {
    std::wstring present = isShared ? images_.findSource(image) : std::wstring();
    ImageIndex::Look look;
    if (!present.empty() || !ImageIndex::look(image, look))
        return present;
    if (isShared)
        present = images_.findEqual(look);
    if (!present.empty())
        return present;
    const std::wstring name = createImagePart(image);
    if (isShared)
        images_.add(look, name);
    return name;
}

std::wstring PPTPartWriter::createImagePart(const ImageSource& image) {
    const std::wstring type = findImageType(image.getFileName());
    const std::wstring name = chooseMediaName(image.getFileName());
    opc::Part part = isCompressed(type) ? createStoredPart(name, type) : createPart(name, type);
    if (const ImageSource::Bytes& bytes = image.getBytes())
        part.getOutputStream().write(reinterpret_cast<const unsigned char*>(bytes->data()), bytes->size());
    else
        part.setContentFile(image.getPath());
    return part.getName().toString();
}

bool PPTPartWriter::leadsToImage(const std::wstring& partName, const std::wstring& relationshipId) const {
    const opc::Relationship relationship = getPart(partName).getRelationshipByID(relationshipId);
    const std::wstring target = relationship.getTargetURI().toString();
    return boost::algorithm::starts_with(getPart(target).getContentType().toString(), L"image/");
}

std::wstring PPTPartWriter::addRelationship(const std::wstring& partName, const std::wstring& type,
                                            const std::wstring& target) {
    return getPart(partName).createInternalRelationship(type, opc::PartName(target).toURI(), {}).getID();
}

std::wstring PPTPartWriter::alignMainType(const std::wstring& mainPartName, const Rules& rules) {
    const std::wstring extension = toLowerString(FileUtils::getFileNameExtension(path_));
    opc::Part mainPart = getPart(mainPartName);
    const std::wstring present = mainPart.getContentType().toString();
    const std::wstring wanted = rules.chooseMainType(present, extension);
    if (present != wanted)
        mainPart.setContentType(opc::ContentType(wanted));
    return wanted;
}

std::wstring PPTPartWriter::findPackagePart(const std::wstring& type) const {
    const std::wstring name = OPCPartReader(*owner_).getRelationshipTarget(type);
    return !name.empty() && OPCPartReader(*owner_).hasPart(name) ? name : std::wstring();
}

OwnedDocument PPTPartWriter::readIfWellFormed(const std::wstring& partName) {
    OwnedDocument document;
    try {
        document.reset(PartDOMBuilder(*owner_).getDocument(partName));
    } catch (const hostfx::except::IMsgIDException&) { // nobody misses what a damaged template says of itself
    }
    return document;
}

void PPTPartWriter::writePackageDocument(const std::wstring& stem, const std::wstring& relationshipType,
                                         const std::wstring& contentType, xercesc::DOMDocument* document) {
    package_->deleteRelationships(relationshipType); // which led nowhere
    std::wstring name = stem + L".xml";
    for (unsigned int i = 1; hasPart(name); ++i)
        name = stem + num2str(i) + L".xml";
    writeNewDocument(name, contentType, document);
    package_->createInternalRelationship(relationshipType, opc::PartName(name).toURI(), {});
}

void PPTPartWriter::removeExtra(const PackageExtra& extra) {
    ppt::removeExtra(*package_, extra);
}

} // namespace vellox::ppt
