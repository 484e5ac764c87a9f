#include "vellox/opc/Utf8Serializer.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/XercesString.h"

#include <array>
#include <string_view>
#include <xercesc/dom/impl/DOMLSOutputImpl.hpp>
#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace opc {

using namespace xercesc;

namespace {

enum Context : unsigned char { kMarkup = 1, kText = 2, kAttribute = 4 };

// How a character of ASCII is written where it can't stand for itself: by a reference in some contexts, or,
// where there is no text, not at all.
struct Escape {
    unsigned char contexts = 0;
    const char* text = nullptr;
};

constexpr std::array<Escape, 128> makeEscapes() {
    std::array<Escape, 128> rows{};
    for (std::size_t control = 0; control < 0x20; ++control)
        rows[control] = {kMarkup | kText | kAttribute, nullptr};
    rows['\t'] = {kAttribute, "&#x9;"};
    rows['\n'] = {kAttribute, "&#xA;"};
    rows['\r'] = {kText | kAttribute, "&#xD;"};
    rows['&'] = {kText | kAttribute, "&amp;"};
    rows['<'] = {kText | kAttribute, "&lt;"};
    rows['>'] = {kText, "&gt;"};
    rows['"'] = {kAttribute, "&quot;"};
    return rows;
}

constexpr std::array<Escape, 128> kEscapes = makeEscapes();
constexpr std::size_t kLongest = 6; // bytes that one unit of UTF-16 becomes at most: "&quot;"

/// The bytes of a plain document, in a buffer that only grows.
class PlainText {
public:
    explicit PlainText(std::string& buffer) : buffer_(buffer) {}

    /// False once anything was met that the base class has to write.
    bool isComplete() const { return isComplete_; }
    std::size_t getLength() const { return length_; }

    void appendDocument(const DOMDocument& document) {
        const XMLCh* const version = document.getXmlVersion(); // none in a document that was made, not read
        isComplete_ = !version || XMLString::equals(version, XMLUni::fgVersion1_0);
        append(R"(<?xml version="1.0" encoding="UTF-8" standalone=")");
        append(document.getXmlStandalone() ? "yes" : "no");
        append(R"(" ?>)");
        appendChildren(document);
    }

private:
    void appendNode(const DOMNode& node) {
        switch (node.getNodeType()) {
        case DOMNode::ELEMENT_NODE:
            return appendElement(node);
        case DOMNode::TEXT_NODE:
            return append(node.getNodeValue(), kText);
        case DOMNode::COMMENT_NODE:
            append("<!--");
            append(node.getNodeValue(), kMarkup);
            return append("-->");
        case DOMNode::PROCESSING_INSTRUCTION_NODE:
            return appendInstruction(node);
        default:
            isComplete_ = false;
        }
    }

    void appendChildren(const DOMNode& parent) {
        for (const DOMNode* child = parent.getFirstChild(); child && isComplete_;
             child = child->getNextSibling())
            appendNode(*child);
    }

    void appendElement(const DOMNode& element) {
        const XMLCh* const name = element.getNodeName();
        isComplete_ = isComplete_ && !element.getNamespaceURI();
        append("<");
        append(name, kMarkup);
        const DOMNamedNodeMap& attributes = *element.getAttributes();
        const XMLSize_t count = attributes.getLength();
        for (XMLSize_t i = 0; i < count; ++i)
            appendAttribute(static_cast<const DOMAttr&>(*attributes.item(i)));
        if (!element.getFirstChild())
            return append("/>");
        append(">");
        appendChildren(element);
        append("</");
        append(name, kMarkup);
        append(">");
    }

    void appendAttribute(const DOMAttr& attribute) {
        isComplete_ = isComplete_ && !attribute.getNamespaceURI() && attribute.getSpecified();
        append(" ");
        append(attribute.getNodeName(), kMarkup);
        append("=\"");
        // The value itself is costlier to ask for than the texts that it is made of.
        for (const DOMNode* text = attribute.getFirstChild(); text; text = text->getNextSibling()) {
            isComplete_ = isComplete_ && text->getNodeType() == DOMNode::TEXT_NODE;
            append(text->getNodeValue(), kAttribute);
        }
        append("\"");
    }

    void appendInstruction(const DOMNode& instruction) {
        append("<?");
        append(instruction.getNodeName(), kMarkup);
        if (XMLString::stringLen(instruction.getNodeValue()) > 0) {
            append(" ");
            append(instruction.getNodeValue(), kMarkup);
        }
        append("?>");
    }

    void append(std::string_view ascii) {
        ascii.copy(makeRoom(ascii.size()), ascii.size());
        length_ += ascii.size();
    }

    void append(const XMLCh* text, Context context) {
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

    char* putEscape(char* to, const Escape& escape) {
        const std::string_view reference = escape.text ? escape.text : "";
        isComplete_ = isComplete_ && escape.text;
        return to + reference.copy(to, reference.size());
    }

    // Takes the second unit of a pair, too.
    char* putBeyondAscii(char* to, const XMLCh*& from) {
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

    char* makeRoom(std::size_t count) {
        if (buffer_.size() < length_ + count)
            buffer_.resize(2 * (length_ + count));
        return buffer_.data() + length_;
    }

    std::string& buffer_;
    std::size_t length_ = 0;
    bool isComplete_ = true;
};

class StreamTarget : public XMLFormatTarget {
public:
    explicit StreamTarget(OutputStream& stream) : stream_(stream) {}
    void writeChars(const XMLByte* const bytes, const XMLSize_t count, XMLFormatter* const) override {
        stream_.write(bytes, count);
    }

private:
    OutputStream& stream_;
};

} // namespace

void Utf8Serializer::writeDocument(const DOMDocument& document, OutputStream& stream) {
    PlainText text(buffer_);
    text.appendDocument(document);
    if (!text.isComplete())
        return writeByBaseClass(document, stream);
    stream.write(reinterpret_cast<const unsigned char*>(buffer_.data()), text.getLength());
}

void Utf8Serializer::writeByBaseClass(const DOMDocument& document, OutputStream& stream) {
    StreamTarget target(stream);
    DOMLSOutputImpl output;
    // A document that was read from UTF-16 would otherwise be written so, and without a byte-order mark.
    output.setEncoding(u"UTF-8");
    output.setByteStream(&target);
    try {
        if (!write(&document, &output))
            throw Exception("a document can't be written");
    } catch (const XMLException& failure) {
        throw Exception(vellox::toUtf8(toWideString(failure.getMessage())));
    } catch (const DOMException& failure) {
        throw Exception(vellox::toUtf8(toWideString(failure.getMessage())));
    }
}

} // namespace opc
