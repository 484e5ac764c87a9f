#include "vellox/opc/Utf8Serializer.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/XercesString.h"

#include <string>
#include <string_view>
#include <vector>
#include <xercesc/dom/impl/DOMLSOutputImpl.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace opc {

using namespace xercesc;

namespace {

/// Writes what is plain into a buffer.
class PlainText {
public:
    PlainText(const Contents& contents, MarkupBuffer& out) : contents_(contents), out_(out) {}

    /// False once anything was met that the base class has to write.
    bool isComplete() const { return isComplete_ && out_.isComplete(); }

    void appendNode(const DOMNode& node) {
        switch (node.getNodeType()) {
        case DOMNode::DOCUMENT_NODE:
            return appendDocument(static_cast<const DOMDocument&>(node));
        case DOMNode::ELEMENT_NODE:
            return appendElement(node);
        case DOMNode::TEXT_NODE:
            return out_.appendText(node.getNodeValue());
        case DOMNode::COMMENT_NODE:
            out_.append("<!--");
            out_.appendName(node.getNodeValue());
            return out_.append("-->");
        case DOMNode::PROCESSING_INSTRUCTION_NODE:
            return appendInstruction(node);
        default:
            isComplete_ = false;
        }
    }

private:
    void appendDocument(const DOMDocument& document) {
        const XMLCh* const version = document.getXmlVersion(); // none in a document that was made, not read
        isComplete_ = !version || XMLString::equals(version, XMLUni::fgVersion1_0);
        out_.append(R"(<?xml version="1.0" encoding="UTF-8" standalone=")");
        out_.append(document.getXmlStandalone() ? "yes" : "no");
        out_.append(R"(" ?>)");
        appendChildren(document);
    }

    void appendChildren(const DOMNode& parent) {
        for (const DOMNode* child = parent.getFirstChild(); child && isComplete();
             child = child->getNextSibling())
            appendNode(*child);
    }

    void appendElement(const DOMNode& element) {
        const XMLCh* const name = element.getNodeName();
        isComplete_ = isComplete_ && !element.getNamespaceURI();
        out_.append("<");
        out_.appendName(name);
        const DOMNamedNodeMap& attributes = *element.getAttributes();
        const XMLSize_t count = attributes.getLength();
        for (XMLSize_t i = 0; i < count; ++i)
            appendAttribute(static_cast<const DOMAttr&>(*attributes.item(i)));
        const std::string_view content = findContent(element);
        if (content.empty() && !element.getFirstChild())
            return out_.append("/>");
        out_.append(">");
        appendChildren(element);
        out_.append(content);
        out_.append("</");
        out_.appendName(name);
        out_.append(">");
    }

    std::string_view findContent(const DOMNode& element) const {
        if (contents_.empty())
            return {};
        const auto found = contents_.find(&element);
        return found == contents_.end() ? std::string_view() : found->second.get();
    }

    void appendAttribute(const DOMAttr& attribute) {
        isComplete_ = isComplete_ && !attribute.getNamespaceURI() && attribute.getSpecified();
        out_.append(" ");
        out_.appendName(attribute.getNodeName());
        out_.append("=\"");
        // The value itself is costlier to ask for than the texts that it is made of.
        for (const DOMNode* text = attribute.getFirstChild(); text; text = text->getNextSibling()) {
            isComplete_ = isComplete_ && text->getNodeType() == DOMNode::TEXT_NODE;
            out_.appendValue(text->getNodeValue());
        }
        out_.append("\"");
    }

    void appendInstruction(const DOMNode& instruction) {
        out_.append("<?");
        out_.appendName(instruction.getNodeName());
        if (XMLString::stringLen(instruction.getNodeValue()) > 0) {
            out_.append(" ");
            out_.appendName(instruction.getNodeValue());
        }
        out_.append("?>");
    }

    const Contents& contents_;
    MarkupBuffer& out_;
    bool isComplete_ = true;
};

std::string writeByBaseClass(const DOMDocument& document) {
    Utf8Serializer serializer;
    MemBufFormatTarget target;
    DOMLSOutputImpl output;
    // A document that was read from UTF-16 would otherwise be written so, and without a byte-order mark.
    output.setEncoding(u"UTF-8");
    output.setByteStream(&target);
    try {
        if (!serializer.write(&document, &output))
            throw Exception("a document can't be written");
    } catch (const XMLException& failure) {
        throw Exception(vellox::toUtf8(toWideString(failure.getMessage())));
    } catch (const DOMException& failure) {
        throw Exception(vellox::toUtf8(toWideString(failure.getMessage())));
    }
    return {reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen()};
}

// The base class knows nothing of contents: it writes an instruction in the place of each, of a name that the
// document has nowhere.
std::string writeByBaseClass(DOMDocument& document, const Contents& contents) {
    std::string text = writeByBaseClass(document);
    if (contents.empty())
        return text;
    std::wstring name = L"content";
    while (text.find(vellox::toUtf8(name)) != std::string::npos)
        name += L'_';
    std::vector<std::wstring> numbers;
    for (const auto& [element, content] : contents) {
        numbers.push_back(std::to_wstring(numbers.size()));
        element->appendChild(
            document.createProcessingInstruction(XercesString(name), XercesString(numbers.back())));
    }
    text = writeByBaseClass(document);
    auto number = numbers.begin();
    for (const auto& [element, content] : contents) {
        const std::string mark = vellox::toUtf8(L"<?" + name + L" " + *number++ + L"?>");
        const std::size_t place = text.find(mark);
        if (place != std::string::npos)
            text.replace(place, mark.size(), content.get());
    }
    return text;
}

} // namespace

void Utf8Serializer::writeDocument(DOMDocument& document, OutputStream& stream) {
    buffer_.truncate(0);
    appendDocument(document, Contents(), buffer_);
    const std::string_view text = buffer_.get();
    stream.write(reinterpret_cast<const unsigned char*>(text.data()), text.size());
}

void Utf8Serializer::appendDocument(DOMDocument& document, const Contents& contents, MarkupBuffer& out) {
    const std::size_t start = out.getLength();
    if (appendPlain(document, contents, out))
        return;
    out.truncate(start);
    out.append(writeByBaseClass(document, contents));
}

bool Utf8Serializer::appendPlain(const DOMNode& node, const Contents& contents, MarkupBuffer& out) {
    PlainText text(contents, out);
    text.appendNode(node);
    return text.isComplete();
}

} // namespace opc
