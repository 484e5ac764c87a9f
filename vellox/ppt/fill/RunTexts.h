/// @file
/// The text of a paragraph whose runs each look in their own way.

#ifndef VELLOX_PPT_FILL_RUNTEXTS_H
#define VELLOX_PPT_FILL_RUNTEXTS_H

#include <string>
#include <vector>

#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// A stretch of the text that becomes another.
struct TextEdit {
    std::size_t start, end;
    std::wstring text;
};

class RunTexts {
public:
    explicit RunTexts(xercesc::DOMElement& paragraph);

    /// All runs in one; line breaks and fields, which belong to no run, are "\n".
    const std::wstring& getText() const { return text_; }
    /// Edits the text. What a stretch becomes stands in the run that it begins in; runs that have nothing left go.
    /// @param edits in order, none over another
    /// @return how many characters XML can't hold, and were left out
    std::size_t apply(const std::vector<TextEdit>& edits);

private:
    struct Run {
        xercesc::DOMElement* element;
        std::size_t start, end;
    };

    std::vector<Run> runs_;
    std::wstring text_;
};

} // namespace vellox::ppt

#endif
