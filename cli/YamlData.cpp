#include "cli/Data.h"

#include <yaml-cpp/yaml.h>

#include <set>
#include <string_view>

namespace vellox::cli {

namespace {

/// A number as YAML's core schema has it, without those that are written in other systems or by name.
bool isNumber(const std::string& word) {
    std::size_t at = 0;
    const auto skip = [&](std::string_view characters, std::size_t most) {
        const std::size_t begin = at;
        while (at < word.size() && at - begin < most && characters.find(word[at]) != characters.npos)
            ++at;
        return at - begin;
    };
    constexpr char kDigits[] = "0123456789", kSigns[] = "+-";
    skip(kSigns, 1);
    const std::size_t whole = skip(kDigits, word.npos);
    const std::size_t fraction = skip(".", 1) > 0 ? skip(kDigits, word.npos) : 0;
    if (whole + fraction == 0)
        return false;
    if (skip("eE", 1) > 0) {
        skip(kSigns, 1);
        if (skip(kDigits, word.npos) == 0)
            return false;
    }
    return at == word.size();
}

/// Plain words that stand for something else than themselves, as in YAML's core schema.
Data::Kind judge(const std::string& word) {
    if (word.empty() || word == "~" || word == "null" || word == "Null" || word == "NULL")
        return Data::Kind::Nothing;
    if (word == "true" || word == "True" || word == "TRUE" || word == "false" || word == "False" ||
        word == "FALSE")
        return Data::Kind::Logical;
    return isNumber(word) ? Data::Kind::Number : Data::Kind::Text;
}

/// An alias stands for all of its anchor again, so that a short text can be a huge tree: values are counted.
class TreeBuilder {
public:
    explicit TreeBuilder(const std::string& file) : file_(file) {}

    Data build(const YAML::Node& node, unsigned depth) {
        Data value;
        value.line = getLine(node);
        if (++count_ > kMaxDataValues)
            fail(node, "it has too many values");
        if (depth > kMaxDataDepth)
            fail(node, "its values stand too deep in one another");
        switch (node.Type()) {
        case YAML::NodeType::Sequence:
            value.kind = Data::Kind::List;
            for (const YAML::Node& item : node)
                value.items.push_back(build(item, depth + 1));
            break;
        case YAML::NodeType::Map:
            buildRecord(node, value, depth);
            break;
        case YAML::NodeType::Scalar:
            value.text = node.Scalar();
            value.kind =
                node.Tag() == "?" ? judge(value.text) : Data::Kind::Text; // "!" is in quotation marks
            break;
        default:
            break;
        }
        return value;
    }

private:
    void buildRecord(const YAML::Node& node, Data& value, unsigned depth) {
        value.kind = Data::Kind::Record;
        for (const auto& entry : node) {
            if (!entry.first.IsScalar())
                fail(entry.first, "a name is no text");
            if (!names_.emplace(depth, entry.first.Scalar()).second)
                fail(entry.first, "there are two values for \"" + entry.first.Scalar() + "\"");
            value.members.emplace_back(entry.first.Scalar(), Data());
        }
        names_.erase(names_.lower_bound({depth, {}}), names_.lower_bound({depth + 1, {}}));
        std::size_t i = 0;
        for (const auto& entry : node)
            value.members[i++].second = build(entry.second, depth + 1);
    }

    static unsigned getLine(const YAML::Node& node) {
        return node.Mark().is_null() ? 0 : static_cast<unsigned>(node.Mark().line) + 1;
    }

    [[noreturn]] void fail(const YAML::Node& node, const std::string& text) const {
        throw DataFailure({file_, {}, getLine(node)}, text);
    }

    const std::string& file_;
    std::set<std::pair<unsigned, std::string>> names_; // of the record that is being read
    std::size_t count_ = 0;
};

} // namespace

Data parseYaml(const std::string& text, const std::string& file) {
    try {
        return TreeBuilder(file).build(YAML::Load(text), 0);
    } catch (const YAML::Exception& error) {
        const unsigned line = error.mark.is_null() ? 0 : static_cast<unsigned>(error.mark.line) + 1;
        throw DataFailure({file, {}, line}, "it is no YAML: " + error.msg);
    }
}

} // namespace vellox::cli
