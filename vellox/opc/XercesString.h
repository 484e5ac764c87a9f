/// @file
/// The one passage between the library's wide text (UTF-32) and the UTF-16 of Xerces.

#ifndef VELLOX_OPC_XERCESSTRING_H
#define VELLOX_OPC_XERCESSTRING_H

#include <string>
#include <xercesc/util/XercesDefs.hpp>

namespace opc {

/// A text in the form that Xerces wants. A value that owns its text.
///
/// What XML can't hold (control characters but for tab and line ends, U+FFFE, U+FFFF, surrogates, values
/// above U+10FFFF) is left out when the text is made: a document with such a character in it could be
/// written, and never be read again.
class XercesString {
public:
    explicit XercesString(const std::wstring& text);
    explicit XercesString(const wchar_t* literal) : XercesString(std::wstring(literal)) {}
    /// A null pointer gives the empty text.
    explicit XercesString(const XMLCh* text) : text_(text ? text : u"") {}

    operator const XMLCh*() const { return text_.c_str(); }
    const XMLCh* get() const { return text_.c_str(); }
    std::wstring toString() const;
    /// How many characters were left out.
    std::size_t getDropped() const { return dropped_; }

    bool operator==(const XercesString& other) const { return text_ == other.text_; }
    bool operator!=(const XercesString& other) const { return text_ != other.text_; }
    bool operator==(const wchar_t* literal) const { return *this == XercesString(literal); }
    bool operator!=(const wchar_t* literal) const { return !(*this == literal); }

private:
    std::u16string text_;
    std::size_t dropped_ = 0;
};

/// The wide form of a text of Xerces; a null pointer gives the empty text.
std::wstring toWideString(const XMLCh* text);

/// Any text without what XML can't hold.
std::wstring dropForbiddenCharacters(const std::wstring& text);

} // namespace opc

#endif
