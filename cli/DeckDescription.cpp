#include "cli/DeckDescription.h"

#include "cli/Contents.h"
#include "cli/DescriptionForm.h"
#include "cli/Files.h"
#include "cli/Properties.h"

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

    void setUp(const Data& description, const DataPlace& place) {
        setProperties(deck_, Described::Deck, description, place, textOf_);
        reportNews(place); // what opening the deck found, too
    }

    void add(const Data& data, const DataPlace& place) {
        ppt::Slide slide = makeSlide(data, place);
        setProperties(slide, Described::Slide, data, place, textOf_);
        reportNews(place);
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
            return boost::make_shared<ObjectContent>(makeTableOf(value, place));
        const Data* rows = value.find("rows");
        if (!rows || rows->kind != Data::Kind::Text)
            return makeValue(value);
        const DataPlace at = place.member("rows", *rows);
        return readFile<ppt::Content>(*rows, at, makeRecords);
    }

    void put(ppt::Slide& slide, const std::string& key, const Data& value, const DataPlace& place) {
        const std::wstring name = textOf_(key, place);
        try {
            if (value.find("picture"))
                slide.replace(name, makePicture(value, place));
            else if (value.find("table"))
                slide.replace(name, boost::make_shared<ObjectContent>(makeTableOf(value, place)));
            else if (const Data* text = value.find("text"))
                putText(slide, name, *text, place.member("text", *text));
            else
                putText(slide, name, value, place);
            if (value.find("text"))
                setUpTexts(slide, name, value, place);
        } catch (const hostfx::except::IUserException& error) {
            throw DataFailure(place, error.what(), error.getErrorID());
        }
        reportNews(place);
    }

    void setUpTexts(ppt::Slide& slide, const std::wstring& name, const Data& value,
                    const DataPlace& place) const {
        bool isThere = false;
        for (const auto& shape : slide.find(name))
            if (const auto box = ppt::BaseTextBox::cast(shape)) {
                setProperties(*box, Described::Text, value, place, textOf_);
                isThere = true;
            }
        const Data& text = *value.find("text");
        if (!isThere && text.kind == Data::Kind::Nothing) // or else the text itself was told of
            throw DataFailure(place, "the slide has nothing of that name that takes a text");
    }

    void putText(ppt::Slide& slide, const std::wstring& name, const Data& text, const DataPlace& place) {
        if (text.kind == Data::Kind::List)
            slide.replace(name, makeList(text, place, textOf_));
        else if (text.kind != Data::Kind::Nothing)                   // which leaves it empty
            slide.replace(name, trimEnd(textOf_(text.text, place))); // each line is a paragraph
    }

    /// Block texts of YAML end with a line end.
    static std::wstring trimEnd(const std::wstring& text) {
        return text.substr(0, text.find_last_not_of(L"\r\n") + 1);
    }

    HvContentPtr makePicture(const Data& value, const DataPlace& place) const {
        const Data& path = *value.find("picture");
        const std::string file = findFile(path, place.member("picture", path));
        ppt::Picture picture(toPath(file));
        setProperties(picture, Described::Picture, value, place, textOf_);
        return boost::make_shared<ObjectContent>(picture);
    }

    ppt::Table makeTableOf(const Data& value, const DataPlace& place) const {
        const Data& rows = *value.find("table");
        const DataPlace at = place.member("table", rows);
        ppt::Table table = rows.kind == Data::Kind::List ? makeTable(rows, at, textOf_)
                                                         : readFile<ppt::Table>(rows, at, makeTable);
        setProperties(table, Described::Table, value, place, textOf_);
        setUpColumns(table, value, place);
        setUpRows(table, value, place);
        setUpCells(table, value, place);
        mergeCells(table, value, place);
        alignNumbers(table);
        return table;
    }

    /// The items of a list that a record may have, with their places.
    template <class Take>
    static void eachItem(const Data& value, const char* name, const DataPlace& place, Take take) {
        const Data* list = value.find(name);
        for (std::size_t i = 0; list && i < list->items.size(); ++i)
            take(i, list->items[i], place.member(name, *list).item(i, list->items[i]));
    }

    void setUpColumns(ppt::Table& table, const Data& value, const DataPlace& place) const {
        ppt::Table::ColSpecs columns;
        eachItem(value, "columns", place, [&](std::size_t i, const Data& column, const DataPlace& at) {
            if (i >= table.getNCols())
                throw DataFailure(at, "the table has no such column");
            columns.push_back(boost::make_shared<ppt::ColSpec>());
            setProperties(*columns.back(), Described::Column, column, at, textOf_);
        });
        if (!columns.empty())
            table.setColSpecs(columns);
    }

    void setUpRows(ppt::Table& table, const Data& value, const DataPlace& place) const {
        eachItem(value, "rows", place, [&](std::size_t i, const Data& row, const DataPlace& at) {
            const auto found = table.row(static_cast<unsigned>(i));
            if (!found)
                throw DataFailure(at, "the table has no such row");
            setProperties(*found, Described::Row, row, at, textOf_);
        });
    }

    void setUpCells(ppt::Table& table, const Data& value, const DataPlace& place) const {
        eachItem(value, "cells", place, [&](std::size_t, const Data& cell, const DataPlace& at) {
            const auto found = atPlace(
                at, [&] { return table.entry(toIndex(*cell.find("row")), toIndex(*cell.find("column"))); });
            if (!found)
                throw DataFailure(at, "the table has no such cell");
            setProperties(*found, Described::Cell, cell, at, textOf_);
        });
    }

    void mergeCells(ppt::Table& table, const Data& value, const DataPlace& place) const {
        eachItem(value, "merge", place, [&](std::size_t, const Data& range, const DataPlace& at) {
            const std::vector<Data>& numbers = range.items;
            atPlace(at, [&] {
                table.merge(toIndex(numbers[0]), toIndex(numbers[1]), toIndex(numbers[2]),
                            toIndex(numbers[3]));
            });
        });
    }

    /// From 1 in descriptions.
    static unsigned toIndex(const Data& number) { return static_cast<unsigned>(std::stoul(number.text)) - 1; }

    /// What goes wrong is told with a place.
    template <class Act> static auto atPlace(const DataPlace& place, Act act) -> decltype(act()) {
        try {
            return act();
        } catch (const hostfx::except::IUserException& error) {
            throw DataFailure(place, error.what(), error.getErrorID());
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
    maker.setUp(data_, root_);
    if (record)
        maker.fillTokens(tokens, tokens ? root_.member("tokens", *tokens) : root_);
    if (!slides)
        return;
    const DataPlace place = root_.member("slides", *slides);
    for (std::size_t i = 0; i < slides->items.size(); ++i)
        maker.add(slides->items[i], place.item(i, slides->items[i]));
}

} // namespace vellox::cli
