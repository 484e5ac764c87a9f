#include "cli/DeckDescription.h"

#include "cli/Contents.h"
#include "cli/DescriptionForm.h"
#include "cli/Files.h"

namespace vellox::cli {

namespace {

std::vector<std::string> getNames(const Record& record) {
    std::vector<std::string> names;
    for (const auto& entry : record)
        names.push_back(entry.first);
    return names;
}

/// Makes the slides of one deck.
class DeckMaker {
public:
    DeckMaker(ppt::Presentation& deck, const Record* record, const DeckDescription::Report& report)
        : deck_(deck),
          record_(record),
          report_(report),
          textOf_([this](const std::string& text, const DataPlace& place) {
              return fromUtf8(fill(text, place));
          }) {}

    /// Values for the tokens of the template's own slides: those of the description, and those of the record, which go
    /// first. A value for which there is no token may be for the description alone.
    void fillTokens(const Data* tokens, const DataPlace& place) {
        std::vector<ppt::Contents::Row> rows;
        for (const auto& entry : *record_)
            rows.emplace_back(fromUtf8(entry.first), fromUtf8(entry.second));
        if (tokens)
            for (const Data::Member& member : tokens->members)
                if (record_->count(member.first) == 0)
                    rows.emplace_back(fromUtf8(member.first),
                                      makeToken(member.second, place.member(member.first, member.second)));
        try {
            deck_.fillTokens(rows);
        } catch (const hostfx::except::IUserException& error) {
            throw DataFailure(place, error.what(), error.getErrorID());
        }
        reportNews(place, "valueWithoutToken");
    }

    void add(const Data& data, const DataPlace& place) {
        ppt::Slide slide = makeSlide(data, place);
        if (const Data* contents = data.find("contents"))
            for (const Data::Member& member : contents->members)
                put(slide, member.first, member.second,
                    place.member("contents", *contents).member(member.first, member.second));
    }

private:
    std::string fill(const std::string& text, const DataPlace& place) const {
        return record_ ? fillIn(text, *record_, place) : text;
    }

    ppt::Slide makeSlide(const Data& data, const DataPlace& place) {
        const Data& layout = *data.find("layout");
        const Data* master = data.find("master");
        const DataPlace at = place.member("layout", layout);
        const std::wstring name = textOf_(layout.text, at);
        try {
            if (master)
                return deck_.add(name, textOf_(master->text, place.member("master", *master)));
            return deck_.add(name);
        } catch (const hostfx::except::IUserException& error) {
            throw DataFailure(at, error.what(), error.getErrorID());
        }
    }

    ppt::Content makeToken(const Data& value, const DataPlace& place) const {
        if (value.find("picture"))
            return makePicture(value, place);
        if (value.find("table"))
            return makeTableContent(value, place);
        const Data* rows = value.find("rows");
        if (!rows || rows->kind != Data::Kind::Text)
            return makeValue(value);
        const DataPlace at = place.member("rows", *rows);
        return readFile<ppt::Content>(*rows, at, makeRecords);
    }

    void put(ppt::Slide& slide, const std::string& key, const Data& value, const DataPlace& place) {
        const std::wstring name = textOf_(key, place);
        try {
            if (value.kind == Data::Kind::Nothing)
                return; // stays empty
            if (value.isScalar())
                slide.replace(name, trimEnd(textOf_(value.text, place))); // each line is a paragraph
            else if (value.kind == Data::Kind::List)
                slide.replace(name, makeList(value, place, textOf_));
            else
                slide.replace(name, value.find("picture") ? makePicture(value, place)
                                                          : makeTableContent(value, place));
        } catch (const hostfx::except::IUserException& error) {
            throw DataFailure(place, error.what(), error.getErrorID());
        }
        reportNews(place);
    }

    /// Block texts of YAML end with a line end.
    static std::wstring trimEnd(const std::wstring& text) {
        return text.substr(0, text.find_last_not_of(L"\r\n") + 1);
    }

