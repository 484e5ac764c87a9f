/// @file
/// The object that a program holds from its first line to its last.
///
///     #include <vellox/vellox.h>
///     using namespace vellox::ppt;
///
///     Presentation deck(L"report.pptx");             // on the default template
///     Slide slide = deck.add(L"Title and Content");  // a slide of a layout, by name
///     slide.replace(L"Title", L"Weekly report");     // its placeholders, by name
///     slide.add(L"Content", L"All went well.");
///     deck.close();                                  // writes report.pptx

#ifndef VELLOX_PPT_ENGINE_PRESENTATION_H
#define VELLOX_PPT_ENGINE_PRESENTATION_H

#include <string>
#include <utility>
#include <vector>

#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/engine/Template.h"
#include "vellox/ppt/messages/Finding.h"
#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/tree/PageFields.h"
#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/Slide.h"

namespace vellox::ppt {

class PresentationImpl;

/// How a long table is spread over slides.
struct PageOptions {
    unsigned int rows = 0; ///< on each slide, the header's not counted; 0 for as many as find room
    std::wstring
        height; ///< a length: the room for the table; empty for that of its place. Counts without `rows`.
    /// The title of the slides, empty to leave that open. "{page}" and "{pages}" in it are numbers; where neither is,
    /// " (2/3)" comes behind it if there are several.
    std::wstring title;
};

/// A presentation that is being made from a template. A handle: copies share one presentation.
///
/// It goes through a fixed life: made, opened (the template is read), closed (the slides are written). Every
/// operation that needs the template opens the presentation first, and so may throw what open() throws. There is no
/// way back: what is changed after close() changes nothing on disk. With the profile "office" the output path keeps
/// what stands there until close() has the whole deck. With "classic" a copy of the template stands there from open()
/// on, and that is what a presentation leaves that is never closed.
class VELLOX_API Presentation : public PPTNode, public PageFieldProperties<Presentation> {
public:
    using Names = std::vector<std::wstring>;
    using NamePairs = std::vector<std::pair<std::wstring, std::wstring>>;

    /// On the default template. Without an output path the file is "untitled.pptx" in the current folder.
    Presentation();
    /// @{ @throws pathNotFound if a folder on the way to one of the paths doesn't exist
    /// @throws invalidFilePath if such a folder can't be followed
    /// @throws failedToDetermineFilename
    explicit Presentation(const std::wstring& outputPath);
    Presentation(const std::wstring& outputPath, const std::wstring& templatePath);
    /// On a template that was read before.
    Presentation(const std::wstring& outputPath, const Template& source);
    /// @}

    /// @{ With the profile "office". Without a template path on the default template.
    /// @throws as the constructors
    static Presentation forOffice(const std::wstring& outputPath);
    static Presentation forOffice(const std::wstring& outputPath, const std::wstring& templatePath);
    static Presentation forOffice(const std::wstring& outputPath, const Template& source);
    /// @}

    /// Reads the template and, with the profile "classic", puts a copy of it at the output path, in the place of what
    /// stands there. Paths without an extension get "pptx".
    /// @return false if the presentation was opened before
    /// @throws cannotOpenTemplate if the template can't be copied, with the reason
    /// @throws cannotOpenFile if the template is no package, or a damaged or encrypted one, or if the output
    ///         can't be written; with the reason and the path
    /// @throws invalidTemplate if the template is a package, but no presentation to build on
    /// @throws partDOMBuildError if a part of the template can't be read, with the part and the reason
    /// @throws reservedWindowsFileName, reservedWindowsFileNameChar for the name of the output
    /// @throws pathNotFound if the output's folder doesn't exist
    bool open();
    /// Writes all slides and saves the output.
    /// @return false if the presentation isn't open: it never was, or it is closed
    /// @throws cannotOpenFile if the output can't be saved, with the reason and the path; the file at the
    ///         output path is as it was then
    /// @throws notAsAsked if the presentation is strict and a finding is an error; likewise
    bool close();

