#include "vellox/ppt/writers/ValueTexts.h"

#include "vellox/ppt/engine/PresentationModel.h"
#include "vellox/ppt/formats/CellFormatsImpl.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/tree/TextImpl.h"
#include "vellox/ppt/writers/PPTWriter.h"
#include "vellox/ppt/writers/TableContext.h"

#include <algorithm>
#include <cmath>

namespace vellox::ppt {

DeckValues DeckValues::copy() const {
    DeckValues made = *this;
    if (format)
        made.format = format->clone();
    return made;
}

NumberMarks DeckValues::getMarks() const {
    NumberMarks marks;
    if (decimalMark)
        marks.decimal = *decimalMark;
    if (marks.decimal == marks.thousands)
        marks.thousands = L".";
    if (thousandsMark)
        marks.thousands = *thousandsMark;
    if (!decimalMark && marks.decimal == marks.thousands)
        marks.decimal = L",";
    return marks;
}

void ValueLook::complete(const ValueFormatImpl& format) {
    if (!form)
        form = format.getForm();
    const auto take = [&](std::optional<std::wstring>& place, ValueFormat::Facet facet) {
        if (!place && format.getFacet(facet).isSet())
            place = format.getFacet(facet).get();
    };
    take(missing, ValueFormat::MissingText);
    take(trueText, ValueFormat::TrueText);
    take(falseText, ValueFormat::FalseText);
}

bool isMissing(const std::wstring& text) {
    constexpr const wchar_t* kTexts[] = {L"NaT", L"<NA>", L"nan", L"NaN", L"None"};
    return std::any_of(std::begin(kTexts), std::end(kTexts),
                       [&](const wchar_t* missing) { return text == missing; });
}

std::optional<std::wstring> ValueLook::show(const std::wstring& text, const NumberMarks& marks) const {
    if (missing && isMissing(text))
        return missing;
    return form ? form->show(text, marks) : std::nullopt;
}

namespace {

// What a run looks like by what tables, columns or decks say; nothing if they have nothing to say on it.
struct ShowValue {
    const TextImpl& run;
    const ValueLook& look;
    const NumberMarks& marks;

    using Shown = std::optional<std::wstring>;

    Shown operator()(std::monostate) const {
        const PPTNodeImpl* paragraph = run.getParent();
        const bool isAlone = paragraph && paragraph->getChildren().size() == 1;
        return isAlone ? look.show(run.getTextContent(), marks) : Shown();
    }
    Shown operator()(double number) const {
        if (look.missing && std::isnan(number))
            return *look.missing;
        return look.form ? look.form->show(number, marks) : Shown();
    }
    Shown operator()(long long number) const {
        return look.form ? look.form->showWhole(number, marks) : Shown();
    }
    Shown operator()(bool value) const { return look.findTruth(value); }
};

} // namespace

TextLines showText(const TextImpl& text, const PPTWriter& writer) {
    const Rules& rules = writer.getModel()->getRules();
    const NumberMarks& marks = writer.getNumberMarks();
    const TableContext* table = writer.getFrame().table;
    if (table && !table->values.isEmpty())
        if (const auto shown = std::visit(ShowValue{text, table->values, marks}, text.getGiven()))
            return rules.textOf({*shown, {}});
    TextLines lines = rules.textOf({text.getTextContent(), text.getGiven()});
    if (std::holds_alternative<double>(text.getGiven()) && !marks.areUsual())
        lines.front() = marks.mark(lines.front());
    return lines;
}

} // namespace vellox::ppt
