#include "tests/support/Xml.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/xml/Dom.h"

#include <boost/make_shared.hpp>
#include <map>
#include <sstream>

namespace vellox::test {

namespace {

using namespace xercesc;

std::string narrow(const XMLCh* text) {
    return toUtf8(opc::toWideString(text));
}

void append(std::string& text, const DOMNode& node);

void appendElement(std::string& text, const DOMElement& element) {
    text += "<" + narrow(element.getNodeName());
    std::map<std::string, std::string> attributes;
    for (XMLSize_t i = 0; i < element.getAttributes()->getLength(); ++i) {
        const DOMNode* attribute = element.getAttributes()->item(i);
        attributes[narrow(attribute->getNodeName())] = narrow(attribute->getNodeValue());
    }
    for (const auto& attribute : attributes)
        if (attribute.first.compare(0, 5, "xmlns") != 0)
            text += " " + attribute.first + "='" + attribute.second + "'";
    std::string content;
    for (const DOMNode* child = element.getFirstChild(); child; child = child->getNextSibling())
        append(content, *child);
    text += content.empty() ? "/>" : ">" + content + "</" + narrow(element.getNodeName()) + ">";
}

void append(std::string& text, const DOMNode& node) {
    if (node.getNodeType() == DOMNode::ELEMENT_NODE)
        return appendElement(text, static_cast<const DOMElement&>(node));
    const bool isAlone = !static_cast<const DOMElement*>(node.getParentNode())->getFirstElementChild();
    if (node.getNodeType() == DOMNode::TEXT_NODE && isAlone)
        text += narrow(node.getNodeValue());
}

ppt::OwnedDocument parse(const std::string& xml) {
    const opc::XercesProcess xerces;
    const opc::ParserScope parser(opc::XercesHelper::createParser());
    opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(xml));
    return ppt::OwnedDocument(opc::XercesHelper::readDocumentFromStream(parser.get(), stream, false, {}, {}));
}

} // namespace

std::string canonical(const std::string& xml) {
    return canonical(*parse(xml)->getDocumentElement());
}

std::string canonical(const DOMElement& element) {
    std::string text;
    append(text, element);
    return text;
}

namespace {

template <class Read>
std::vector<std::string> readAll(const std::string& xml, const std::string& name, Read read) {
    const ppt::OwnedDocument document = parse(xml);
    std::vector<std::string> found;
    for (const DOMElement* element :
         ppt::getElementsByName(document.get(), opc::XercesString(fromUtf8(name))))
        found.push_back(read(*element));
    return found;
}

} // namespace

std::vector<std::string> findAll(const std::string& xml, const std::string& name) {
    return readAll(xml, name, [](const DOMElement& element) { return canonical(element); });
}

std::vector<std::string> valuesOf(const std::string& xml, const std::string& name,
                                  const std::string& attribute) {
    const opc::XercesString key(fromUtf8(attribute));
    return readAll(xml, name, [&](const DOMElement& element) { return narrow(element.getAttribute(key)); });
}

std::vector<std::string> textsOf(const std::string& xml, const std::string& name) {
    return readAll(xml, name, [](const DOMElement& element) { return narrow(element.getTextContent()); });
}

std::string findOne(const std::string& xml, const std::string& name) {
    const std::vector<std::string> found = findAll(xml, name);
    return found.size() == 1 ? found.front() : std::to_string(found.size()) + " of " + name;
}

} // namespace vellox::test