    /// @{ Adds a slide of a layout: at the end, before the slide at an index from 0 (at the end if there is
    /// none), or before a slide (at the end if that isn't one of this presentation). Where several slide
    /// masters have a layout of the name, one of them may be named; else the one whose part name sorts first
    /// is taken. Names are exact. With the profile "office", "#3" is a master's third layout. The errors are
    /// IHintedErrors with the nearest names, which the profile "office" puts into their texts, too.
    /// @throws invalidLayoutName
    /// @throws invalidLayoutOrSlideMasterName in the forms with a master
    Slide add(const std::wstring& layoutName);
    Slide add(const std::wstring& layoutName, unsigned int index);
    Slide add(const std::wstring& layoutName, const Slide& before);
    Slide add(const std::wstring& layoutName, const std::wstring& masterName);
    Slide add(const std::wstring& layoutName, const std::wstring& masterName, unsigned int index);
    Slide add(const std::wstring& layoutName, const std::wstring& masterName, const Slide& before);
    /// @}

    /// Adds slides of a layout at the end, as many as a table needs, and puts a part of it in each in the place of the
    /// shape of a name: the rows of its header, and as many of the others as go there. How many find room is estimated.
    /// A total row is on the last one; what is merged and goes on on another slide is shown there again.
    /// @return the slides; none for a table without rows
    /// @throws invalidPropertyValue for a height that is no length, or not above 0
    /// @throws what add() and Slide::fill() do; then no slide was added
    std::vector<Slide> addPages(const std::wstring& layoutName, const std::wstring& name, const Table& table,
                                const PageOptions& options = PageOptions());

    /// @{ Adds a slide with all that another one has, behind the last slide or before the one at an index from 0: what
    /// the template has on it and what came since, notes and transition among it. Pictures are shared, charts with
    /// their workbooks are copied; links to the slide lead to the copy where they stand on that. Comments stay behind.
    /// @throws slideNotInPresentation
    Slide copy(const Slide& slide);
    Slide copy(const Slide& slide, unsigned int index);
    /// @}
    /// Puts a slide in the place of an index from 0, or at the end if there is none.
    /// @throws slideNotInPresentation
    void move(const Slide& slide, unsigned int index);
    /// Puts a slide before another one, or at the end if that isn't one of this presentation.
    /// @throws slideNotInPresentation
    void moveBefore(const Slide& slide, const Slide& before);
    /// Takes a slide out. With one of the template's go its notes, its charts, its entries in sections and custom
    /// shows, and links that lead to it. The handle stays good for reading, and the slide can't come back.
    /// @throws slideNotInPresentation
    void remove(const Slide& slide);
    /// Takes out the slides that the template brought along, wherever they stand by now. Those that were added or
    /// copied stay.
    void clear();

    /// @{ As the operations of Slide, on all slides.
    void add(const std::wstring& name, const Paragraph& paragraph);
    void replace(const std::wstring& name, const std::wstring& text);
    void replace(const std::wstring& name, const Paragraph& paragraph);
    void replace(const std::wstring& name, const HvContentPtr& content);
    /// @}
    /// Fills the tokens in the texts of the template's slides and of their copies: in boxes, placeholders, groups,
    /// tables and notes. What a token becomes looks as the text does that it begins in.
    ///
    /// - "{name}": the value of the name. Of a record, "{flow.mean}".
    /// - "{mean:.1f}": a number in a form: [+][,][.digits][f, e, g, d or %]; a date written as 2026-11-21, with or without
    ///   a time, in one such as "%d.%m.%Y".
    /// - A token that is all of a paragraph, and whose value is a list: a paragraph for each item, lists in it a level
    ///   deeper.
    /// - A token that is all of a shape, and whose value is a Picture or a Table: that stands where the shape did.
    /// - Tokens in one row of a table, "{rows.name}", whose value is a list of records or a table with names in its
    ///   first row: the row for each record.
    /// - "{{" and "}}": braces.
    ///
    /// Tokens without a value stay and are findings, and so are values without a token.
    /// @param strict makes these errors, before anything is filled
    /// @return how many tokens were filled
    /// @throws tokensLeft if it is strict; with the tokens and the names
    /// @throws cannotOpenFile, partDOMBuildError if notes can't be read
    unsigned int fillTokens(const Contents& values, bool strict = false);

