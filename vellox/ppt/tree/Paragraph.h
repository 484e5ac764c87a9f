/// @file
/// Paragraphs.

#ifndef VELLOX_PPT_TREE_PARAGRAPH_H
#define VELLOX_PPT_TREE_PARAGRAPH_H

#include <string>

#include "vellox/Api.h"
#include "vellox/ppt/formats/FormatProperties.h"
#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/object/Element.h"

namespace vellox::ppt {

class ExternalLink;
class ParagraphImpl;
class Text;

/// A row of texts and links, optionally at a list level. A handle: copies share one paragraph.
///
///     Paragraph paragraph(L"Result: ", 2);
///     paragraph.append(Text(42.0));
///     paragraph.setBold(true);
class VELLOX_API Paragraph : public Element,
                             public CharacterProperties<Paragraph>,
                             public ParagraphProperties<Paragraph>,
                             public HAlignProperty<Paragraph> {
public:
    /// Without any text.
    Paragraph();
    /// @param level the list level, from 1. Only an unsigned int is one here: Paragraph(2) holds the number 2.
    explicit Paragraph(unsigned int level);
    /// With one run. Line ends in the text don't split it.
    explicit Paragraph(const std::wstring& text);
    Paragraph(const std::wstring& text, unsigned int level);
    /// @{ With a run of a number, see Text.
    explicit Paragraph(double number);
    explicit Paragraph(int number);
    Paragraph(double number, unsigned int level);
    /// @}
    /// @{ With this very run, not a copy.
    /// @throws failedToAppendChild if the run already has a parent
    explicit Paragraph(const Text& text);
    Paragraph(const Text& text, unsigned int level);
    /// @}

    /// Appends a new run.
    /// @return a handle on it
    Text append(const std::wstring& text);
    /// @{ Appends this very run, not a copy.
    /// @return a handle on it
    /// @throws failedToAppendChild if the run already has a parent
    Text append(const Text& text);
    ExternalLink append(const ExternalLink& link);
    /// @}

    /// The list level, from 1. Unset means that the template's level stands, 0 writes none.
    const BaseAttribute<unsigned int>& getLevel() const;
    void setLevel(unsigned int level);
    void unsetLevel();

    /// The node as a Paragraph, or an empty pointer.
    static boost::shared_ptr<Paragraph> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit Paragraph(ParagraphImpl* impl);
    ParagraphImpl* pimpl();
    const ParagraphImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
