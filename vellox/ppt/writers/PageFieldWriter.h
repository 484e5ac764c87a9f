/// @file
/// Dates, footers and slide numbers: placeholders (ECMA-376 Part 1, 19.3.1.36) that a slide has like its layout.

#ifndef VELLOX_PPT_WRITERS_PAGEFIELDWRITER_H
#define VELLOX_PPT_WRITERS_PAGEFIELDWRITER_H

#include <cstddef>
#include <string>
#include <vector>

#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

class Rules;
class SlideDocument;
struct LayoutField;
struct PageFields;
struct TemplateSlide;

/// Gives a slide what is asked for of them, and takes off what isn't to be shown. What nobody has set stays.
class PageFieldWriter {
public:
    /// What is to be told.
    struct Outcome {
        std::size_t dropped = 0; ///< characters that XML can't hold, and were left out
        std::vector<std::wstring>
            notShown; ///< what the slide itself asks for, and its layout has no place for
    };

    /// @param own what is asked for of the slide
    /// @param decks and of all, or null; the slide's goes first
    PageFieldWriter(const PageFields& own, const PageFields* decks, const TemplateSlide& slide,
                    const Rules& rules);

    /// Whether something changes that a new slide has of its layout anyway.
    bool needNodes() const;
    Outcome writeTo(SlideDocument& slide) const;

private:
    /// What is asked for of one kind.
    struct Wish {
        std::wstring type; ///< of p:ph
        bool isShown;
        bool isOwn;             ///< of the slide, not of the deck
        std::wstring text;      ///< that stands there, or would be brought up to date
        std::wstring fieldType; ///< of what is brought up to date; empty for what isn't
    };

    void takeDate(const BaseAttribute<std::wstring>& date, bool isOwn);
    const LayoutField* findField(const std::wstring& type) const;
    xercesc::DOMElement* makePlaceholder(SlideDocument& slide, const LayoutField& field) const;

    const std::vector<LayoutField>* fields_ = nullptr; // null without a layout
    std::vector<Wish> wishes_;
};

} // namespace vellox::ppt

#endif
