#include "cli/Data.h"

#include <yaml-cpp/depthguard.h>
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

/// An alias stands for all of its anchor again, so that a short text can be a huge tree: its size is counted.
class TreeBuilder {
public:
    explicit TreeBuilder(const std::string& file) : file_(file) {}

    Data build(const YAML::Node& node, unsigned depth) {
        Data value;
        value.line = getLine(node);
        if (!size_.add(node.IsScalar() ? node.Scalar().size() : 0))
            fail(node, "it is too much data");
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

    static unsigned getLine(const YAML::Node& node) {
        return node.Mark().is_null() ? 0 : static_cast<unsigned>(node.Mark().line) + 1;
    }

private:
    void buildRecord(const YAML::Node& node, Data& value, unsigned depth) {
        value.kind = Data::Kind::Record;
        for (const auto& entry : node) {
            if (!entry.first.IsScalar())
                fail(entry.first, "a name is no text");
            if (!names_.emplace(depth, entry.first.Scalar()).second)
                fail(entry.first, "there are two values for \"" + entry.first.Scalar() + "\"");
            if (!size_.add(entry.first.Scalar().size()))
                fail(entry.first, "it is too much data");
            value.members.emplace_back(entry.first.Scalar(), Data());
        }
        names_.erase(names_.lower_bound({depth, {}}), names_.lower_bound({depth + 1, {}}));
        std::size_t i = 0;
        for (const auto& entry : node)
            value.members[i++].second = build(entry.second, depth + 1);
    }

    [[noreturn]] void fail(const YAML::Node& node, const std::string& text) const {
        throw DataFailure({file_, {}, getLine(node)}, text);
    }

    const std::string& file_;
    std::set<std::pair<unsigned, std::string>> names_; // of the record that is being read
    DataSize size_;
};

DataPlace getPlace(const YAML::Exception& error, const std::string& file) {
    return {file, {}, error.mark.is_null() ? 0 : static_cast<unsigned>(error.mark.line) + 1};
}

} // namespace

Data parseYaml(const std::string& text, const std::string& file) {
    try {
        const std::vector<YAML::Node> documents = YAML::LoadAll(text);
        if (documents.size() > 1)
            throw DataFailure({file, {}, TreeBuilder::getLine(documents[1])},
                              "a second document begins here, and one is all that a file may have");
        return TreeBuilder(file).build(documents.empty() ? YAML::Node() : documents[0], 0);
    } catch (const YAML::DeepRecursion& error) {
        throw DataFailure(getPlace(error, file), "its values stand too deep in one another");
    } catch (const YAML::Exception& error) {
        throw DataFailure(getPlace(error, file), "it is no YAML: " + error.msg);
    }
}

} // namespace vellox::cli
