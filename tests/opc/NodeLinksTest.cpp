#include "vellox/opc/NodeLinks.h"
#include "vellox/opc/DocumentCopy.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>

#include <sstream>

using namespace opc;
using namespace xercesc;

namespace {

const char kXml[] =
    "<?xml version='1.0' standalone='yes'?><!--a--><?b c?>"
    "<p:r xmlns:p='urn:p' z='' y='&lt;1&#xA;' x='\xF0\x9F\x98\x80'>\n <a><b/>t&amp;u<b c='d'>v</b>"
    "<!--w--></a><![CDATA[x]]>y<?z?><a>\r\n</a></p:r><!--end-->";

// What a tree says of itself in both directions.
std::u16string describe(const DOMNode& node) {
    std::u16string text = node.getNodeName();
    text += node.getNodeValue() ? node.getNodeValue() : u"-";
    if (const DOMNamedNodeMap* attributes = node.getAttributes())
        for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
            text += describe(*attributes->item(i));
    text += u"(";
    const DOMNode* previous = nullptr;
    for (const DOMNode* child = node.getFirstChild(); child; child = child->getNextSibling()) {
        EXPECT_EQ(child->getPreviousSibling(), previous);
        EXPECT_TRUE(node.getNodeType() == DOMNode::ATTRIBUTE_NODE || child->getParentNode() == &node);
        text += describe(*child);
        previous = child;
    }
    EXPECT_EQ(node.getLastChild(), previous);
    return text + u")";
}

class NodeLinksTest : public testing::Test {
protected:
    static DocumentScope read(DOMLSParser* parser) {
        StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(kXml));
        return DocumentScope(XercesHelper::readDocumentFromStream(parser, stream, false, {}, {}));
    }

    static DocumentScope readByXerces() {
        const auto implementation = DOMImplementationRegistry::getDOMImplementation(u"LS");
        const ParserScope parser(
            implementation->createLSParser(DOMImplementationLS::MODE_SYNCHRONOUS, nullptr));
        parser->getDomConfig()->setParameter(XMLUni::fgXercesUserAdoptsDOMDocument, true);
        parser->getDomConfig()->setParameter(XMLUni::fgDOMNamespaces, false);
        MemBufInputSource bytes(reinterpret_cast<const XMLByte*>(kXml), sizeof kXml - 1, "test");
        const Wrapper4InputSource input(&bytes, false);
        return DocumentScope(parser->parse(&input));
    }

private:
    XercesProcess xerces_;
};

TEST_F(NodeLinksTest, DocumentsAreReadAsXercesDoes) {
    const ParserScope parser(XercesHelper::createParser());
    EXPECT_EQ(describe(*read(parser.get())), describe(*readByXerces()));
    EXPECT_EQ(describe(*read(parser.get())), describe(*readByXerces())); // by a parser that isn't new
}

TEST_F(NodeLinksTest, CopiesAreWhatXercesMakesAndCanBeChanged) {
    const DocumentScope source = readByXerces();
    source->getDocumentElement()->appendChild(source->createElementNS(u"urn:q", u"q:e"));
    source->getDocumentElement()->setAttributeNS(u"urn:q", u"q:f", u"g");
    const std::u16string whole = describe(*source);
    const DocumentScope copy(copyDocument(*source));
    EXPECT_EQ(describe(*copy), whole);
    EXPECT_EQ(copy->getXmlStandalone(), source->getXmlStandalone());
    EXPECT_TRUE(copy->isEqualNode(source.get()));

    const DocumentScope clone(static_cast<DOMDocument*>(source->cloneNode(true)));
    for (DOMDocument* document : {copy.get(), clone.get()}) {
        DOMElement* root = document->getDocumentElement();
        root->insertBefore(root->getLastChild(), root->getFirstChild());
        root->removeChild(root->getFirstElementChild()->getNextElementSibling())->release();
        root->setAttribute(u"y", u"2");
        root->appendChild(document->createTextNode(u"new"));
    }
    EXPECT_EQ(describe(*copy), describe(*clone));
    EXPECT_EQ(describe(*source), whole);
}

TEST_F(NodeLinksTest, NodesCanBeAppendedAndTakenAwayAgain) {
    const DocumentScope document(XercesHelper::createDocument(u"a"));
    auto* inside = dynamic_cast<DOMDocumentImpl*>(document.get());
    auto& root = static_cast<DOMElementImpl&>(*document->getDocumentElement());
    for (const XMLCh* name : {u"b", u"c", u"d"})
        appendNew(root, *makeElement(inside, name));
    appendNew(root, *document->createComment(u"e"));
    root.removeChild(root.getFirstElementChild())->release();
    root.removeChild(root.getLastChild())->release();
    appendNew(root, *makeText(inside, u"f"));
    EXPECT_EQ(describe(root), u"a-(c-()d-()#textf())");
    // The first, the last, one between others, and the only one; what has been taken out can come again.
    const auto child = [&](int index) { return root.getChildNodes()->item(static_cast<XMLSize_t>(index)); };
    DOMNode* const taken = child(0);
    takeOut(root, *taken);
    EXPECT_EQ(taken->getParentNode(), nullptr);
    EXPECT_EQ(describe(root), u"a-(d-()#textf())");
    appendNew(root, *taken);
    takeOut(root, *child(1));
    takeOut(root, *child(1));
    EXPECT_EQ(describe(root), u"a-(d-())");
    takeOut(root, *child(0));
    EXPECT_EQ(describe(root), u"a-()");
    root.appendChild(taken);
    EXPECT_EQ(describe(root), u"a-(c-())");
}

TEST_F(NodeLinksTest, AttributesStandInTheOrderOfTheirNamesEachOnce) {
    const DocumentScope document(XercesHelper::createDocument(u"a"));
    auto& root = static_cast<DOMElementImpl&>(*document->getDocumentElement());
    for (const XMLCh* name : {u"n", u"a", u"z", u"m", u"b", u"a"})
        addAttribute(root, name, name);
    EXPECT_EQ(describe(root), u"a-aa(#texta())bb(#textb())mm(#textm())nn(#textn())zz(#textz())()");
    EXPECT_EQ(root.getAttributeNode(u"m")->getOwnerElement(), &root);
    addAttribute(root, u"y", u"");
    root.getAttributeNode(u"b")->appendChild(document->createTextNode(u"c"));
    EXPECT_EQ(std::u16string(getValue(*root.getAttributeNode(u"z"))), u"z");
    EXPECT_EQ(std::u16string(getValue(*root.getAttributeNode(u"y"))), u"");
    EXPECT_EQ(std::u16string(getValue(*root.getAttributeNode(u"b"))), u"bc");
}

} // namespace
