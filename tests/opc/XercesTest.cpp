#include "vellox/opc/XercesHelper.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"
#include "vellox/opc/Limits.h"
#include "vellox/opc/XercesProcess.h"
#include "vellox/opc/XercesString.h"
#include "vellox/opc/XmlBudget.h"

#include "tests/support/Xml.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>
#include <xercesc/dom/impl/DOMLSOutputImpl.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>

#include <sstream>

using namespace opc;

namespace {

class XercesTest : public testing::Test {
protected:
    DocumentScope read(const std::string& xml) {
        StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(xml));
        return DocumentScope(XercesHelper::readDocumentFromStream(parser_.get(), stream, false, {}, {}));
    }

    std::string failureOf(const std::string& xml) {
        try {
            read(xml);
        } catch (const Exception& failure) {
            return failure.what();
        }
        return "none";
    }

    std::string write(xercesc::DOMDocument* document) {
        std::string bytes;
        StringOutputStream stream(bytes);
        try {
            XercesHelper::writeDocumentToStream(serializer_.get(), document, stream);
        } catch (const Exception& failure) {
            return failure.what();
        }
        return bytes;
    }

    std::string rewrite(const std::string& xml) {
        const std::string bytes = write(read(xml).get());
        return bytes.substr(bytes.find("?>") + 2);
    }

    // By the library's own serializer.
    static std::string writeByXerces(const xercesc::DOMDocument* document) {
        const auto implementation = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
        const SerializerScope serializer(implementation->createLSSerializer());
        xercesc::MemBufFormatTarget target;
        xercesc::DOMLSOutputImpl output;
        output.setEncoding(u"UTF-8");
        output.setByteStream(&target);
        try {
            if (!serializer->write(document, &output))
                return "a document can't be written";
        } catch (const xercesc::DOMException& failure) {
            return vellox::toUtf8(toWideString(failure.getMessage()));
        }
        return {reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen()};
    }

private:
    XercesProcess xerces_;
    ParserScope parser_{XercesHelper::createParser()};
    SerializerScope serializer_{XercesHelper::createWriter()};
};

std::string toUtf16(const std::string& ascii) {
    std::string text = "\xFF\xFE";
    for (const char c : ascii)
        text += {c, '\0'};
    return text;
}

TEST_F(XercesTest, RefusesWhatIsNotWellFormedAndSaysWhere) {
    for (const char* xml : {"", "<a>", "<a><b></a>", "<a b=1/>", "<a x='1' x='2'/>", "<a>&no;</a>",
                            "<a>\x01</a>", "<a/><b/>", "<a\n <b/>", "<a>\xFF</a>", "no xml"})
        EXPECT_NE(failureOf(xml), "none") << xml;
    EXPECT_NE(failureOf("<a>\n<b></a>").find("line 2"), std::string::npos);
    EXPECT_EQ(failureOf("<a/>"), "none"); // the parser is none the worse for it
}

TEST_F(XercesTest, RefusesDocumentTypesInEveryEncoding) {
    const std::string bomb = "<!DOCTYPE a [<!ENTITY x 'xx'><!ENTITY y '&x;&x;'>]><a>&y;</a>";
    for (const std::string& xml : {bomb, "<?xml version='1.0'?><!-- <!-x --><?pi ?>\n" + bomb, toUtf16(bomb),
                                   std::string("<!DOCTYPE a SYSTEM 'file:///etc/passwd'><a/>")})
        EXPECT_NE(failureOf(xml).find("document type"), std::string::npos) << failureOf(xml);
    EXPECT_EQ(failureOf("<!-- <!DOCTYPE a> --><?x <!DOCTYPE ?><a>&lt;!DOCTYPE</a>"), "none");
    EXPECT_EQ(failureOf(toUtf16("<a/>")), "none");
}

TEST_F(XercesTest, BoundsDepthAndSize) {
    const auto nested = [](unsigned depth) {
        std::string xml;
        for (unsigned i = 0; i < depth; ++i)
            xml += "<a>";
        for (unsigned i = 0; i < depth; ++i)
            xml += "</a>";
        return xml;
    };
    EXPECT_EQ(failureOf(nested(kMaxElementDepth)), "none");
    EXPECT_NE(failureOf(nested(kMaxElementDepth + 1)).find("deep"), std::string::npos);
    EXPECT_NE(failureOf(nested(200000)).find("deep"), std::string::npos);
    std::string flat = "<a>";
    for (unsigned i = 0; i < kMaxXmlNodes; ++i)
        flat += "<b/>";
    EXPECT_NE(failureOf(flat + "</a>").find("elements"), std::string::npos);
    for (const char* node : {"<!---->", "<?b?>", "<![CDATA[]]>x"}) {
        std::string many = "<a>";
        for (unsigned i = 0; i < kMaxXmlNodes; ++i)
            many += node;
        EXPECT_NE(failureOf(many + "</a>").find("comments"), std::string::npos) << node;
    }
}