    /// All slides and shapes of the name, a container ahead of what it holds.
    Children find(const std::wstring& name);

    /// The names of the slide masters (of their themes), in the template's order.
    const Names getMasterNames();
    /// The names of a master's layouts, in the order of the master's relationships; none for an unknown master.
    const Names getLayoutNames(const std::wstring& masterName);
    /// (name, id) of each table style of the template.
    const NamePairs getTableStyleNames();

    /// What was asked for and isn't in the deck, or is other than asked, in the order in which it came out: while the
    /// deck was made, and when it was closed. Each has a code, a severity, a text, and the number of the slide and the
    /// name of the shape as far as it is about one. Errors: asked for and not there; warnings: there, but maybe not as
    /// meant. With the profile "office" each is sent as a WarningMessage, too. A copy of a presentation begins without.
    ///
    /// | code | severity | meaning |
    /// |---|---|---|
    /// | unknownName | error | text or content was for a name that nothing bears |
    /// | ambiguousName | warning | several shapes of one slide bear the name, and all that take it got it |
    /// | contentRefused | error | what bears the name takes no such thing |
    /// | listExpected | error | a text box was given content that is no list |
    /// | notReplaced | error | a shape in a group was to give way to a picture or a table |
    /// | shapeInGroup | error | a shape in a group was changed; groups stay as the template has them |
    /// | slideAfterClose | error | a slide was added to a closed presentation |
    /// | slideNotWritten | error | a slide is the copy of another |
    /// | layoutCopiedInPart | warning | not all of a layout can be had on a slide |
    /// | pictureWithoutFile | error | a picture has no path |
    /// | unreadablePicture | error | the file of a picture can't be read |
    /// | unknownImageType | warning | the file of a picture is of no known kind |
    /// | invalidTableStyle | error | the template has no table style of the name |
    /// | emptyTable | error | a table has no rows |
    /// | coveredCell | warning | a cell that a merged one covers holds something |
    /// | noTextBody | error | text was given to a shape without a text body |
    /// | noShapeProperties | error | a fill was given to a shape without properties |
    /// | emptyLinkTarget | error | the target of a link is empty or blank |
    /// | pageFieldNotShown | error | a slide is to have a date, a footer or a number that its layout has no place for |
    /// | fontNotInstalled | warning | the room for a text was estimated without its font |
    /// | charactersDropped | warning | a text or a name holds characters that no file can |
    /// | valueLimited | warning | a size or the like is beyond what the format allows, and was brought to its limit |
    /// | cannotChangeOutputPath, cannotChangeTemplatePath | warning | a path of an open presentation was to change |
    /// | macrosLeftOut | warning | the template has macros, and a file with the extension of the output can't have any |
    /// | signaturesRemoved | warning | the template is signed, and what was signed isn't the deck |
    /// | deviceFileName | warning | the output is called as a device of Windows |
    /// | unsoundPart | error | a part that was written, or a layout of a new slide, isn't as the format has it |
    /// | doubtfulPart | warning | a part that was written has something that programs read in different ways |
    /// | cannotChangeProfile | warning | the profile of an open presentation was to change |
    /// | emptyPlaceholder | info | a placeholder of a new slide got nothing |
    /// | textTooLong | warning | a text takes more room than its box has, by an estimate |
    /// | tableTooLong | warning | a table takes more height than there is for it, by an estimate |
    /// | tokenWithoutValue | error | a token of a text has no value |
    /// | valueWithoutToken | warning | no text has a token for a value |
    /// | tokenRefusesValue | error | a value can't stand where its token does, or not in the form that is asked for |
    /// | moreFindings | info | there are more of a severity than are kept, which is 1000 |
    const std::vector<Finding> getFindings() const;
    /// All but the first ones, for whoever has read these before.
    std::vector<Finding> getFindings(std::size_t first) const;
    /// @{ Whether the presentation refuses to be other than asked: the first finding that is an error is raised as
    /// notAsAsked, at once by the operation that it comes of, and by close() before the output is touched. What was
    /// raised isn't kept; what was found before is raised by close(). False by default.
    bool getStrict() const;
    void setStrict(bool strict);
    /// @}

