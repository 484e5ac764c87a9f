#include "vellox/check/PackageCheck.h"

#include "vellox/check/DocumentCheck.h"
#include "vellox/check/PackageReader.h"
#include "vellox/check/PackageSteps.h"
#include "vellox/check/PartKinds.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/ContentTypes.h"

#include <exception>

namespace vellox::check {

namespace {

/// The steps in their order.
class PackageCheck {
public:
    PackageCheck(const std::wstring& path, Report& report)
        : path_(path),
          report_(report),
          xml_(path, report) {}

    void run() {
        PackageReader reader(path_, xml_, report_);
        if (!reader.read(index_))
            return;
        findMainPart(index_, path_, report_);
        checkDocuments();
        checkRelationships(index_, report_);
        checkReachability(index_, report_);
        checkPresentation(index_, report_);
        checkStructure(index_, report_);
    }

private:
    // The main part comes first, since it numbers the slides.
    void checkDocuments() {
        if (PartRecord* main = index_.find(index_.mainPart))
            checkPart(index_.mainPart, *main);
        numberSlides(index_);
        for (auto& entry : index_.parts)
            if (entry.first != index_.mainPart)
                checkPart(entry.first, entry.second);
        if (isStrict_)
            report_.add(
                Code::strictForm, {},
                L"the package is in the strict form; sequences and values of elements weren't checked");
    }

    void checkPart(const PartKey& key, PartRecord& part) {
        const Place place{part.name, part.slide};
        if (!opc::ContentType(part.type).isXml()) {
            xml_.readThrough(*part.physical, place);
            return;
        }
        const opc::DocumentScope document = xml_.read(*part.physical, place);
        if (!document || !isOfPresentation(part.type))
            return;
        const RelationshipKinds kinds = index_.getKinds(key);
        part.facts = documents_.check(*document, place, &kinds, report_);
        isStrict_ = isStrict_ || part.facts.isStrict;
        checkRoot(key, part, place);
    }

    /// Whether the elements of the part are of the format's own, rather than those of some attachment.
    static bool isOfPresentation(const std::wstring& type) {
        return findKindByType(type) || findMainType(type) || type.find(L"presentationml") != type.npos ||
               type.find(L"drawingml") != type.npos;
    }

    void checkRoot(const PartKey& key, const PartRecord& part, const Place& place) {
        const PartKind* kind = findKindByType(part.type);
        const wchar_t* wanted = key == index_.mainPart ? L"p:presentation" : kind ? kind->root : nullptr;
        if (wanted && part.facts.root != wanted)
            report_.add(Code::rootElement, place,
                        L"its root element is " + part.facts.root + L", and needs to be " + wanted);
    }

    const std::wstring& path_;
    Report& report_;
    XmlReader xml_;
    DocumentCheck documents_;
    PackageIndex index_;
    bool isStrict_ = false;
};

} // namespace

} // namespace vellox::check

namespace vellox::ppt {

std::vector<Finding> checkPackage(const std::wstring& path) {
    std::vector<Finding> findings;
    check::Report report(findings);
    try {
        check::PackageCheck(path, report).run();
    } catch (const std::exception& failure) {
        report.add(check::Code::cannotOpen, {}, L"the package can't be opened: " + fromUtf8(failure.what()));
    }
    return findings;
}

} // namespace vellox::ppt
