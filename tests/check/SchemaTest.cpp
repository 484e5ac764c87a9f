#include "vellox/check/Schema.h"

#include "vellox/host/services/Utf8.h"

#include <gtest/gtest.h>

using namespace vellox;
using namespace vellox::check;

namespace {

bool accepts(const char* rule, const char16_t* value) {
    return ValueType::parse(rule, {}).accepts(value);
}

TEST(ValueType, KnowsTheEdges) {
    struct Row {
        const char* rule;
        const char16_t *good, *bad;
    };
    const Row rows[] = {
        {"boolean", u" true ", u"TRUE"},
        {"int", u"-2147483648", u"2147483648"},
        {"int", u"+007", u"1.0"},
        {"int", u"0", u""},
        {"unsignedInt", u"4294967295", u"-1"},
        {"long 0..27273042316900", u"27273042316900", u"27273042316901"},
        {"int ..5", u"-9", u"6"},
        {"int 0..5", u"5", u"99999999999999999999999999"},
        {"double", u"-1.5E3", u"1,5"},
        {"hexBinary 3..3", u"00fF7f", u"00ff7"},
        {"guid", u"{B6F15528-21DE-4FAA-801E-634DDDAF4B2B}", u"{b6f15528-21DE-4FAA-801E-634DDDAF4B2B}"},
        {"percent 25..400", u"025%", u"24%"},
        {"percent 25..400", u"400%", u"100.5%"},
        {"decimalPercent", u"-12.5%", u"12.%"},
        {"decimalPercent 0..", u"0%", u"-1%"},
        {"measure 0..", u"2.5cm", u"2.5px"},
        {"dateTime", u"2024-01-02T03:04:05.6Z", u"2024-01-02"},
        {"NCName", u"rId1", u"1rId"},
        {"{l ctr r ''}", u"", u"middle"},
        {"string 1..2", u"ab", u"abc"},
        {"int 0..5 | {all}", u"all", u"6"},
    };
    for (const Row& row : rows) {
        EXPECT_TRUE(accepts(row.rule, row.good)) << row.rule;
        EXPECT_FALSE(accepts(row.rule, row.bad)) << row.rule;
    }
}

// Children are letters here: the rule says which words of them are right.
class LetterModel {
public:
    explicit LetterModel(const char* rule) : model_(rule, makeSource()) {}

    bool takes(const std::string& word) const {
        ContentModel::State state = ContentModel::kStart;
        for (const char c : word) {
            state = model_.step(state, Key(c));
            if (state == ContentModel::kNowhere)
                return false;
        }
        return model_.mayEnd(state);
    }

private:
    static ContentModel::Source makeSource() {
        ContentModel::Source source;
        source.makeKey = [](std::string_view name) { return Key(name[0]); };
        source.findType = [](std::string_view) { return kNoType; };
        source.findElement = [](std::string_view name) { return std::make_pair(Key(name[0]), kNoType); };
        source.findGroup = [](std::string_view) {
            return std::make_pair(std::string_view("(x=T | y=T)"), makeSource());
        };
        return source;
    }

    ContentModel model_;
};

TEST(ContentModel, FollowsItsRule) {
    struct Row {
        const char* rule;
        std::vector<std::string> good, bad;
    };
    const Row rows[] = {
        {"", {""}, {"a"}},
        {"a=T b=T? c=T*", {"a", "ab", "acc", "abcc"}, {"", "ba", "abb", "aca"}},
        {"(a=T | b=T c=T)+ d=T", {"ad", "bcd", "abcad"}, {"d", "bd", "acd"}},
        {"a=T{2,3} b=T", {"aab", "aaab"}, {"ab", "aaaab", "aa"}},
        {"(a=T? b=T?)? c=T{2,}", {"cc", "abccc", "bcc"}, {"abc", "bacc"}},
        {"EG_G* a=T\n  (b=T\n  | c=T)?", {"a", "xyyxab", "ac"}, {"xa b", "abc", "x"}},
        {"a any*", {"a", "aqz"}, {"", "qa"}},
    };
    for (const Row& row : rows) {
        const LetterModel model(row.rule);
        for (const std::string& word : row.good)
            EXPECT_TRUE(model.takes(word)) << row.rule << ": " << word;
        for (const std::string& word : row.bad)
            EXPECT_FALSE(model.takes(word)) << row.rule << ": " << word;
    }
}

TEST(Schema, HasTablesThatAgree) {
    Names names;
    Schema schema(names);
    EXPECT_NO_THROW(schema.readAll());
    EXPECT_NE(schema.findRoot(names.makeKey(kPresentation, "sldMaster")), kNoType);
    EXPECT_EQ(schema.findRoot(names.makeKey(kPresentation, "CT_Slide")), kNoType);
    EXPECT_EQ(schema.findRoot(names.makeKey(kDrawing, "sp")), kNoType);
    const ElementType& frame = schema.getType(schema.findRoot(names.makeKey(kDrawing, "tbl")));
    EXPECT_NE(frame.content.find(names.makeKey(kDrawing, "tblGrid")), ContentModel::kNowhere);
}

} // namespace
