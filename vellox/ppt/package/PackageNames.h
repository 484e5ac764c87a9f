/// @file
/// The relationship types of presentations (ECMA-376 Part 1, annex on transitional relationships) and the
/// content types of their parts.

#ifndef VELLOX_PPT_PACKAGE_PACKAGENAMES_H
#define VELLOX_PPT_PACKAGE_PACKAGENAMES_H

namespace vellox::ppt::relationship {

inline constexpr wchar_t kCoreProperties[] =
    L"http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties";
// As some programs spell the same.
inline constexpr wchar_t kOtherCoreProperties[] =
    L"http://schemas.openxmlformats.org/officedocument/2006/relationships/metadata/core-properties";
inline constexpr wchar_t kExtendedProperties[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/extended-properties";
inline constexpr wchar_t kHyperlink[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/hyperlink";
inline constexpr wchar_t kImage[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/image";
inline constexpr wchar_t kNotesMaster[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/notesMaster";
inline constexpr wchar_t kNotesSlide[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/notesSlide";
inline constexpr wchar_t kOfficeDocument[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument";
inline constexpr wchar_t kPackage[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/package";
inline constexpr wchar_t kSignatureOrigin[] =
    L"http://schemas.openxmlformats.org/package/2006/relationships/digital-signature/origin";
inline constexpr wchar_t kSlide[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slide";
inline constexpr wchar_t kSlideLayout[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slideLayout";
inline constexpr wchar_t kSlideMaster[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/slideMaster";
inline constexpr wchar_t kStrictOfficeDocument[] =
    L"http://purl.oclc.org/ooxml/officeDocument/relationships/officeDocument";
inline constexpr wchar_t kTableStyles[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/tableStyles";
inline constexpr wchar_t kTheme[] =
    L"http://schemas.openxmlformats.org/officeDocument/2006/relationships/theme";
inline constexpr wchar_t kThumbnail[] =
    L"http://schemas.openxmlformats.org/package/2006/relationships/metadata/thumbnail";
inline constexpr wchar_t kVbaProject[] = L"http://schemas.microsoft.com/office/2006/relationships/vbaProject";

} // namespace vellox::ppt::relationship

namespace vellox::ppt::contenttype {

inline constexpr wchar_t kChart[] = L"application/vnd.openxmlformats-officedocument.drawingml.chart+xml";
inline constexpr wchar_t kWorkbook[] = L"application/vnd.openxmlformats-officedocument.spreadsheetml.sheet";
inline constexpr wchar_t kCoreProperties[] = L"application/vnd.openxmlformats-package.core-properties+xml";
inline constexpr wchar_t kSlide[] = L"application/vnd.openxmlformats-officedocument.presentationml.slide+xml";
inline constexpr wchar_t kTableStyles[] =
    L"application/vnd.openxmlformats-officedocument.presentationml.tableStyles+xml";

inline constexpr wchar_t kNotesMaster[] =
    L"application/vnd.openxmlformats-officedocument.presentationml.notesMaster+xml";
inline constexpr wchar_t kNotesSlide[] =
    L"application/vnd.openxmlformats-officedocument.presentationml.notesSlide+xml";
inline constexpr wchar_t kTheme[] = L"application/vnd.openxmlformats-officedocument.theme+xml";

/// The main part of a file with a given extension.
struct MainType {
    const wchar_t* extension;
    const wchar_t* contentType;
    bool hasMacros = false;
};

/// Readers refuse a file whose main part is of another of these types than its extension says.
inline constexpr MainType kMainTypes[] = {
    {L"pptx", L"application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml"},
    {L"potx", L"application/vnd.openxmlformats-officedocument.presentationml.template.main+xml"},
    {L"ppsx", L"application/vnd.openxmlformats-officedocument.presentationml.slideshow.main+xml"},
    {L"pptm", L"application/vnd.ms-powerpoint.presentation.macroEnabled.main+xml", true},
    {L"potm", L"application/vnd.ms-powerpoint.template.macroEnabled.main+xml", true},
    {L"ppsm", L"application/vnd.ms-powerpoint.slideshow.macroEnabled.main+xml", true},
};

/// Images that aren't among the common files of `FileUtils::getContentType`, by extension in lower case:
/// registered types, or, where presentations have used another for longer (as for metafiles), that one.
struct ImageType {
    const wchar_t* extension;
    const wchar_t* contentType;
};

inline constexpr ImageType kImageTypes[] = {
    {L"apng", L"image/apng"},        {L"avif", L"image/avif"}, {L"dib", L"image/bmp"},
    {L"heic", L"image/heic"},        {L"heif", L"image/heif"}, {L"ico", L"image/x-icon"},
    {L"jfif", L"image/jpeg"},        {L"jp2", L"image/jp2"},   {L"jxl", L"image/jxl"},
    {L"jxr", L"image/vnd.ms-photo"}, {L"pct", L"image/pict"},  {L"pcx", L"image/x-pcx"},
    {L"pict", L"image/pict"},        {L"tga", L"image/x-tga"}, {L"wdp", L"image/vnd.ms-photo"},
    {L"webp", L"image/webp"},        {L"wmf", L"image/x-wmf"}, {L"wmz", L"image/x-wmz"},
};

} // namespace vellox::ppt::contenttype

#endif