    /// @{ As last set, with "/" as separator; once the presentation is open with the folder and the extension
    /// that it was opened with.
    const std::wstring getOutputPath() const;
    const std::wstring getTemplatePath() const;
    /// @}
    /// @{ Once the presentation is open this changes nothing, and warns.
    /// @throws pathNotFound, invalidFilePath, failedToDetermineFilename as the constructors
    void setOutputPath(const std::wstring& path);
    void setTemplatePath(const std::wstring& path);
    /// @}
    /// @{ How small the file is made: "fast" in little more than half the time of "normal" and 5 % larger, or
    /// "small" in six times that time and 2 % smaller. What the template brings stays as it is. To be set before
    /// close(); in upper or lower case.
    /// @throws invalidPropertyValue for other words
    const std::wstring getCompression() const;
    void setCompression(const std::wstring& compression);
    /// @}

    /// @{ What the file says of itself, to be set before close(): what isn't set is as in the template, but that with
    /// the profile "office" nobody is its author. An empty text leaves the property out.
    const std::wstring getTitle() const;
    void setTitle(const std::wstring& title);
    const std::wstring getAuthor() const;
    void setAuthor(const std::wstring& author);
    const std::wstring getSubject() const;
    void setSubject(const std::wstring& subject);
    const std::wstring getKeywords() const;
    void setKeywords(const std::wstring& keywords);
    /// @}

    /// @{ How values are shown in all tables of the deck, below their headers: see NumberFormat and the others of tables,
    /// columns and entries, which come first.
    /// @throws invalidPropertyValue for what is no form
    BaseAttribute<std::wstring> getNumberFormat() const;
    void setNumberFormat(const std::wstring& form);
    void unsetNumberFormat();
    BaseAttribute<std::wstring> getMissingText() const;
    void setMissingText(const std::wstring& text);
    void unsetMissingText();
    BaseAttribute<std::wstring> getTrueText() const;
    void setTrueText(const std::wstring& text);
    void unsetTrueText();
    BaseAttribute<std::wstring> getFalseText() const;
    void setFalseText(const std::wstring& text);
    void unsetFalseText();
    /// @}
    /// @{ What stands between the whole and the fraction of numbers, "." unless told otherwise, and what sets off
    /// thousands where a form asks for that: "," or, if that is the decimal mark, ".". They count for all that is given as
    /// a number, in tables, texts and tokens.
    /// @throws invalidPropertyValue for what isn't one character, or a digit; thousands may be set off by nothing
    BaseAttribute<std::wstring> getDecimalMark() const;
    void setDecimalMark(const std::wstring& mark);
    void unsetDecimalMark();
    BaseAttribute<std::wstring> getThousandsMark() const;
    void setThousandsMark(const std::wstring& mark);
    void unsetThousandsMark();
    /// @}

    /// @{ By which rules slides are made of the template: "classic", as vellox always has, or "office", as the
    /// office programs do. docs/profiles.md has what sets them apart. Once the presentation is open this changes
    /// nothing, and warns.
    /// @throws invalidPropertyValue for another word
    const std::wstring getProfile() const;
    void setProfile(const std::wstring& name);
    /// @}

protected:
    friend struct ObjectAccess;
    explicit Presentation(PresentationImpl* impl);
    PresentationImpl* pimpl();
    const PresentationImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