// Both make the scanner or the document compare each name with many others.
TEST_F(XercesTest, BoundsAttributesAndNames) {
    const auto wide = [](unsigned count) {
        std::string tag = "<b";
        for (unsigned i = 0; i < count; ++i)
            tag += " a" + std::to_string(i) + "='\"='";
        return tag + "/>";
    };
    const std::string most = "<a>" + wide(kMaxAttributes) + "</a>";
    EXPECT_EQ(failureOf(most), "none");
    // Nothing that stands ahead of it hides an element.
    for (const char* ahead :
         {"", "<!-- <b ' -->", "<![CDATA[<b \"]]>", "<?x <b '?>", "<b c='>\"'/>", "'", "\""}) {
        const std::string over = "<a>" + std::string(ahead) + wide(kMaxAttributes + 1) + "</a>";
        EXPECT_NE(failureOf(over).find("attributes"), std::string::npos) << ahead;
        EXPECT_NE(failureOf(toUtf16(over)).find("attributes"), std::string::npos) << ahead;
    }
    EXPECT_EQ(failureOf("<a><!--" + wide(kMaxAttributes + 1) + "--></a>"), "none");
    EXPECT_EQ(failureOf("<a><![CDATA[" + wide(kMaxAttributes + 1) + "]]></a>"), "none");
    const std::string cjk = "<a b='\xE6\x9C\xBC'/>"; // in UTF-16 it has a byte like "<"
    EXPECT_EQ(failureOf(cjk), "none");

    std::string elements = "<a>", attributes = "<a>";
    for (std::size_t i = 0; i < kMaxXmlNames; ++i) {
        elements += "<b" + std::to_string(i) + "/>";
        attributes += "<b c" + std::to_string(i) + "=''/>";
    }
    EXPECT_NE(failureOf(elements + "</a>").find("names"), std::string::npos);
    EXPECT_NE(failureOf(attributes + "</a>").find("names"), std::string::npos);
}

// In others markup could pass the guard unseen.
TEST_F(XercesTest, ReadsEncodingsInWhichMarkupIsPlain) {
    const auto in = [](const char* encoding) {
        return "<?xml version='1.0' encoding='" + std::string(encoding) + "'?><a/>";
    };
    for (const char* encoding : {"UTF-8", "utf-8", "ISO-8859-1", "windows-1252", "US-ASCII"})
        EXPECT_EQ(failureOf(in(encoding)), "none") << encoding;
    EXPECT_NE(failureOf(in("UTF-7")).find("UTF-7"), std::string::npos);
    std::string ebcdic = "\x4C\x6F\xA7\x94\x93\x40\xA5\x85\x99\xA2\x89\x96\x95\x7E\x7D\xF1\x4B\xF0\x7D"
                         "\x40\x85\x95\x83\x96\x84\x89\x95\x87\x7E\x7D\xC9\xC2\xD4\xF0\xF3\xF7\x7D\x6F\x6E"
                         "\x4C\x81\x61\x6E"; // <?xml version='1.0' encoding='IBM037'?><a/>
    EXPECT_NE(failureOf(ebcdic).find("IBM037"), std::string::npos) << failureOf(ebcdic);
}

TEST(XmlBudget, GrowsWithThePackageWithinBounds) {
    const auto failsAt = [](std::uint64_t bytes, std::uint64_t cost) {
        XmlBudget budget(bytes);
        budget.take(cost / 2);
        EXPECT_NO_THROW(budget.take(cost - cost / 2));
        EXPECT_THROW(budget.take(1), Exception);
    };
    failsAt(0, kXmlCostFloor);
    failsAt(10 << 20, (10 << 20) * kXmlCostPerByte);
    failsAt(UINT64_MAX, kXmlCostCeiling);
}

TEST_F(XercesTest, WritesADocumentAsItStands) {
    const std::string xml =
        "<p:a xmlns:p=\"urn:p\"><x xmlns=\"urn:x\"><y z=\"&quot;&lt;&#xA;&#x9;&gt;\"/></x>"
        "<a:t> blanks &amp; \xF0\x9F\x98\x80 &#xD;</a:t></p:a>";
    EXPECT_EQ(vellox::test::canonical(rewrite(xml)), vellox::test::canonical(xml));
    EXPECT_EQ(rewrite(toUtf16("<a>x</a>")), "<a>x</a>"); // always UTF-8
}

