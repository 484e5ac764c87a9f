/// @file
/// Slides.

#ifndef VELLOX_PPT_TREE_SLIDE_H
#define VELLOX_PPT_TREE_SLIDE_H

#include <string>
#include <vector>

#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/object/Content.h"
#include "vellox/ppt/object/Element.h"
#include "vellox/ppt/tree/Chart.h"
#include "vellox/ppt/tree/PageFields.h"
#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/Table.h"
#include "vellox/ppt/tree/TextBox.h"

namespace vellox::ppt {

class SlideImpl;

/// One page of a presentation, on which shapes are filled by name. Only Presentation::add() makes slides. A
/// handle: copies share one slide.
///
///     Slide slide = deck.add(L"Title and Content");
///     slide.replace(L"Title", L"Results");
///     slide.add(L"Content", L"First point");
///
/// The operations by name act on every shape that bears the name, those in groups among them, though these stay
/// in the file as the template has them. A shape that doesn't take what is given is passed over, and a name that
/// nothing bears does nothing: see Presentation::getFindings().
class VELLOX_API Slide : public Element, public PageFieldProperties<Slide> {
public:
    /// @{ Puts this very object on the slide, on top of what is there.
    /// @return a handle on it
    /// @throws failedToAppendChild if it already has a parent
    Picture add(const Picture& picture);
    Table add(const Table& table);
    TextBox add(const TextBox& textBox);
    /// @}

    /// Adds a new paragraph to text boxes and placeholders.
    void add(const std::wstring& name, const std::wstring& text);
    /// Adds a paragraph to text boxes and placeholders: the first gets the object itself unless it has a
    /// parent, the others copies.
    void add(const std::wstring& name, const Paragraph& paragraph);
    /// Makes a new paragraph the only one of text boxes and placeholders.
    void replace(const std::wstring& name, const std::wstring& text);
    /// Makes a paragraph, or a copy of it if it already has a parent, the only one of text boxes and
    /// placeholders.
    void replace(const std::wstring& name, const Paragraph& paragraph);
    /// Gives text boxes and placeholders the items of a list, placeholders that take one a Picture or a
    /// Table, tables a Table.
    /// @throws invalidReplaceArg for what one of the shapes doesn't take
    void replace(const std::wstring& name, const HvContentPtr& content);
    /// @{ Puts a picture or a table in the place of the shapes that take one.
    /// @throws invalidReplaceArg for what one of the shapes doesn't take
    void replace(const std::wstring& name, const Picture& picture);
    void replace(const std::wstring& name, const Table& table);
    /// @}

    /// The one shape of a name. The name may also be "idx:13", the placeholder of that index, "type:title", that of
    /// the type, or "type:body#2", the second of the type from the back to the front; "title" stands for both kinds of
    /// titles. A shape that bears such a text as its name comes first.
    /// @throws unknownShape with the names that come nearest
    /// @throws ambiguousShape if several shapes bear the name
    boost::shared_ptr<Shape> shape(const std::wstring& name) const;
    /// Fills shapes, each by a name as for shape(): text boxes and placeholders with texts, numbers, paragraphs and
    /// lists, those that take them with a Picture or a Table. What was in a shape goes. If something can't be filled,
    /// nothing is.
    /// @param dropEmpty takes placeholders that are empty then off the slide; else there is a finding for each
    /// @throws unknownShape, ambiguousShape as shape()
    /// @throws shapeRefusesContent if a shape doesn't take what is given, or can't give way to it in a group
    /// @throws shapeFilledTwice if two names stand for one shape
    void fill(const Contents& contents, bool dropEmpty = false);
    /// As Presentation::fillTokens(), on this slide.
    unsigned int fillTokens(const Contents& values, bool strict = false);

    /// All shapes of the name, a group ahead of what it holds.
    Children find(const std::wstring& name) const;

    /// A chart of the template by its name; the first, if there are several. Slides of layouts have none of their own.
    /// @throws noSuchChart with the names that there are
    Chart chart(const std::wstring& name);
    /// The names of those charts, those in groups too.
    const std::vector<std::wstring> getChartNames() const;

    const std::wstring& getLayoutName() const;
    const std::wstring& getSlideMasterName() const;
    /// The name that Presentation::find() finds the slide by and that it bears in the file.
    void setName(const std::wstring& name);

    /// @{ Whether the slide is left out when the presentation is shown.
    bool isHidden() const;
    void setHidden(bool isHidden);
    /// @}
    /// @{ What the speaker reads while the slide is shown; empty if there is nothing. "\n" ends a paragraph. A slide
    /// without notes gets them on the template's notes master, or on a plain one where it has none.
    /// @throws cannotOpenFile, partDOMBuildError if the template's own can't be read
    std::wstring getNotes() const;
    void setNotes(const std::wstring& text);
    /// @}

    /// The node as a Slide, or an empty pointer.
    static boost::shared_ptr<Slide> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    /// A slide of no layout, which can't be written.
    Slide();
    explicit Slide(SlideImpl* impl);
    SlideImpl* pimpl();
    const SlideImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
