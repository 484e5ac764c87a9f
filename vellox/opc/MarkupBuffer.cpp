#include "vellox/opc/MarkupBuffer.h"

#include <array>
#include <xercesc/util/XMLString.hpp>

namespace opc {

using namespace xercesc;

// How a character of ASCII is written where it can't stand for itself: by a reference in some contexts, or,
// where there is no text, not at all.
struct MarkupBuffer::Escape {
    unsigned char contexts = 0;
    const char* text = nullptr;
};

struct MarkupBuffer::Escapes {
    static constexpr std::array<Escape, 128> make() {
        std::array<Escape, 128> rows{};
        for (std::size_t control = 0; control < 0x20; ++control)
            rows[control] = {kName | kText | kValue, nullptr};
        rows['\t'] = {kValue, "&#x9;"};
        rows['\n'] = {kValue, "&#xA;"};
        rows['\r'] = {kText | kValue, "&#xD;"};
        rows['&'] = {kText | kValue, "&amp;"};
        rows['<'] = {kText | kValue, "&lt;"};
        rows['>'] = {kText, "&gt;"};
        rows['"'] = {kValue, "&quot;"};
        return rows;
    }
};

void MarkupBuffer::truncate(std::size_t length) {
    length_ = length;
    isComplete_ = true;
}

void MarkupBuffer::append(std::string_view markup) {
    markup.copy(makeRoom(markup.size()), markup.size());
    length_ += markup.size();
}

void MarkupBuffer::append(const XMLCh* text, Context context) {
    static constexpr std::array<Escape, 128> kEscapes = Escapes::make();
    constexpr std::size_t kLongest = 6; // bytes that one unit of UTF-16 becomes at most: "&quot;"
    const XMLSize_t count = XMLString::stringLen(text);
    char* to = makeRoom(count * kLongest);
    for (const XMLCh* const end = text + count; text < end; ++text) {
        if (*text >= 0x80)
            to = putBeyondAscii(to, text);
        else if (kEscapes[*text].contexts & context)
            to = putEscape(to, kEscapes[*text]);
        else
            *to++ = static_cast<char>(*text);
    }
    length_ = static_cast<std::size_t>(to - buffer_.data());
}

void MarkupBuffer::appendAttribute(const XMLCh* name, const XMLCh* value) {
    append(" ");
    appendName(name);
    append("=\"");
    appendValue(value);
    append("\"");
}

std::size_t MarkupBuffer::openDocument(std::string_view root, const XMLCh* space) {
    append(R"(<?xml version="1.0" encoding="UTF-8" standalone="yes" ?><)");
    append(root);
    appendAttribute(u"xmlns", space);
    append(">");
    return length_;
}

std::size_t MarkupBuffer::openElement(std::string_view name) {
    append("<");
    append(name);
    append(">");
    return length_;
}

void MarkupBuffer::closeElement(std::string_view name, std::size_t opened) {
    if (length_ == opened) {
        --length_;
        return append("/>");
    }
    append("</");
    append(name);
    append(">");
}

char* MarkupBuffer::putEscape(char* to, const Escape& escape) {
    const std::string_view reference = escape.text ? escape.text : "";
    isComplete_ = isComplete_ && escape.text;
    return to + reference.copy(to, reference.size());
}

// Takes the second unit of a pair, too.
char* MarkupBuffer::putBeyondAscii(char* to, const XMLCh*& from) {
    const auto put = [&to](char32_t byte) { *to++ = static_cast<char>(byte); };
    const char32_t unit = *from;
    if (unit < 0x800) {
        put(0xC0 | unit >> 6);
    } else if (unit < 0xD800 || unit >= 0xE000) {
        isComplete_ = isComplete_ && unit < 0xFFFE;
        put(0xE0 | unit >> 12);
        put(0x80 | (unit >> 6 & 0x3F));
    } else {
        const char32_t second = *++from;
        isComplete_ = isComplete_ && unit < 0xDC00 && second >= 0xDC00 && second < 0xE000;
        const char32_t character = 0x10000 + ((unit & 0x3FF) << 10) + (second & 0x3FF);
        put(0xF0 | character >> 18);
        put(0x80 | (character >> 12 & 0x3F));
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
        return to;
    }
    put(0x80 | (unit & 0x3F));
    return to;
}

char* MarkupBuffer::makeRoom(std::size_t count) {
    if (buffer_.size() < length_ + count)
        buffer_.resize(2 * (length_ + count));
    return buffer_.data() + length_;
}

} // namespace opc