TEST_F(XercesTest, WritesToTheByteAsXercesDoes) {
    const std::string documents[] = {
        "<n a=''><n b='1' a='2'><n>x</n></n><!-- & < --><?pi?><?pi  & data?></n>",
        "<?xml version='1.0' standalone='yes'?>\n<!--x-->\n<?a b?><a/><!-- y -->\n",
        "<?xml version='1.1'?><a b='&#x1;&#x85;'>\xC2\x85\xE2\x80\xA8</a>",
        "<a><![CDATA[x ]] > &<]]><b/><![CDATA[]]></a>",
        "<\xC3\xA4 \xC3\xB6='\xE2\x82\xAC'>\r\n\t&#xD; &gt; ' \" </\xC3\xA4>",
        toUtf16("<a>x</a>"),
    };
    for (const std::string& xml : documents) {
        const DocumentScope document = read(xml);
        EXPECT_EQ(write(document.get()), writeByXerces(document.get())) << xml;
    }
}

// A character at a time, with what XML can't hold and halves of pairs, wherever a text can stand.
TEST_F(XercesTest, WritesEveryCharacterAsXercesDoes) {
    for (unsigned unit = 1; unit < 0x10000; unit += unit < 0x100 || unit > 0xFFF8 ? 1 : 997)
        for (const std::u16string& text :
             {std::u16string{char16_t(unit)}, std::u16string{char16_t(unit), 0xDC00},
              std::u16string{u'a', 0xD83D, char16_t(unit), u'b'}}) {
            const DocumentScope document(XercesHelper::createDocument(u"a"));
            xercesc::DOMElement* root = document->getDocumentElement();
            xercesc::DOMNode* kinds[] = {document->createTextNode(text.c_str()),
                                         document->createComment(text.c_str()),
                                         document->createProcessingInstruction(u"x", text.c_str())};
            root->setAttribute(u"b", text.c_str());
            EXPECT_EQ(write(document.get()), writeByXerces(document.get())) << unit;
            root->removeAttribute(u"b");
            for (xercesc::DOMNode* kind : kinds) {
                root->appendChild(kind);
                EXPECT_EQ(write(document.get()), writeByXerces(document.get())) << unit;
                root->removeChild(kind);
            }
        }
}

// Texts that go beyond a buffer, with pairs across its ends; nodes that belong to namespaces.
TEST_F(XercesTest, WritesLongTextsAndNamespacesAsXercesDoes) {
    const DocumentScope document(XercesHelper::createDocument(u"a"));
    xercesc::DOMElement* root = document->getDocumentElement();
    std::u16string text = u"x";
    for (int i = 0; i < 20000; ++i)
        text += u"\U0001F600<&\"\u20AC";
    root->setAttribute(u"b", text.c_str());
    root->appendChild(document->createTextNode(text.c_str()));
    EXPECT_EQ(write(document.get()), writeByXerces(document.get()));
    root->appendChild(document->createElementNS(u"urn:b", u"p:c"));
    EXPECT_EQ(write(document.get()), writeByXerces(document.get()));
    EXPECT_NE(write(document.get()).find("xmlns:p=\"urn:b\""), std::string::npos);
    root->setAttributeNS(u"urn:d", u"q:d", u"1");
    root->removeChild(root->getLastChild());
    EXPECT_EQ(write(document.get()), writeByXerces(document.get()));
}

TEST(XercesString, DropsWhatXmlCantHold) {
    const std::wstring forbidden{L'a',
                                 L'\0',
                                 wchar_t(1),
                                 wchar_t(0x1B),
                                 wchar_t(0xFFFE),
                                 wchar_t(0xFFFF),
                                 wchar_t(0xD800),
                                 wchar_t(0x110000),
                                 L'b'};
    EXPECT_EQ(dropForbiddenCharacters(forbidden), L"ab");
    const std::wstring allowed = L"\t\n\r \u007f\u0085\u05d0\u202e\ufffd\U0001F600\U0010FFFF";
    EXPECT_EQ(dropForbiddenCharacters(allowed), allowed);
    EXPECT_TRUE(XercesString(L"x") == L"x");
    EXPECT_EQ(toWideString(nullptr), L"");
}

} // namespace
