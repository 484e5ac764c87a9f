/// @file
/// Every message identifier of the library, as a class that knows its catalog and takes exactly the
/// arguments that the text has blanks for. The texts stand in resources/messages; a test compares the two.

#ifndef VELLOX_FOUNDATION_IDENTIFIERS_H
#define VELLOX_FOUNDATION_IDENTIFIERS_H

#include <string>

#include "vellox/foundation/MsgID.h"

namespace vellox {

/// Errors of lengths, files and table shape.
namespace dom_error {

inline constexpr char kCatalog[] = "vellox:dom_error";

/// The number of a length is a lone minus sign.
struct VELLOX_API invalidDimensionSign : MsgID {
    invalidDimensionSign() : MsgID(kCatalog, "invalidDimensionSign", 0) {}
};
/// The unit of a length isn't known.
struct VELLOX_API invalidDimensionUnits : MsgID {
    explicit invalidDimensionUnits(const std::wstring& units)
        : MsgID(kCatalog, "invalidDimensionUnits", {units}) {}
};
/// A file name stem holds a name that Windows keeps for a device.
struct VELLOX_API reservedWindowsFileName : MsgID {
    explicit reservedWindowsFileName(const std::wstring& stem)
        : MsgID(kCatalog, "reservedWindowsFileName", {stem}) {}
};
/// A file name stem holds a character that Windows doesn't allow.
struct VELLOX_API reservedWindowsFileNameChar : MsgID {
    explicit reservedWindowsFileNameChar(const std::wstring& stem)
        : MsgID(kCatalog, "reservedWindowsFileNameChar", {stem}) {}
};
/// The permissions of a file can't be read.
struct VELLOX_API fileSystemError : MsgID {
    fileSystemError(const std::wstring& action, const std::wstring& reason)
        : MsgID(kCatalog, "fileSystemError", {action, reason}) {}
};
/// A temporary folder can't be made.
struct VELLOX_API cannotCreateTemporaryDirectory : MsgID {
    cannotCreateTemporaryDirectory() : MsgID(kCatalog, "cannotCreateTemporaryDirectory", 0) {}
};
/// Two paths can't be joined.
struct VELLOX_API failedToCombinePaths : MsgID {
    failedToCombinePaths() : MsgID(kCatalog, "failedToCombinePaths", 0) {}
};
/// A file can't be copied, or can't be removed.
struct VELLOX_API failedToCopyFile : MsgID {
    failedToCopyFile() : MsgID(kCatalog, "failedToCopyFile", 0) {}
};
/// A folder can't be made.
struct VELLOX_API failedToCreateDirectory : MsgID {
    failedToCreateDirectory() : MsgID(kCatalog, "failedToCreateDirectory", 0) {}
};
/// A path has no file name.
struct VELLOX_API failedToDetermineFilename : MsgID {
    failedToDetermineFilename() : MsgID(kCatalog, "failedToDetermineFilename", 0) {}
};
/// It can't be told whether a file exists.
struct VELLOX_API failedToQueryFileState : MsgID {
    failedToQueryFileState() : MsgID(kCatalog, "failedToQueryFileState", 0) {}
};
/// The folder of a presentation's path can't be resolved.
struct VELLOX_API invalidFilePath : MsgID {
    explicit invalidFilePath(const std::wstring& path) : MsgID(kCatalog, "invalidFilePath", {path}) {}
};
/// A table row has more or fewer entries than its table has columns; rows count from 1.
struct VELLOX_API entriesColumnsMismatch : MsgID {
    entriesColumnsMismatch(const std::wstring& row, const std::wstring& entries, const std::wstring& columns)
        : MsgID(kCatalog, "entriesColumnsMismatch", {row, entries, columns}) {}
};

} // namespace dom_error

/// Errors of presentations and what is in them.
namespace ppt_error {

inline constexpr char kCatalog[] = "vellox:ppt_error";

/// A property or format is given a value outside its vocabulary or range.
struct VELLOX_API invalidPropertyValue : MsgID {
    explicit invalidPropertyValue(const std::wstring& value)
        : MsgID(kCatalog, "invalidPropertyValue", {value}) {}
};
/// A logical property is given what is neither logical nor a number.
struct VELLOX_API invalidLogicalPropertyValue : MsgID {
    invalidLogicalPropertyValue() : MsgID(kCatalog, "invalidLogicalPropertyValue", 0) {}
};
/// A style is given what isn't a list of formats.
struct VELLOX_API invalidFormatStyle : MsgID {
    invalidFormatStyle() : MsgID(kCatalog, "invalidFormatStyle", 0) {}
};
/// A table is made from what holds no table.
struct VELLOX_API invalidConstructorArg : MsgID {
    invalidConstructorArg() : MsgID(kCatalog, "invalidConstructorArg", 0) {}
};
/// What is to be added can't be.
struct VELLOX_API invalidAddArg : MsgID {
    invalidAddArg() : MsgID(kCatalog, "invalidAddArg", 0) {}
};
/// What is to take a place can't, or the place can't be taken.
struct VELLOX_API invalidReplaceArg : MsgID {
    invalidReplaceArg() : MsgID(kCatalog, "invalidReplaceArg", 0) {}
};
/// A slide, row or column subscript is 0; these count from 1.
struct VELLOX_API positiveSubscript : MsgID {
    positiveSubscript() : MsgID(kCatalog, "positiveSubscript", 0) {}
};
/// A slide subscript is above the number of slides.
struct VELLOX_API badSlideSubscript : MsgID {
    badSlideSubscript(const std::wstring& subscript, const std::wstring& slides)
        : MsgID(kCatalog, "badSlideSubscript", {subscript, slides}) {}
};
/// A row subscript is above the number of rows.
struct VELLOX_API badRowSubscript : MsgID {
    badRowSubscript(const std::wstring& subscript, const std::wstring& rows)
        : MsgID(kCatalog, "badRowSubscript", {subscript, rows}) {}
};
/// A column subscript is above the number of entries in its row.
struct VELLOX_API badColSubscript : MsgID {
    badColSubscript(const std::wstring& subscript, const std::wstring& columns)
        : MsgID(kCatalog, "badColSubscript", {subscript, columns}) {}
};
/// A cell holds what no table cell can show; both count from 1.
struct VELLOX_API invalidObjectForTable : MsgID {
    invalidObjectForTable(const std::wstring& row, const std::wstring& column)
        : MsgID(kCatalog, "invalidObjectForTable", {row, column}) {}
};
/// A node that already has a parent is to get another.
struct VELLOX_API failedToAppendChild : MsgID {
    failedToAppendChild() : MsgID(kCatalog, "failedToAppendChild", 0) {}
};
/// A picture that stands nowhere is to be replaced.
struct VELLOX_API pictureCannotBeReplaced : MsgID {
    pictureCannotBeReplaced() : MsgID(kCatalog, "pictureCannotBeReplaced", 0) {}
};
/// A picture's file can't be read.
struct VELLOX_API missingPictureFile : MsgID {
    missingPictureFile(const std::wstring& slide, const std::wstring& shape, const std::wstring& file)
        : MsgID(kCatalog, "missingPictureFile", {slide, shape, file}) {}
};
/// A picture is an SVG that can't be drawn; the reason comes last.
struct VELLOX_API invalidSvg : MsgID {
    invalidSvg(const std::wstring& slide, const std::wstring& shape, const std::wstring& file,
               const std::wstring& reason)
        : MsgID(kCatalog, "invalidSvg", {slide, shape, file, reason}) {}
};
/// A picture is an SVG, and librsvg, which draws these for readers that can't, isn't installed.
struct VELLOX_API svgNeedsRenderer : MsgID {
    svgNeedsRenderer(const std::wstring& slide, const std::wstring& shape, const std::wstring& file)
        : MsgID(kCatalog, "svgNeedsRenderer", {slide, shape, file}) {}
};
/// A picture is made of bytes that are no image of a known kind.
struct VELLOX_API unknownImageBytes : MsgID {
    explicit unknownImageBytes(const std::wstring& count) : MsgID(kCatalog, "unknownImageBytes", {count}) {}
};
/// A slide has no chart of this name.
struct VELLOX_API noSuchChart : MsgID {
    noSuchChart(const std::wstring& chart, const std::wstring& charts)
        : MsgID(kCatalog, "noSuchChart", {chart, charts}) {}
};
/// A chart is given what is no list of categories, or no table of series.
struct VELLOX_API invalidChartData : MsgID {
    invalidChartData() : MsgID(kCatalog, "invalidChartData", 0) {}
};
/// A chart is given no categories, or no series.
struct VELLOX_API chartDataEmpty : MsgID {
    chartDataEmpty() : MsgID(kCatalog, "chartDataEmpty", 0) {}
};
/// A series of a chart has more or fewer values than there are categories.
struct VELLOX_API chartDataRagged : MsgID {
    chartDataRagged(const std::wstring& series, const std::wstring& values, const std::wstring& categories)
        : MsgID(kCatalog, "chartDataRagged", {series, values, categories}) {}
};
/// A chart is given more categories or series than a workbook holds.
struct VELLOX_API chartDataTooLarge : MsgID {
    chartDataTooLarge(const std::wstring& categories, const std::wstring& series)
        : MsgID(kCatalog, "chartDataTooLarge", {categories, series}) {}
};
/// A value of a chart is no number, or an infinite one; values count from 1.
struct VELLOX_API chartValueNoNumber : MsgID {
    chartValueNoNumber(const std::wstring& series, const std::wstring& position, const std::wstring& value)
        : MsgID(kCatalog, "chartValueNoNumber", {series, position, value}) {}
};
/// A chart of the template can't be given data.
struct VELLOX_API unsupportedChart : MsgID {
    unsupportedChart(const std::wstring& slide, const std::wstring& chart, const std::wstring& kind)
        : MsgID(kCatalog, "unsupportedChart", {slide, chart, kind}) {}
};
/// The workbook of a chart can't be made.
struct VELLOX_API chartWorkbookFailed : MsgID {
    chartWorkbookFailed(const std::wstring& chart, const std::wstring& reason)
        : MsgID(kCatalog, "chartWorkbookFailed", {chart, reason}) {}
};
/// Cells are to be merged that a table hasn't, or only one; rows and columns count from 1.
struct VELLOX_API invalidCellRange : MsgID {
    invalidCellRange(const std::wstring& row, const std::wstring& column, const std::wstring& lastRow,
                     const std::wstring& lastColumn)
        : MsgID(kCatalog, "invalidCellRange", {row, column, lastRow, lastColumn}) {}
};
/// Cells are to be merged of which some are in a merged cell, which is named; rows and columns count from 1.
struct VELLOX_API cellsAlreadyMerged : MsgID {
    cellsAlreadyMerged(const std::wstring& row, const std::wstring& column, const std::wstring& lastRow,
                       const std::wstring& lastColumn)
        : MsgID(kCatalog, "cellsAlreadyMerged", {row, column, lastRow, lastColumn}) {}
};
/// A table that stands nowhere is to be replaced.
struct VELLOX_API tableCannotBeReplaced : MsgID {
    tableCannotBeReplaced() : MsgID(kCatalog, "tableCannotBeReplaced", 0) {}
};
/// A placeholder is used that a picture or a table has replaced.
struct VELLOX_API placeholderWasReplacedByObject : MsgID {
    placeholderWasReplacedByObject() : MsgID(kCatalog, "placeholderWasReplacedByObject", 0) {}
};
/// A slide isn't one of the presentation's, or not any more.
struct VELLOX_API slideNotInPresentation : MsgID {
    slideNotInPresentation() : MsgID(kCatalog, "slideNotInPresentation", 0) {}
};
/// A slide has no shape of this name.
struct VELLOX_API unknownShape : MsgID {
    explicit unknownShape(const std::wstring& name) : MsgID(kCatalog, "unknownShape", {name}) {}
};
/// Several shapes of a slide bear this name, and one is wanted.
struct VELLOX_API ambiguousShape : MsgID {
    ambiguousShape(const std::wstring& name, const std::wstring& count)
        : MsgID(kCatalog, "ambiguousShape", {name, count}) {}
};
/// A shape can't take what it is to be filled with.
struct VELLOX_API shapeRefusesContent : MsgID {
    shapeRefusesContent(const std::wstring& name, const std::wstring& content)
        : MsgID(kCatalog, "shapeRefusesContent", {name, content}) {}
};
/// Two names of one call stand for one shape.
struct VELLOX_API shapeFilledTwice : MsgID {
    shapeFilledTwice(const std::wstring& name, const std::wstring& other)
        : MsgID(kCatalog, "shapeFilledTwice", {name, other}) {}
};
/// A handle is to be taken for one of a class, and there is none.
struct VELLOX_API emptyHandle : MsgID {
    explicit emptyHandle(const std::wstring& wanted) : MsgID(kCatalog, "emptyHandle", {wanted}) {}
};
/// A handle is to be taken for one of a class that its object isn't of.
struct VELLOX_API wrongClass : MsgID {
    wrongClass(const std::wstring& name, const std::wstring& present)
        : MsgID(kCatalog, "wrongClass", {name, present}) {}
};
/// Tokens without values, or values without tokens, where all have to be there.
struct VELLOX_API tokensLeft : MsgID {
    explicit tokensLeft(const std::wstring& tokens) : MsgID(kCatalog, "tokensLeft", {tokens}) {}
};
/// The template has no layout of this name.
struct VELLOX_API invalidLayoutName : MsgID {
    explicit invalidLayoutName(const std::wstring& layout) : MsgID(kCatalog, "invalidLayoutName", {layout}) {}
};
/// The template has no layout of this name under that slide master.
struct VELLOX_API invalidLayoutOrSlideMasterName : MsgID {
    invalidLayoutOrSlideMasterName(const std::wstring& layout, const std::wstring& master)
        : MsgID(kCatalog, "invalidLayoutOrSlideMasterName", {layout, master}) {}
};
/// A strict presentation isn't what was asked for. The code of the finding comes behind its text.
struct VELLOX_API notAsAsked : MsgID {
    notAsAsked(const std::wstring& finding, const std::wstring& code)
        : MsgID(kCatalog, "notAsAsked", {finding, code}) {}
};
/// A file can't be opened; the argument may begin with the reason.
struct VELLOX_API cannotOpenFile : MsgID {
    explicit cannotOpenFile(const std::wstring& file) : MsgID(kCatalog, "cannotOpenFile", {file}) {}
};
/// A template can't be opened.
struct VELLOX_API cannotOpenTemplate : MsgID {
    explicit cannotOpenTemplate(const std::wstring& reason)
        : MsgID(kCatalog, "cannotOpenTemplate", {reason}) {}
};
/// A package can be read, but isn't a presentation to build on.
struct VELLOX_API invalidTemplate : MsgID {
    explicit invalidTemplate(const std::wstring& package) : MsgID(kCatalog, "invalidTemplate", {package}) {}
};
/// A folder on the way to a presentation doesn't exist.
struct VELLOX_API pathNotFound : MsgID {
    explicit pathNotFound(const std::wstring& path) : MsgID(kCatalog, "pathNotFound", {path}) {}
};
/// A part of a package isn't XML that can be read.
struct VELLOX_API partDOMBuildError : MsgID {
    partDOMBuildError(const std::wstring& part, const std::wstring& reason)
        : MsgID(kCatalog, "partDOMBuildError", {part, reason}) {}
};

} // namespace ppt_error

/// Messages about the life of objects.
namespace ppt_debug {

inline constexpr char kCatalog[] = "vellox:ppt_debug";

/// An object has been made.
struct VELLOX_API objCreated : MsgID {
    explicit objCreated(const std::wstring& object) : MsgID(kCatalog, "objCreated", {object}) {}
};
/// An object ends.
struct VELLOX_API objDestroyed : MsgID {
    explicit objDestroyed(const std::wstring& object) : MsgID(kCatalog, "objDestroyed", {object}) {}
};

} // namespace ppt_debug

/// Messages about what is being done.
namespace ppt_progress {

inline constexpr char kCatalog[] = "vellox:ppt_progress";

/// A presentation has taken a child.
struct VELLOX_API appendChildMsg : MsgID {
    explicit appendChildMsg(const std::wstring& child) : MsgID(kCatalog, "appendChildMsg", {child}) {}
};
/// A template is about to be read.
struct VELLOX_API docParsingTemplateMsg : MsgID {
    explicit docParsingTemplateMsg(const std::wstring& file)
        : MsgID(kCatalog, "docParsingTemplateMsg", {file}) {}
};

} // namespace ppt_progress

/// Messages about what was not done as asked.
namespace ppt_warning {

inline constexpr char kCatalog[] = "vellox:ppt_warning";

/// The output path of an open presentation is to change.
struct VELLOX_API cannotChangeOutputPath : MsgID {
    cannotChangeOutputPath() : MsgID(kCatalog, "cannotChangeOutputPath", 0) {}
};
/// The profile of an open presentation is to change.
struct VELLOX_API cannotChangeProfile : MsgID {
    cannotChangeProfile() : MsgID(kCatalog, "cannotChangeProfile", 0) {}
};
/// The template path of an open presentation is to change.
struct VELLOX_API cannotChangeTemplatePath : MsgID {
    cannotChangeTemplatePath() : MsgID(kCatalog, "cannotChangeTemplatePath", 0) {}
};
/// The template has no table style of this name.
struct VELLOX_API invalidTableStyle : MsgID {
    explicit invalidTableStyle(const std::wstring& style) : MsgID(kCatalog, "invalidTableStyle", {style}) {}
};

/// A picture's kind isn't known: neither the library nor the template has a type of images for its extension.
struct VELLOX_API unknownImageType : MsgID {
    explicit unknownImageType(const std::wstring& file) : MsgID(kCatalog, "unknownImageType", {file}) {}
};

} // namespace ppt_warning

/// What helps with an error or a finding, in words that stand behind its own or around it.
namespace ppt_hint {

inline constexpr char kCatalog[] = "vellox:ppt_hint";

/// Names that are near to one that doesn't exist.
struct VELLOX_API nearestNames : MsgID {
    explicit nearestNames(const std::wstring& names) : MsgID(kCatalog, "nearestNames", {names}) {}
};
/// None is near: the names that there are.
struct VELLOX_API allNames : MsgID {
    explicit allNames(const std::wstring& names) : MsgID(kCatalog, "allNames", {names}) {}
};
/// None is near: the first of the names that there are, and how many more.
struct VELLOX_API someNames : MsgID {
    someNames(const std::wstring& names, const std::wstring& more)
        : MsgID(kCatalog, "someNames", {names, more}) {}
};
/// A finding about a slide.
struct VELLOX_API onSlide : MsgID {
    onSlide(const std::wstring& slide, const std::wstring& text)
        : MsgID(kCatalog, "onSlide", {slide, text}) {}
};
/// A finding about a shape of a slide.
struct VELLOX_API inShape : MsgID {
    inShape(const std::wstring& slide, const std::wstring& shape, const std::wstring& text)
        : MsgID(kCatalog, "inShape", {slide, shape, text}) {}
};

} // namespace ppt_hint

/// What was asked for and isn't in the deck, or is other than asked. Kept with the presentation.
namespace ppt_finding {

inline constexpr char kCatalog[] = "vellox:ppt_finding";

/// Text or content is for a name that nothing bears. A hint begins with a semicolon.
struct VELLOX_API unknownName : MsgID {
    unknownName(const std::wstring& name, const std::wstring& hint)
        : MsgID(kCatalog, "unknownName", {name, hint}) {}
};
/// Text or content is for a name that several shapes of one slide bear.
struct VELLOX_API ambiguousName : MsgID {
    explicit ambiguousName(const std::wstring& name) : MsgID(kCatalog, "ambiguousName", {name}) {}
};
/// What bears the name doesn't take what was given by it.
struct VELLOX_API contentRefused : MsgID {
    explicit contentRefused(const std::wstring& name) : MsgID(kCatalog, "contentRefused", {name}) {}
};
/// A text box is given content that is no list.
struct VELLOX_API listExpected : MsgID {
    listExpected() : MsgID(kCatalog, "listExpected", 0) {}
};
/// A picture or a table is to take the place of a shape in a group, or of one that stands on no slide.
struct VELLOX_API notReplaced : MsgID {
    notReplaced() : MsgID(kCatalog, "notReplaced", 0) {}
};
/// A shape in a group was changed: groups are written as the template has them.
struct VELLOX_API shapeInGroup : MsgID {
    shapeInGroup() : MsgID(kCatalog, "shapeInGroup", 0) {}
};
/// A slide is added to a presentation that is closed.
struct VELLOX_API slideAfterClose : MsgID {
    slideAfterClose() : MsgID(kCatalog, "slideAfterClose", 0) {}
};
/// A slide is the copy of another, or of none that could be written.
struct VELLOX_API slideNotWritten : MsgID {
    slideNotWritten() : MsgID(kCatalog, "slideNotWritten", 0) {}
};
/// Not all of a layout can be had on a slide.
struct VELLOX_API layoutCopiedInPart : MsgID {
    explicit layoutCopiedInPart(const std::wstring& layout)
        : MsgID(kCatalog, "layoutCopiedInPart", {layout}) {}
};
/// A picture has no path.
struct VELLOX_API pictureWithoutFile : MsgID {
    pictureWithoutFile() : MsgID(kCatalog, "pictureWithoutFile", 0) {}
};
/// The file of a picture isn't there, can't be read to its end, or is no regular file.
struct VELLOX_API unreadablePicture : MsgID {
    explicit unreadablePicture(const std::wstring& file) : MsgID(kCatalog, "unreadablePicture", {file}) {}
};
/// A picture's kind isn't known: neither the library nor the template has a type of images for its extension.
struct VELLOX_API unknownImageType : MsgID {
    explicit unknownImageType(const std::wstring& file) : MsgID(kCatalog, "unknownImageType", {file}) {}
};
/// The template has no table style of this name. A hint begins with a semicolon.
struct VELLOX_API invalidTableStyle : MsgID {
    invalidTableStyle(const std::wstring& style, const std::wstring& hint)
        : MsgID(kCatalog, "invalidTableStyle", {style, hint}) {}
};
/// A table has no rows.
struct VELLOX_API emptyTable : MsgID {
    emptyTable() : MsgID(kCatalog, "emptyTable", 0) {}
};
/// A cell holds something and is covered by a merged one; row and column count from 1.
struct VELLOX_API coveredCell : MsgID {
    coveredCell(const std::wstring& row, const std::wstring& column)
        : MsgID(kCatalog, "coveredCell", {row, column}) {}
};
/// A shape that the template gives no text body is given text, or formats for it.
struct VELLOX_API noTextBody : MsgID {
    noTextBody() : MsgID(kCatalog, "noTextBody", 0) {}
};
/// A shape that the template gives no properties is given formats that belong there.
struct VELLOX_API noShapeProperties : MsgID {
    noShapeProperties() : MsgID(kCatalog, "noShapeProperties", 0) {}
};
/// The target of a link is empty or blank.
struct VELLOX_API emptyLinkTarget : MsgID {
    emptyLinkTarget() : MsgID(kCatalog, "emptyLinkTarget", 0) {}
};
/// A date, a footer or a number is wanted on a slide whose layout has no place for it.
struct VELLOX_API pageFieldNotShown : MsgID {
    explicit pageFieldNotShown(const std::wstring& field) : MsgID(kCatalog, "pageFieldNotShown", {field}) {}
};
/// A text is to be measured in a font that isn't installed, and was measured in another or by an average.
struct VELLOX_API fontNotInstalled : MsgID {
    explicit fontNotInstalled(const std::wstring& font) : MsgID(kCatalog, "fontNotInstalled", {font}) {}
};
/// A text or a name holds characters that XML can't hold.
struct VELLOX_API charactersDropped : MsgID {
    explicit charactersDropped(const std::wstring& count) : MsgID(kCatalog, "charactersDropped", {count}) {}
};
/// A length, a level or the like is beyond what the format allows, and was brought to its limit.
struct VELLOX_API valueLimited : MsgID {
    valueLimited(const std::wstring& name, const std::wstring& value, const std::wstring& limit)
        : MsgID(kCatalog, "valueLimited", {name, value, limit}) {}
};
/// The output path of an open presentation is to change.
struct VELLOX_API cannotChangeOutputPath : MsgID {
    cannotChangeOutputPath() : MsgID(kCatalog, "cannotChangeOutputPath", 0) {}
};
/// The template path of an open presentation is to change.
struct VELLOX_API cannotChangeTemplatePath : MsgID {
    cannotChangeTemplatePath() : MsgID(kCatalog, "cannotChangeTemplatePath", 0) {}
};
/// The template has macros, and a file with the extension of the output can't have any.
struct VELLOX_API macrosLeftOut : MsgID {
    macrosLeftOut() : MsgID(kCatalog, "macrosLeftOut", 0) {}
};
/// The template is signed, and what was signed isn't the deck.
struct VELLOX_API signaturesRemoved : MsgID {
    signaturesRemoved() : MsgID(kCatalog, "signaturesRemoved", 0) {}
};
/// The name of the output is one that Windows keeps for a device.
struct VELLOX_API deviceFileName : MsgID {
    explicit deviceFileName(const std::wstring& name) : MsgID(kCatalog, "deviceFileName", {name}) {}
};
/// A part that was written isn't as the format has it: a fault of the library, or one that the template had.
struct VELLOX_API unsoundPart : MsgID {
    unsoundPart(const std::wstring& part, const std::wstring& fault)
        : MsgID(kCatalog, "unsoundPart", {part, fault}) {}
};
/// A part that was written has something that programs read in different ways.
struct VELLOX_API doubtfulPart : MsgID {
    doubtfulPart(const std::wstring& part, const std::wstring& fault)
        : MsgID(kCatalog, "doubtfulPart", {part, fault}) {}
};
/// The profile of an open presentation is to change.
struct VELLOX_API cannotChangeProfile : MsgID {
    cannotChangeProfile() : MsgID(kCatalog, "cannotChangeProfile", 0) {}
};
/// A placeholder of a new slide got nothing.
struct VELLOX_API emptyPlaceholder : MsgID {
    emptyPlaceholder() : MsgID(kCatalog, "emptyPlaceholder", 0) {}
};
/// A text needs more room than its box has, as far as that can be estimated; in percent of the box.
struct VELLOX_API textTooLong : MsgID {
    explicit textTooLong(const std::wstring& percent) : MsgID(kCatalog, "textTooLong", {percent}) {}
};
/// A table needs more room than its box or its slide has, as far as that can be estimated; in percent of that.
struct VELLOX_API tableTooLong : MsgID {
    explicit tableTooLong(const std::wstring& percent) : MsgID(kCatalog, "tableTooLong", {percent}) {}
};
/// A token has no value.
struct VELLOX_API tokenWithoutValue : MsgID {
    explicit tokenWithoutValue(const std::wstring& token) : MsgID(kCatalog, "tokenWithoutValue", {token}) {}
};
/// A value has no token.
struct VELLOX_API valueWithoutToken : MsgID {
    explicit valueWithoutToken(const std::wstring& name) : MsgID(kCatalog, "valueWithoutToken", {name}) {}
};
/// A value can't stand where its token does, or not in the form that the token asks for.
struct VELLOX_API tokenRefusesValue : MsgID {
    explicit tokenRefusesValue(const std::wstring& token) : MsgID(kCatalog, "tokenRefusesValue", {token}) {}
};
/// More was found than is kept.
struct VELLOX_API moreFindings : MsgID {
    explicit moreFindings(const std::wstring& kept) : MsgID(kCatalog, "moreFindings", {kept}) {}
};

} // namespace ppt_finding

} // namespace vellox

#endif
