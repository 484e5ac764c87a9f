#include "cli/Data.h"

#include <nlohmann/json.hpp>
#include <unordered_set>

namespace vellox::cli {

namespace {

/// The text, with a count of the lines that were read of it.
class LineIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    LineIterator(const char* at, unsigned& line) : at_(at), line_(&line) {}
    reference operator*() const { return *at_; }
    LineIterator& operator++() {
        if (*at_ == '\n')
            ++*line_;
        ++at_;
        return *this;
    }
    bool operator==(const LineIterator& other) const { return at_ == other.at_; }
    bool operator!=(const LineIterator& other) const { return at_ != other.at_; }

private:
    const char* at_;
    unsigned* line_;
};

/// Builds the tree while the text is read, when its lines are known.
class TreeBuilder : public nlohmann::json_sax<nlohmann::json> {
public:
    TreeBuilder(const std::string& file, const unsigned& line) : file_(file), line_(line) {}

    Data takeRoot() { return std::move(root_); }

    bool null() override { return add(Data::Kind::Nothing, {}); }
    bool boolean(bool value) override { return add(Data::Kind::Logical, value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override {
        return add(Data::Kind::Number, std::to_string(value));
    }
    bool number_unsigned(number_unsigned_t value) override {
        return add(Data::Kind::Number, std::to_string(value));
    }
    bool number_float(number_float_t, const string_t& spelling) override {
        return add(Data::Kind::Number, spelling);
    }
    bool string(string_t& value) override { return add(Data::Kind::Text, value); }
    bool binary(binary_t&) override { return false; } // which a text doesn't have
    bool start_object(std::size_t) override { return begin(Data::Kind::Record); }
    bool key(string_t& name) override {
        count(name.size());
        if (!names_.back().insert(name).second)
            fail("there are two values for \"" + name + "\"");
        open_.back()->members.emplace_back(name, Data());
        return true;
    }
    bool end_object() override { return end(); }
    bool start_array(std::size_t) override { return begin(Data::Kind::List); }
    bool end_array() override { return end(); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) override {
        // The library's text has its own words for the place in front.
        const std::string text = error.what();
        const std::size_t colon = text.find(": ");
        fail("it is no JSON: " + (colon == text.npos ? text : text.substr(colon + 2)));
    }

private:
    [[noreturn]] void fail(const std::string& text) const {
        throw Failure(file_ + ":" + std::to_string(line_) + ": " + text);
    }

    void count(std::size_t bytes) {
        if (!size_.add(bytes))
            fail("it is too much data");
    }

    Data& place(Data::Kind kind, std::size_t bytes) {
        count(bytes);
        Data* value = &root_;
        if (!open_.empty() && open_.back()->kind == Data::Kind::List)
            value = &open_.back()->items.emplace_back();
        else if (!open_.empty())
            value = &open_.back()->members.back().second;
        value->kind = kind;
        value->line = line_;
        return *value;
    }

    bool add(Data::Kind kind, const std::string& text) {
        place(kind, text.size()).text = text;
        return true;
    }

    bool begin(Data::Kind kind) {
        if (open_.size() >= kMaxDataDepth)
            fail("its values stand too deep in one another");
        open_.push_back(&place(kind, 0));
        names_.emplace_back();
        return true;
    }

    bool end() {
        open_.pop_back();
        names_.pop_back();
        return true;
    }

    const std::string& file_;
    const unsigned& line_;
    Data root_;
    std::vector<Data*> open_; // what is being read, each within the one before, which doesn't grow meanwhile
    std::vector<std::unordered_set<std::string>> names_; // of each of those
    DataSize size_;
};

} // namespace

Data parseJson(const std::string& text, const std::string& file) {
    unsigned line = 1;
    TreeBuilder builder(file, line);
    nlohmann::json::sax_parse(LineIterator(text.data(), line), LineIterator(text.data() + text.size(), line),
                              &builder);
    return builder.takeRoot();
}

} // namespace vellox::cli
