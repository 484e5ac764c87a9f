/// @file
/// What values show: numbers, dates, truth values, and what is missing.

#ifndef VELLOX_PPT_WRITERS_VALUETEXTS_H
#define VELLOX_PPT_WRITERS_VALUETEXTS_H

#include <boost/shared_ptr.hpp>
#include <optional>
#include <string>

#include "vellox/ppt/formats/CellFormats.h"
#include "vellox/ppt/formats/NumberForm.h"
#include "vellox/ppt/rules/Facts.h"

namespace vellox::ppt {

class PPTWriter;
class TextImpl;
class ValueFormatImpl;

/// How values are shown in all of a deck.
struct DeckValues {
    boost::shared_ptr<ValueFormat> format; ///< of tables; empty if nothing is set
    std::optional<std::wstring> decimalMark, thousandsMark;

    DeckValues copy() const;
    /// Where only one mark is set, the other is that of the two which is left.
    NumberMarks getMarks() const;
};

/// How values are shown in one cell, as far as that is said. Of its own: listeners may change formats meanwhile.
struct ValueLook {
    std::optional<NumberForm> form;
    std::optional<std::wstring> missing, trueText, falseText;

    bool isEmpty() const { return !form && !missing && !trueText && !falseText; }
    /// Takes what is still open from a format.
    void complete(const ValueFormatImpl& format);
    /// What a text looks like that is all there is; nothing if there is nothing to say on it.
    std::optional<std::wstring> show(const std::wstring& text, const NumberMarks& marks) const;
    const std::optional<std::wstring>& findTruth(bool value) const { return value ? trueText : falseText; }
};

/// Whether a text is what data frames show for a missing value.
bool isMissing(const std::wstring& text);

/// The lines that a run shows where the writer is.
TextLines showText(const TextImpl& text, const PPTWriter& writer);

} // namespace vellox::ppt

#endif
