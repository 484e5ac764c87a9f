#include "vellox/reading/DeckReader.h"

#include "vellox/check/PackageReader.h"
#include "vellox/check/PackageSteps.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/ReasonedException.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/reading/Markup.h"
#include "vellox/reading/PartSource.h"
#include "vellox/reading/ShapeContents.h"

#include <algorithm>
#include <set>

namespace vellox::reading {

using namespace check;
using xercesc::DOMElement;

namespace {

class DeckReader {
public:
    DeckReader(const std::wstring& path, const PackageIndex& index, Report& report)
        : index_(index),
          parts_(index, getFileSize(path), report),
          shapes_(markup_, parts_) {}

    std::vector<ppt::DeckSlide> run() {
        const opc::DocumentScope main = parts_.read(index_.mainPart);
        if (!main || !markup_.is(*main->getDocumentElement(), kPresentation, u"presentation"))
            throw opc::Exception("it is no presentation");
        std::vector<ppt::DeckSlide> slides;
        const DOMElement* list = markup_.find(*main->getDocumentElement(), kPresentation, u"sldIdLst");
        if (!list)
            return slides;
        markup_.forEach(*list, [&](const DOMElement& entry) {
            const RelationshipRow* row =
                index_.findRelationship(index_.mainPart, markup_.getReference(entry, u"id"));
            ++number_;
            if (row && !row->isExternal)
                readSlide(row->part, slides);
        });
        return slides;
    }

private:
    // A slide that can't be read has its number all the same, and so has one that is listed again, which no program does.
    void readSlide(const PartKey& key, std::vector<ppt::DeckSlide>& slides) {
        if (!listed_.insert(key).second)
            return;
        const opc::DocumentScope document = parts_.read(key);
        if (!document)
            return;
        const DOMElement& root = *document->getDocumentElement();
        ppt::DeckSlide slide;
        slide.number = number_;
        slide.part = shorten(index_.getName(key));
        slide.layout = getLayoutName(key);
        slide.isHidden = root.hasAttribute(u"show") && !isTrue(markup_.get(root, u"show"));
        slide.shapes = shapes_.read(root, key);
        slide.notes = readNotes(key);
        slides.push_back(std::move(slide));
    }

    std::wstring getLayoutName(const PartKey& slide) {
        const std::vector<PartKey> layouts = index_.getTargets(slide, L"slideLayout");
        if (layouts.empty())
            return {};
        const auto place = layouts_.emplace(layouts.front(), std::wstring());
        if (!place.second)
            return place.first->second;
        if (const opc::DocumentScope document = parts_.read(layouts.front()))
            if (const DOMElement* data =
                    markup_.find(*document->getDocumentElement(), kPresentation, u"cSld"))
                place.first->second = shorten(markup_.get(*data, u"name"));
        return place.first->second;
    }

    std::vector<ppt::DeckParagraph> readNotes(const PartKey& slide) {
        for (const PartKey& page : index_.getTargets(slide, L"notesSlide"))
            if (const opc::DocumentScope document = parts_.read(page))
                return shapes_.readNotes(*document->getDocumentElement(), page);
        return {};
    }

    const PackageIndex& index_;
    PartSource parts_;
    Markup markup_;
    ShapeContents shapes_;
    unsigned number_ = 0;
    std::map<PartKey, std::wstring> layouts_;
    std::set<PartKey> listed_;
};

std::vector<ppt::DeckSlide> readSlides(const std::wstring& path, std::vector<ppt::Finding>& findings) {
    Report report(findings);
    PackageIndex index;
    XmlReader xml(path, report);
    PackageReader reader(path, xml, report); // whose container the parts are read from
    if (reader.read(index))
        findMainPart(index, path, report);
    if (index.mainPart.empty())
        throw opc::Exception("it is no presentation");
    return DeckReader(path, index, report).run();
}

} // namespace

} // namespace vellox::reading

namespace vellox::ppt {

DeckContents readDeck(const std::wstring& path) {
    DeckContents contents;
    try {
        contents.slides = reading::readSlides(path, contents.findings);
    } catch (const std::exception& failure) {
        raiseWithReason(ppt_error::cannotOpenFile(path), failure.what());
    }
    // What the package has wrong without harm to what is read is the check's.
    const auto isOfTheCheck = [](const Finding& finding) { return finding.code != "unreadablePart"; };
    contents.findings.erase(std::remove_if(contents.findings.begin(), contents.findings.end(), isOfTheCheck),
                            contents.findings.end());
    return contents;
}

} // namespace vellox::ppt