    HvContentPtr makePicture(const Data& value, const DataPlace& place) const {
        const Data& path = *value.find("picture");
        const std::string file = findFile(path, place.member("picture", path));
        ppt::Picture picture(toPath(file));
        setOption(value, "alt", place, [&](const std::wstring& text) { picture.setAltText(text); });
        setOption(value, "fit", place, [&](const std::wstring& word) { picture.setFit(word); });
        return boost::make_shared<ObjectContent>(picture);
    }

    HvContentPtr makeTableContent(const Data& value, const DataPlace& place) const {
        const Data& rows = *value.find("table");
        const DataPlace at = place.member("table", rows);
        ppt::Table table = rows.kind == Data::Kind::List ? makeTable(rows, at, textOf_)
                                                         : readFile<ppt::Table>(rows, at, makeTable);
        setOption(value, "alt", place, [&](const std::wstring& text) { table.setAltText(text); });
        setOption(value, "style", place, [&](const std::wstring& name) { table.setStyleName(name); });
        return boost::make_shared<ObjectContent>(table);
    }

    template <class Set>
    void setOption(const Data& value, const char* name, const DataPlace& place, const Set& set) const {
        const Data* option = value.find(name);
        if (!option)
            return;
        const DataPlace at = place.member(name, *option);
        try {
            set(textOf_(option->text, at));
        } catch (const hostfx::except::IUserException& error) {
            throw DataFailure(at, error.what(), error.getErrorID());
        }
    }

    template <class Value>
    Value readFile(const Data& path, const DataPlace& place, Value (*read)(const std::string&)) const {
        const std::string file = findFile(path, place);
        try {
            return read(file);
        } catch (const Failure& failure) {
            throw DataFailure(place, failure.what());
        }
    }

    /// A file that a deck names, from the folder of its description.
    std::string findFile(const Data& path, const DataPlace& place) const {
        const std::string file = resolve(fill(path.text, place), place.file);
        try {
            requireFile(file);
        } catch (const Failure& failure) {
            throw DataFailure(place, failure.what());
        }
        return file;
    }

    void reportNews(const DataPlace& place, const char* except = "") {
        const std::vector<ppt::Finding> news = deck_.getFindings(told_);
        told_ += news.size();
        for (const ppt::Finding& finding : news)
            if (finding.code != except)
                report_(place, finding);
    }

    ppt::Presentation& deck_;
    const Record* record_;
    const DeckDescription::Report& report_;
    TextOf textOf_;
    std::size_t told_ = 0;
};

} // namespace

std::string fillIn(const std::string& text, const Record& record, const DataPlace& place) {
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c != '{' && c != '}') {
            filled += c;
        } else if (i + 1 < text.size() && text[i + 1] == c) {
            filled += text[i++];
        } else {
            const std::size_t end = c == '{' ? text.find('}', i) : text.npos;
            if (end == text.npos)
                throw DataFailure(place, std::string("a \"") + c +
                                             "\" stands alone; two of them are one in the text");
            const std::string name = text.substr(i + 1, end - i - 1);
            const auto found = record.find(name);
            if (found == record.end())
                throw DataFailure(place, "there is no column \"" + name + "\"" +
                                             describeNearest(name, getNames(record)));
            filled += found->second;
            i = end;
        }
    }
    return filled;
}

DeckDescription::DeckDescription(Data data, const std::string& file)
    : data_(std::move(data)),
      root_{file, {}, 0} {
    checkForm(data_, root_);
}

void DeckDescription::make(ppt::Presentation& deck, const Record* record, const Report& report) const {
    const Data* slides = data_.find("slides");
    const Data* tokens = data_.find("tokens");
    DeckMaker maker(deck, record, report);
    if (record)
        maker.fillTokens(tokens, tokens ? root_.member("tokens", *tokens) : root_);
    if (!slides)
        return;
    const DataPlace place = root_.member("slides", *slides);
    for (std::size_t i = 0; i < slides->items.size(); ++i)
        maker.add(slides->items[i], place.item(i, slides->items[i]));
}

} // namespace vellox::cli
