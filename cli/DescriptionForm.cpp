#include "cli/DescriptionForm.h"

#include <algorithm>

namespace vellox::cli {

namespace {

using Names = std::vector<std::string>;

void require(const Data& value, Data::Kind kind, const DataPlace& place) {
    if (value.kind != kind)
        throw DataFailure(place,
                          std::string("it is ") + toString(value.kind) + ", and must be " + toString(kind));
}

/// A record with no other names than these.
void checkRecord(const Data& value, const Names& names, const DataPlace& place) {
    require(value, Data::Kind::Record, place);
    for (const Data::Member& member : value.members)
        if (std::find(names.begin(), names.end(), member.first) == names.end())
            throw DataFailure(place.member(member.first, member.second),
                              "nothing is known of that name" + describeNearest(member.first, names));
}

/// Texts, and lists of them to any depth.
void checkList(const Data& value, const DataPlace& place) {
    for (std::size_t i = 0; i < value.items.size(); ++i) {
        const DataPlace at = place.item(i, value.items[i]);
        if (value.items[i].kind == Data::Kind::Record)
            throw DataFailure(at, "it is a record, and must be a text or a list of further ones");
        checkList(value.items[i], at);
    }
}

void checkTable(const Data& value, const DataPlace& place) {
    if (value.kind == Data::Kind::Text)
        return; // the name of a file
    require(value, Data::Kind::List, place);
    if (value.items.empty())
        throw DataFailure(place, "the table has no rows");
    for (std::size_t r = 0; r < value.items.size(); ++r) {
        const Data& row = value.items[r];
        require(row, Data::Kind::List, place.item(r, row));
        for (std::size_t c = 0; c < row.items.size(); ++c)
            if (!row.items[c].isScalar())
                throw DataFailure(place.item(r, row).item(c, row.items[c]),
                                  "a cell of a table is a text, a number or a truth value");
    }
}

/// A picture or a table.
void checkObject(const Data& value, const DataPlace& place) {
    const Data* picture = value.find("picture");
    const Data* table = value.find("table");
    if (!picture == !table)
        throw DataFailure(place, "it must have either a picture or a table");
    checkRecord(value, picture ? Names{"picture", "alt", "fit"} : Names{"table", "alt", "style"}, place);
    if (table)
        checkTable(*table, place.member("table", *table));
    for (const Data::Member& member : value.members)
        if (&member.second != table)
            require(member.second, Data::Kind::Text, place.member(member.first, member.second));
}

void checkSlide(const Data& slide, const DataPlace& place) {
    checkRecord(slide, {"layout", "master", "contents"}, place);
    const Data* layout = slide.find("layout");
    if (!layout)
        throw DataFailure(place, "it has no layout");
    require(*layout, Data::Kind::Text, place.member("layout", *layout));
    if (const Data* master = slide.find("master"))
        require(*master, Data::Kind::Text, place.member("master", *master));
    const Data* contents = slide.find("contents");
    if (!contents)
        return;
    const DataPlace at = place.member("contents", *contents);
    require(*contents, Data::Kind::Record, at);
    for (const Data::Member& member : contents->members) {
        if (member.second.kind == Data::Kind::List)
            checkList(member.second, at.member(member.first, member.second));
        else if (member.second.kind == Data::Kind::Record)
            checkObject(member.second, at.member(member.first, member.second));
    }
}

/// Values of any form, but for objects and files.
void checkToken(const Data& value, const DataPlace& place) {
    if (value.find("picture") || value.find("table"))
        checkObject(value, place);
    else if (const Data* rows = value.find("rows"); rows && rows->isScalar()) {
        checkRecord(value, {"rows"}, place);
        require(*rows, Data::Kind::Text, place.member("rows", *rows));
    }
}

} // namespace

void checkForm(const Data& description, const DataPlace& place) {
    checkRecord(description, {"slides", "tokens"}, place);
    if (const Data* tokens = description.find("tokens")) {
        const DataPlace at = place.member("tokens", *tokens);
        require(*tokens, Data::Kind::Record, at);
        for (const Data::Member& member : tokens->members)
            checkToken(member.second, at.member(member.first, member.second));
    }
    const Data* slides = description.find("slides");
    if (!slides)
        return;
    const DataPlace at = place.member("slides", *slides);
    require(*slides, Data::Kind::List, at);
    for (std::size_t i = 0; i < slides->items.size(); ++i)
        checkSlide(slides->items[i], at.item(i, slides->items[i]));
}

} // namespace vellox::cli
