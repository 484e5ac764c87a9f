#include "cli/DescriptionForm.h"

#include "cli/Properties.h"

#include <algorithm>

namespace vellox::cli {

namespace {

using Names = std::vector<std::string>;

constexpr std::size_t kMostDigits = 9; // of a count

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

/// A record that may have these names, and those of properties.
void checkObjectRecord(const Data& value, Described what, Names names, const DataPlace& place) {
    const Names& properties = getPropertyNames(what);
    names.insert(names.end(), properties.begin(), properties.end());
    checkRecord(value, names, place);
    for (const Data::Member& member : value.members)
        if (isProperty(what, member.first))
            checkProperty(what, member.first, member.second, place.member(member.first, member.second));
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

/// One that counts rows or columns, from 1.
void requireNumber(const Data* value, const std::string& name, const DataPlace& place) {
    if (!value)
        throw DataFailure(place, "it has no " + name);
    const bool isCount = value->kind == Data::Kind::Number && value->text.size() <= kMostDigits &&
                         value->text.find_first_not_of("0123456789") == std::string::npos;
    if (!isCount || std::stoul(value->text) == 0)
        throw DataFailure(place, "the " + name + " \"" + value->text + "\" doesn't count from 1");
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

/// A list of records of a member's, if it is there; some may be left out.
void checkParts(const Data& value, const char* name, Described what, const Names& numbers,
                const DataPlace& place) {
    const Data* parts = value.find(name);
    if (!parts)
        return;
    const DataPlace at = place.member(name, *parts);
    require(*parts, Data::Kind::List, at);
    for (std::size_t i = 0; i < parts->items.size(); ++i) {
        const Data& part = parts->items[i];
        if (part.kind == Data::Kind::Nothing && numbers.empty())
            continue;
        const DataPlace here = at.item(i, part);
        checkObjectRecord(part, what, numbers, here);
        for (const std::string& number : numbers)
            requireNumber(part.find(number), number, here);
    }
}

void checkMerged(const Data& value, const DataPlace& place) {
    require(value, Data::Kind::List, place);
    for (std::size_t i = 0; i < value.items.size(); ++i) {
        const Data& range = value.items[i];
        const DataPlace at = place.item(i, range);
        require(range, Data::Kind::List, at);
        if (range.items.size() != 4)
            throw DataFailure(at, "it must be a row, a column, and the last of each");
        for (std::size_t n = 0; n < range.items.size(); ++n)
            requireNumber(&range.items[n], "number", at.item(n, range.items[n]));
    }
}

void checkTableRecord(const Data& value, const DataPlace& place) {
    checkObjectRecord(value, Described::Table, {"table", "columns", "rows", "cells", "merge"}, place);
    const Data& table = *value.find("table");
    checkTable(table, place.member("table", table));
    checkParts(value, "columns", Described::Column, {}, place);
    checkParts(value, "rows", Described::Row, {}, place);
    checkParts(value, "cells", Described::Cell, {"row", "column"}, place);
    if (const Data* merged = value.find("merge"))
        checkMerged(*merged, place.member("merge", *merged));
}

/// A picture or a table, or a text with properties.
void checkObject(const Data& value, const DataPlace& place) {
    const Data* picture = value.find("picture");
    const Data* text = value.find("text");
    if ((picture ? 1 : 0) + (text ? 1 : 0) + (value.find("table") ? 1 : 0) != 1)
        throw DataFailure(place, "it must have either a picture, a table or a text");
    if (picture) {
        checkObjectRecord(value, Described::Picture, {"picture"}, place);
        require(*picture, Data::Kind::Text, place.member("picture", *picture));
    } else if (text) {
        const DataPlace at = place.member("text", *text);
        checkObjectRecord(value, Described::Text, {"text"}, place);
        if (text->kind == Data::Kind::Record)
            throw DataFailure(at, "it is a record, and must be a text or a list");
        checkList(*text, at);
    } else {
        checkTableRecord(value, place);
    }
}

void checkSlide(const Data& slide, const DataPlace& place) {
    checkObjectRecord(slide, Described::Slide, {"layout", "master", "contents"}, place);
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
    checkObjectRecord(description, Described::Deck, {"slides", "tokens"}, place);
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
