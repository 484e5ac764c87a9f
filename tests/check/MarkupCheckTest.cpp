// The check of documents while they are written: it has to say of each what the check of their nodes says.

#include "vellox/check/MarkupCheck.h"

#include "vellox/check/DocumentCheck.h"
#include "vellox/host/services/Utf8.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"

#include "tests/support/Files.h"
#include "tests/support/Mutations.h"

#include <boost/make_shared.hpp>
#include <boost/regex.hpp>
#include <gtest/gtest.h>

#include <sstream>

using namespace vellox;
using test::Parts;

namespace {

check::RelationshipKinds readKinds(const Parts& parts, const std::string& part) {
    const std::size_t slash = part.rfind('/');
    const auto found = parts.find(part.substr(0, slash) + "/_rels" + part.substr(slash) + ".rels");
    check::RelationshipKinds kinds;
    if (found == parts.end())
        return kinds;
    const boost::regex row("Id=\"([^\"]*)\" Type=\"[^\"]*/([^\"/]*)\"");
    for (boost::sregex_iterator at(found->second.begin(), found->second.end(), row), end; at != end; ++at)
        kinds.emplace(fromUtf8((*at)[1]), fromUtf8((*at)[2]));
    return kinds;
}

std::string describe(const std::vector<ppt::Finding>& findings) {
    std::ostringstream text;
    for (const ppt::Finding& finding : findings)
        text << toString(finding.severity) << " " << finding.code << " " << toUtf8(finding.shape) << ": "
             << toUtf8(finding.text) << "\n";
    return text.str();
}

class MarkupCheck : public testing::Test {
protected:
    /// By the nodes of the document.
    std::string checkNodes(const std::string& xml, const check::RelationshipKinds& kinds) {
        std::vector<ppt::Finding> findings;
        check::Report report(findings);
        opc::StdIStreamAdaptor stream(boost::make_shared<std::istringstream>(xml));
        try {
            const opc::DocumentScope document(
                opc::XercesHelper::readDocumentFromStream(parser_.get(), stream, true, {}, {}));
            documents_.check(*document, {}, &kinds, report);
        } catch (const std::exception&) {
            return "not well-formed";
        }
        return describe(findings);
    }

    std::string checkMarkup(const std::string& xml, const check::RelationshipKinds& kinds) {
        return describe(markup_.check(xml, {}, [&] { return kinds; }));
    }

    bool isPlainlySound(const std::string& xml, const check::RelationshipKinds& kinds = {}) {
        return markup_.isPlainlySound(xml, [&] { return kinds; });
    }

private:
    opc::XercesProcess xerces_;
    opc::ParserScope parser_{opc::XercesHelper::createParser()};
    check::DocumentCheck documents_;
    check::MarkupCheck markup_;
};

// Whatever it has learnt of one document by then, it must not pass the fault of another.
TEST_F(MarkupCheck, SaysWhatTheCheckOfNodesSays) {
    const Parts sound = test::makeSoundDeck();
    unsigned faulty = 0;
    for (const test::Mutation& mutation : test::getMutations())
        for (unsigned seed = 0; seed < 3; ++seed) {
            const Parts spoilt = test::mutate(sound, mutation, seed);
            for (const auto& [name, bytes] : spoilt) {
                const auto former = sound.find(name);
                const bool isDocument =
                    name.compare(0, 4, "ppt/") == 0 && name.find(".xml") == name.size() - 4;
                if (!isDocument || (former != sound.end() && former->second == bytes))
                    continue;
                const check::RelationshipKinds kinds = readKinds(spoilt, name);
                const std::string expected = checkNodes(bytes, kinds);
                if (expected == "not well-formed")
                    EXPECT_FALSE(isPlainlySound(bytes, kinds)) << mutation.code << " " << name;
                else
                    EXPECT_EQ(checkMarkup(bytes, kinds), expected) << mutation.code << " " << name;
                faulty += expected.empty() ? 0 : 1;
            }
        }
    EXPECT_GT(faulty, 100u);
}

TEST_F(MarkupCheck, KnowsItsWayThroughWhatIsSound) {
    const std::string head =
        "<?xml version=\"1.0\"?>\n<p:sld xmlns:p=\"http://schemas.openxmlformats.org/"
        "presentationml/2006/main\" xmlns:a=\"http://schemas.openxmlformats.org/drawingml/"
        "2006/main\"><p:cSld><p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/>"
        "<p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>";
    const auto shape = [](const std::string& id, const std::string& inProperties, const std::string& text) {
        return "<p:sp><p:nvSpPr><p:cNvPr id=\"" + id + "\" name=\"&lt;1 > 0\">" + inProperties +
               "</p:cNvPr><p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr/><p:txBody><a:bodyPr/><a:p>" + text +
               "</a:p></p:txBody></p:sp>";
    };
    const std::string tail = "</p:spTree></p:cSld></p:sld>";
    const std::string extension = "<a:extLst><a:ext uri=\"{FF2B5EF4}\"><x:id xmlns:x=\"urn:x\" val=\"1\"/>"
                                  "</a:ext></a:extLst>";
    const struct {
        const char* why;
        std::string shapes;
        bool isSound;
    } cases[] = {
        {"blanks and references", shape("2", "", "<a:r><a:t> a &amp; b </a:t></a:r>\n "), true},
        {"a namespace of its own", shape("2", extension, ""), true},
        {"the same prefix elsewhere", shape("2", extension, "<x:id val=\"1\"/>"), false},
        {"two of one id", shape("2", "", "") + shape("2", "", ""), false},
        {"text between elements", shape("2", "", "words"), false},
        {"a comment", shape("2", "", "<!-- <a:r> -->"), false},
        {"an end without a start", shape("2", "", "</a:r>"), false},
        {"an element twice", shape("2", "", "<a:pPr/><a:pPr/>"), false},
        {"an attribute twice", shape("2", "", "<a:pPr lvl=\"1\" lvl=\"1\"/>"), false},
        {"an attribute out of range", shape("2", "", "<a:pPr lvl=\"9\"/>"), false},
        {"a shape without anything", "<p:sp/>", false},
    };
    for (int time = 0; time < 2; ++time) // what was learnt may not change the answer
        for (const auto& row : cases)
            EXPECT_EQ(isPlainlySound(head + row.shapes + tail), row.isSound) << row.why;
    const std::string whole = head + shape("2", extension, "<a:r><a:t>x</a:t></a:r>") + tail;
    EXPECT_TRUE(isPlainlySound(whole + "\n"));
    EXPECT_FALSE(isPlainlySound(whole + whole.substr(whole.find("<p:sld"))));
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(isPlainlySound(whole.substr(0, length))) << length;
}

// Names and places are other ones in each slide: neither time nor memory may grow with them.
TEST_F(MarkupCheck, ForgetsWhatComesOnce) {
    std::string names = "<x xmlns=\"urn:x\">", spaces = names;
    for (int i = 0; i < 100000; ++i) {
        names += "<y z=\"" + std::to_string(i) + "\"/>";
        spaces += "<y xmlns:z=\"urn:" + std::to_string(i) + "\"/>";
    }
    EXPECT_TRUE(isPlainlySound(names + "</x>"));
    EXPECT_FALSE(isPlainlySound(spaces + "</x>"));
}

} // namespace
