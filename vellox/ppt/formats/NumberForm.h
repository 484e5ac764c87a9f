/// @file
/// How numbers and dates are to look: one language of forms for tables and tokens.

#ifndef VELLOX_PPT_FORMATS_NUMBERFORM_H
#define VELLOX_PPT_FORMATS_NUMBERFORM_H

#include <optional>
#include <string>

namespace vellox::ppt {

/// What stands between the whole and the fraction of a number, and between its thousands.
struct NumberMarks {
    std::wstring decimal = L".", thousands = L",";

    bool areUsual() const { return decimal == L"." && thousands == L","; }
    /// Puts the decimal mark into a number as it is usually written.
    std::wstring mark(const std::wstring& number) const;
};

/// A form is one of the following; without any, values stay as they are.
///
/// - [+][,][.digits][f, F, e, E, g, G, d, %], as Python's format() has it; "," sets off thousands;
/// - a date in terms of %d, %m, %y, %Y, %H, %M, %S, and the English names %a, %A, %b, %B, such as "%d.%m.%Y";
/// - either in braces behind a colon, with text around them: "{:,.1f} m", "week of {:%d.%m.}"; "{{" and "}}" are braces,
///   and "{}" is a number as it is.
class NumberForm {
public:
    /// @return nothing if the text is no form
    static std::optional<NumberForm> parse(const std::wstring& text);

    /// @return nothing if the form is one of dates, or of whole numbers and this is none
    std::optional<std::wstring> show(double number, const NumberMarks& marks = {}) const;
    /// A whole number, with all its digits.
    std::optional<std::wstring> showWhole(long long number, const NumberMarks& marks = {}) const;
    /// A text that is a number as a whole, or a date such as "2026-11-21" or "2026-11-21 09:30:00".
    /// @return nothing if it isn't what the form is for
    std::optional<std::wstring> show(const std::wstring& text, const NumberMarks& marks = {}) const;

private:
    struct Number {
        bool hasSign = false, hasGroups = false;
        std::optional<int> digits;
        wchar_t type = 0;
    };

    static std::optional<Number> parseNumber(const std::wstring& text);
    bool parseBraces(const std::wstring& text);
    bool parseBare(const std::wstring& text);
    static std::string print(double number, const Number& form);
    std::wstring finish(std::string digits, bool isNegative, const NumberMarks& marks) const;
    static std::optional<std::wstring> showDate(const std::wstring& date, const std::wstring& form);

    std::optional<Number> number_;
    std::wstring date_;           // where it is none of numbers
    std::wstring before_, after_; // what stands around
};

} // namespace vellox::ppt

#endif
