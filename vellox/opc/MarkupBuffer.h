/// @file
/// Markup in UTF-8, as it grows.

#ifndef VELLOX_OPC_MARKUPBUFFER_H
#define VELLOX_OPC_MARKUPBUFFER_H

#include <cstddef>
#include <string>
#include <string_view>
#include <xercesc/util/XercesDefs.hpp>

namespace opc {

/// Markup that is written to its end, with the escapes of Xerces' serializer.
class MarkupBuffer {
public:
    /// False once anything was met that can't be written here: half of a surrogate pair, or a character that XML
    /// doesn't allow.
    bool isComplete() const { return isComplete_; }
    bool isEmpty() const { return length_ == 0; }
    std::size_t getLength() const { return length_; }
    std::string_view get() const { return {buffer_.data(), length_}; }
    /// Back to a former length, and complete again.
    void truncate(std::size_t length);

    /// Markup as it is.
    void append(std::string_view markup);
    /// @{ Names and the like, texts, and the values of attributes.
    void appendName(const XMLCh* name) { append(name, kName); }
    void appendText(const XMLCh* text) { append(text, kText); }
    void appendValue(const XMLCh* value) { append(value, kValue); }
    /// @}
    void appendAttribute(const XMLCh* name, const XMLCh* value);
    /// Begins a document of one element with a default namespace.
    /// @return what closeElement() wants
    std::size_t openDocument(std::string_view root, const XMLCh* space);
    /// Begins an element that has no attributes.
    /// @return what closeElement() wants
    std::size_t openElement(std::string_view name);
    /// Ends it; without anything in it, as an empty one.
    void closeElement(std::string_view name, std::size_t opened);

private:
    enum Context : unsigned char { kName = 1, kText = 2, kValue = 4 };
    struct Escape;
    struct Escapes;

    void append(const XMLCh* text, Context context);
    char* putEscape(char* to, const Escape& escape);
    char* putBeyondAscii(char* to, const XMLCh*& from);
    char* makeRoom(std::size_t count);

    std::string buffer_; // longer than what has been written
    std::size_t length_ = 0;
    bool isComplete_ = true;
};

} // namespace opc

#endif
