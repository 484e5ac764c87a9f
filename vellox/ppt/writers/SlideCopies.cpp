#include "vellox/ppt/writers/SlideCopies.h"

#include "vellox/opc/Exception.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/template/SlideDocument.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/xml/XmlNames.h"

#include <optional>
#include <set>

namespace vellox::ppt {

using namespace xercesc;

namespace {

enum class Share { Shared, Stored, Left };

// By the last word of a relationship's type. What isn't listed is copied: a part that two slides share would change for
// both when somebody edits one.
struct Row {
    const wchar_t* type;
    Share share;
};

constexpr Row kRows[] = {
    {L"audio", Share::Shared},       {L"comments", Share::Left},        {L"customXml", Share::Shared},
    {L"font", Share::Shared},        {L"handoutMaster", Share::Shared}, {L"image", Share::Shared},
    {L"media", Share::Shared},       {L"notesMaster", Share::Shared},   {L"officeDocument", Share::Shared},
    {L"package", Share::Stored},     {L"slide", Share::Shared},         {L"slideLayout", Share::Shared},
    {L"slideMaster", Share::Shared}, {L"theme", Share::Shared},         {L"threadedComment", Share::Left},
    {L"video", Share::Shared},
};

std::optional<Share> findShare(const std::wstring& type) {
    const std::wstring word = type.substr(type.rfind(L'/') + 1);
    for (const Row& row : kRows)
        if (word == row.type)
            return row.share;
    return std::nullopt;
}

// A target needn't be anything that a part could be called.
std::optional<opc::PartName> toPartName(const opc::URI& target) {
    try {
        return opc::PartName(target.toString());
    } catch (const opc::Exception&) {
        return std::nullopt;
    }
}

} // namespace

SlideCopies::SlideCopies(PPTPartWriter& partWriter) : partWriter_(partWriter) {}

void SlideCopies::remember(const std::wstring& originName) {
    if (remembered_.count(originName) == 0)
        remembered_.emplace(originName, partWriter_.getPart(originName).getRelationships());
}

std::wstring SlideCopies::createPart(const TemplateSlide& slide, const std::wstring& name) {
    opc::Part part = partWriter_.createPart(name, contenttype::kSlide);
    copied_.clear();
    copied_.emplace(opc::PartName(slide.originName),
                    opc::PartName(name)); // what led to itself leads to the copy
    copyRelationships(remembered_[slide.originName], part);
    while (!waiting_.empty()) {
        const auto [from, to] = waiting_.back();
        waiting_.pop_back();
        opc::Part target = partWriter_.getPart(to.toString());
        copyRelationships(partWriter_.getPart(from.toString()).getRelationships(), target);
    }
    return name;
}

void SlideCopies::copyRelationships(const Rows& rows, opc::Part& to) {
    std::set<std::wstring> ids; // a damaged list may have one twice
    for (const opc::Relationship& row : Rows(rows)) {
        if (findShare(row.getType()) == Share::Left || !ids.insert(row.getID()).second)
            continue;
        if (row.isExternal())
            to.createExternalRelationship(row.getType(), row.getTargetURI().toString(), row.getID());
        else
            to.createInternalRelationship(row.getType(), findTarget(row), row.getID());
    }
}

opc::URI SlideCopies::findTarget(const opc::Relationship& row) {
    const std::optional<opc::PartName> name = toPartName(row.getTargetURI());
    if (!name || !partWriter_.hasPart(name->toString()))
        return row.getTargetURI();
    const auto known = copied_.find(*name);
    if (known != copied_.end())
        return known->second.toURI();
    const std::optional<Share> share = findShare(row.getType());
    if (share == Share::Shared)
        return row.getTargetURI();
    const opc::Part original = partWriter_.getPart(name->toString());
    const std::wstring chosen = partWriter_.chooseNameLike(original.getName().toString());
    const opc::PartName copy = partWriter_.copyPart(original, chosen, share == Share::Stored).getName();
    copied_.emplace(*name, copy);
    waiting_.emplace_back(*name, copy);
    return copy.toURI();
}

// Extensions: the number by which programs know a slide again, and the way to its comments.
void makeOrdinary(SlideDocument& copy) {
    for (const DOMElement* parent : {copy.getRoot(), findChild(copy.getRoot(), xml::kCSld)})
        for (DOMElement* extension : getChildElements(findChild(parent, xml::kExtLst)))
            if (findChild(extension, u"p14:creationId") || findChild(extension, u"p188:commentRel"))
                removeNode(extension);
    for (DOMElement* parent : {copy.getRoot(), findChild(copy.getRoot(), xml::kCSld)}) {
        DOMElement* list = findChild(parent, xml::kExtLst);
        if (list && !list->getFirstElementChild())
            removeNode(list);
    }
}

} // namespace vellox::ppt
