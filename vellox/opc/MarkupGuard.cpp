#include "vellox/opc/MarkupGuard.h"

#include "vellox/opc/Exception.h"
#include "vellox/opc/Limits.h"

#include <boost/algorithm/string/predicate.hpp>
#include <cstring>
#include <string_view>

namespace opc {

using boost::algorithm::starts_with;

void MarkupGuard::watch(const unsigned char* bytes, std::size_t count) {
    if (width_ != 0)
        return width_ == 1 ? watchSingle(bytes, count) : watchDouble(bytes, count);
    start_.append(reinterpret_cast<const char*>(bytes), count);
    if (start_.size() < 4) // nothing shorter is a document
        return;
    detectWidth();
    std::string start;
    start.swap(start_);
    watch(reinterpret_cast<const unsigned char*>(start.data()), start.size());
}

// As XML 1.0, appendix F, has it: by a byte order mark, or by what the first "<" looks like.
void MarkupGuard::detectWidth() {
    const std::string first = start_.substr(0, 2);
    isBigEndian_ = first == "\xFE\xFF" || first == std::string("\0<", 2);
    const bool isLittleEndian = first == "\xFF\xFE" || first == std::string("<\0", 2);
    width_ = isBigEndian_ || isLittleEndian ? 2 : 1;
}

void MarkupGuard::watchSingle(const unsigned char* bytes, std::size_t count) {
    const unsigned char* const end = bytes + count;
    while (bytes != end) {
        // Most of a document is text and values, and is passed over at once.
        if (state_ == State::Text || state_ == State::Quoted) {
            const int wanted = state_ == State::Text ? '<' : quote_;
            const void* found = std::memchr(bytes, wanted, static_cast<std::size_t>(end - bytes));
            if (!found)
                return;
            bytes = static_cast<const unsigned char*>(found);
        }
        take(*bytes++);
    }
}

void MarkupGuard::watchDouble(const unsigned char* bytes, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (half_ < 0) {
            half_ = bytes[i];
            continue;
        }
        const int high = isBigEndian_ ? half_ : bytes[i], low = isBigEndian_ ? bytes[i] : half_;
        half_ = -1;
        take(static_cast<char16_t>(high << 8 | low));
    }
}

void MarkupGuard::take(char16_t c) {
    const char sign = c < 0x80 ? static_cast<char>(c) : '\x7f'; // of no meaning here
    switch (state_) {
    case State::Text:
        if (sign == '<')
            enter(State::Markup);
        return;
    case State::Markup:
        seen_ += sign;
        return judgeMarkup();
    case State::Tag:
        return takeInTag(c);
    case State::Quoted:
        if (c == quote_)
            state_ = State::Tag;
        return;
    default:
        last_ = {last_[1], last_[2], sign};
        if (sign == '>' && isEnd())
            enter(State::Text);
    }
}

bool MarkupGuard::isEnd() const {
    if (state_ == State::Instruction)
        return last_[1] == '?';
    const char c = state_ == State::Comment ? '-' : ']';
    return last_[0] == c && last_[1] == c;
}

void MarkupGuard::judgeMarkup() {
    constexpr std::string_view comment = "!--", data = "![CDATA[", documentType = "!DOCTYPE";
    if (seen_ == documentType)
        throw Exception("it has a document type declaration");
    if (seen_ == comment)
        enter(State::Comment);
    else if (seen_ == data)
        enter(State::CData);
    else if (seen_ == "?")
        enter(State::Instruction);
    else if (seen_ == "/")
        enter(State::Text);
    else if (!starts_with(comment, seen_) && !starts_with(data, seen_) && !starts_with(documentType, seen_))
        enter(State::Tag);
}

void MarkupGuard::takeInTag(char16_t c) {
    if (c == u'>') {
        enter(State::Text);
    } else if (c == u'"' || c == u'\'') {
        state_ = State::Quoted;
        quote_ = c;
    } else if (c == u'=' && ++attributes_ > kMaxAttributes) {
        throw Exception("an element of it has more than " + std::to_string(kMaxAttributes) + " attributes");
    }
}

void MarkupGuard::enter(State state) {
    state_ = state;
    seen_.clear();
    last_ = {};
    attributes_ = 0;
}

} // namespace opc
