#include "vellox/check/PartKinds.h"

#include <algorithm>
#include <iterator>

namespace vellox::check {

namespace {

constexpr PartKind kKinds[] = {
    {L"slide", L"application/vnd.openxmlformats-officedocument.presentationml.slide+xml", L"p:sld"},
    {L"slideLayout", L"application/vnd.openxmlformats-officedocument.presentationml.slideLayout+xml",
     L"p:sldLayout"},
    {L"slideMaster", L"application/vnd.openxmlformats-officedocument.presentationml.slideMaster+xml",
     L"p:sldMaster"},
    {L"notesSlide", L"application/vnd.openxmlformats-officedocument.presentationml.notesSlide+xml",
     L"p:notes"},
    {L"notesMaster", L"application/vnd.openxmlformats-officedocument.presentationml.notesMaster+xml",
     L"p:notesMaster"},
    {L"handoutMaster", L"application/vnd.openxmlformats-officedocument.presentationml.handoutMaster+xml",
     L"p:handoutMaster"},
    {L"presProps", L"application/vnd.openxmlformats-officedocument.presentationml.presProps+xml",
     L"p:presentationPr"},
    {L"viewProps", L"application/vnd.openxmlformats-officedocument.presentationml.viewProps+xml",
     L"p:viewPr"},
    {L"tableStyles", L"application/vnd.openxmlformats-officedocument.presentationml.tableStyles+xml",
     L"a:tblStyleLst"},
    // Relationships of the same name lead to a newer kind of comments too.
    {L"", L"application/vnd.openxmlformats-officedocument.presentationml.comments+xml", L"p:cmLst"},
    {L"commentAuthors", L"application/vnd.openxmlformats-officedocument.presentationml.commentAuthors+xml",
     L"p:cmAuthorLst"},
    {L"tags", L"application/vnd.openxmlformats-officedocument.presentationml.tags+xml", L"p:tagLst"},
    {L"theme", L"application/vnd.openxmlformats-officedocument.theme+xml", L"a:theme"},
    {L"themeOverride", L"application/vnd.openxmlformats-officedocument.themeOverride+xml",
     L"a:themeOverride"},
    {L"chart", L"application/vnd.openxmlformats-officedocument.drawingml.chart+xml", L"c:chartSpace"},
    {L"core-properties", L"application/vnd.openxmlformats-package.core-properties+xml", nullptr},
    {L"extended-properties", L"application/vnd.openxmlformats-officedocument.extended-properties+xml",
     nullptr},
};

constexpr MainType kMainTypes[] = {
    {L"application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml", L"pptx"},
    {L"application/vnd.openxmlformats-officedocument.presentationml.template.main+xml", L"potx"},
    {L"application/vnd.openxmlformats-officedocument.presentationml.slideshow.main+xml", L"ppsx"},
    {L"application/vnd.ms-powerpoint.presentation.macroEnabled.main+xml", L"pptm"},
    {L"application/vnd.ms-powerpoint.template.macroEnabled.main+xml", L"potm"},
    {L"application/vnd.ms-powerpoint.slideshow.macroEnabled.main+xml", L"ppsm"},
};

wchar_t fold(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? c + (L'a' - L'A') : c;
}

} // namespace

const Need kNeeds[] = {
    {L"slide", L"slideLayout", false},   {L"slideLayout", L"slideMaster", false},
    {L"slideMaster", L"theme", false},   {L"notesSlide", L"notesMaster", false},
    {L"notesSlide", L"slide", true},     {L"notesMaster", L"theme", false},
    {L"handoutMaster", L"theme", false},
};
const std::size_t kNeedCount = std::size(kNeeds);

bool isSameType(const std::wstring& one, const std::wstring& other) {
    return one.size() == other.size() && std::equal(one.begin(), one.end(), other.begin(),
                                                    [](wchar_t a, wchar_t b) { return fold(a) == fold(b); });
}

const PartKind* findKindByRelationship(const std::wstring& relationship) {
    for (const PartKind& kind : kKinds)
        if (relationship == kind.relationship)
            return &kind;
    return nullptr;
}

const PartKind* findKindByType(const std::wstring& contentType) {
    for (const PartKind& kind : kKinds)
        if (isSameType(contentType, kind.contentType))
            return &kind;
    return nullptr;
}

const MainType* findMainType(const std::wstring& contentType) {
    for (const MainType& row : kMainTypes)
        if (isSameType(contentType, row.contentType))
            return &row;
    return nullptr;
}

bool isMainExtension(const std::wstring& extension) {
    for (const MainType& row : kMainTypes)
        if (extension == row.extension)
            return true;
    return false;
}

} // namespace vellox::check
