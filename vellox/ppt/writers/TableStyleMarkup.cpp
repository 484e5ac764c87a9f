#include "vellox/ppt/writers/TableStyleMarkup.h"

#include "vellox/opc/XercesString.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellox::ppt {

namespace {

// What a family is made of. Its styles differ in one colour, for two of them in the next accent as well.

enum class Hue { Own, NextAccent, Dark, Light, Text, Background };

struct Colour {
    Hue hue;
    const char* change = nullptr; // such as "tint"
    int amount = 0;               // of the change, in thousandths of a percent
};

constexpr Colour own(const char* change = nullptr, int amount = 0) {
    return {Hue::Own, change, amount};
}

constexpr Colour kDark{Hue::Dark}, kLight{Hue::Light}, kText{Hue::Text};

// A line has a width in EMU, or is that of the theme of an index; or it is none.
struct Line {
    int width = 0;
    int themeIndex = 0;
    bool isDouble = false;
    Colour colour = kText;
};

constexpr Line kNoLine{};

constexpr Line thin(Colour colour) {
    return {12700, 0, false, colour};
}

constexpr Line thick(Colour colour) {
    return {25400, 0, false, colour};
}

constexpr Line themed(int index, Colour colour) {
    return {0, index, false, colour};
}

constexpr Line twice(Colour colour) {
    return {50800, 0, true, colour};
}

enum class FillKind { Inherited, None, Solid, Themed };

struct Fill {
    FillKind kind = FillKind::Inherited;
    Colour colour = kText;
};

constexpr Fill kInherited{}, kNoFill{FillKind::None};

constexpr Fill solid(Colour colour) {
    return {FillKind::Solid, colour};
}

// Letters of left, right, top, bottom, inside horizontal, inside vertical.
struct Border {
    std::string_view sides;
    Line line;
};

struct Region {
    const char* name;
    bool isBold = false;
    std::optional<Colour> text{};
    std::vector<Border> borders{}; // of which no side is in two
    Fill fill = kInherited;
};

struct Family {
    Hue withoutAccent;      // what Own is in the style without an accent
    int backgroundFill = 0; // the index of a fill of the theme for the table as a whole
    int backgroundEffect = 0;
    std::vector<Region> regions{}; // in the sequence of the schema
};

using F = TableStyleFamily;
using Families = std::map<F, Family>;

void addPlain(Families& families) {
    families[F::NoGrid] = {Hue::Text, 0, 0, {{"wholeTbl", false, kText, {{"lrtbhv", kNoLine}}, kNoFill}}};
    families[F::Grid] = {Hue::Text, 0, 0, {{"wholeTbl", false, kText, {{"lrtbhv", thin(kText)}}, kNoFill}}};
}

void addThemed(Families& families) {
    const Line line = themed(1, own()), strong = themed(2, own()), light = themed(2, kLight);
    families[F::Themed1] = {
        Hue::Text,
        2,
        1,
        {{"wholeTbl", false, kDark, {{"lrtbhv", line}}, kNoFill},
         {"band1H", false, {}, {}, solid(own("alpha", 40000))},
         {"band2H"},
         {"band1V", false, {}, {{"tb", line}}, solid(own("alpha", 40000))},
         {"band2V"},
         {"lastCol", true, {}, {{"l", strong}, {"rtbh", line}, {"v", kNoLine}}},
         {"firstCol", true, {}, {{"r", strong}, {"ltbh", line}, {"v", kNoLine}}},
         {"lastRow", true, {}, {{"lr", line}, {"tb", strong}, {"hv", kNoLine}}, kNoFill},
         {"firstRow", true, kLight, {{"lrt", line}, {"b", light}, {"hv", kNoLine}}, solid(own())}}};
    families[F::Themed2] = {
        Hue::Text,
        3,
        3,
        {{"wholeTbl", false, kLight, {{"lrtb", themed(1, own("tint", 50000))}, {"hv", kNoLine}}, kNoFill},
         {"band1H", false, {}, {}, solid({Hue::Light, "alpha", 20000})},
         {"band1V", false, {}, {}, solid({Hue::Light, "alpha", 20000})},
         {"lastCol", true, {}, {{"l", light}}},
         {"firstCol", true, {}, {{"r", light}}},
         {"lastRow", true, {}, {{"t", light}}, kNoFill},
         {"seCell", false, {}, {{"lt", kNoLine}}},
         {"swCell", false, {}, {{"rt", kNoLine}}},
         {"firstRow", true, {}, {{"b", themed(3, kLight)}}, kNoFill},
         {"neCell", false, {}, {{"b", kNoLine}}}}};
}

void addLight(Families& families) {
    const Fill band = solid(own("alpha", 20000));
    const Line line = themed(1, own());
    families[F::Light1] = {Hue::Text,
                           0,
                           0,
                           {{"wholeTbl", false, kText, {{"lrhv", kNoLine}, {"tb", thin(own())}}, kNoFill},
                            {"band1H", false, {}, {}, band},
                            {"band2H"},
                            {"band1V", false, {}, {}, band},
                            {"lastCol", true},
                            {"firstCol", true},
                            {"lastRow", true, {}, {{"t", thin(own())}}, kNoFill},
                            {"firstRow", true, {}, {{"b", thin(own())}}, kNoFill}}};
    families[F::Light2] = {Hue::Text,
                           0,
                           0,
                           {{"wholeTbl", false, kText, {{"lrtb", line}, {"hv", kNoLine}}, kNoFill},
                            {"band1H", false, {}, {{"tb", line}}},
                            {"band1V", false, {}, {{"lr", line}}},
                            {"band2V", false, {}, {{"lr", line}}},
                            {"lastCol", true},
                            {"firstCol", true},
                            {"lastRow", true, {}, {{"t", twice(own())}}},
                            {"firstRow", true, Colour{Hue::Background}, {}, {FillKind::Themed, own()}}}};
    families[F::Light3] = {Hue::Text,
                           0,
                           0,
                           {{"wholeTbl", false, kText, {{"lrtbhv", thin(own())}}, kNoFill},
                            {"band1H", false, {}, {}, band},
                            {"band1V", false, {}, {}, band},
                            {"lastCol", true},
                            {"firstCol", true},
                            {"lastRow", true, {}, {{"t", twice(own())}}, kNoFill},
                            {"firstRow", true, {}, {{"b", thick(own())}}, kNoFill}}};
}

void addMedium(Families& families) {
    const Fill pale = solid(own("tint", 20000)), band = solid(own("tint", 40000));
    const Fill darkBand = solid({Hue::Dark, "tint", 20000});
    const Line lightLine{38100, 0, false, kLight};
    families[F::Medium1] = {
        Hue::Dark,
        0,
        0,
        {{"wholeTbl", false, kDark, {{"lrtbh", thin(own())}, {"v", kNoLine}}, solid(kLight)},
         {"band1H", false, {}, {}, pale},
         {"band1V", false, {}, {}, pale},
         {"lastCol", true},
         {"firstCol", true},
         {"lastRow", true, {}, {{"t", twice(own())}}, solid(kLight)},
         {"firstRow", true, kLight, {}, solid(own())}}};
    families[F::Medium2] = {Hue::Dark,
                            0,
                            0,
                            {{"wholeTbl", false, kDark, {{"lrtbhv", thin(kLight)}}, pale},
                             {"band1H", false, {}, {}, band},
                             {"band2H"},
                             {"band1V", false, {}, {}, band},
                             {"band2V"},
                             {"lastCol", true, kLight, {}, solid(own())},
                             {"firstCol", true, kLight, {}, solid(own())},
                             {"lastRow", true, kLight, {{"t", lightLine}}, solid(own())},
                             {"firstRow", true, kLight, {{"b", lightLine}}, solid(own())}}};
    families[F::Medium3] = {
        Hue::Dark,
        0,
        0,
        {{"wholeTbl", false, kDark, {{"lrhv", kNoLine}, {"tb", thick(kDark)}}, solid(kLight)},
         {"band1H", false, {}, {}, darkBand},
         {"band1V", false, {}, {}, darkBand},
         {"lastCol", true, kLight, {}, solid(own())},
         {"firstCol", true, kLight, {}, solid(own())},
         {"lastRow", true, {}, {{"t", twice(kDark)}}, solid(kLight)},
         {"seCell", true, kDark},
         {"swCell", true, kDark},
         {"firstRow", true, kLight, {{"b", thick(kDark)}}, solid(own())}}};
    families[F::Medium4] = {Hue::Dark,
                            0,
                            0,
                            {{"wholeTbl", false, kDark, {{"lrtbhv", thin(own())}}, pale},
                             {"band1H", false, {}, {}, band},
                             {"band1V", false, {}, {}, band},
                             {"lastCol", true},
                             {"firstCol", true},
                             {"lastRow", true, {}, {{"t", thick(own())}}, pale},
                             {"firstRow", true, {}, {}, pale}}};
}

// Without an accent the first dark family is made of tints instead of shades.
Family makeFirstDark(bool hasAccent) {
    const Fill whole = solid(hasAccent ? own() : own("tint", 20000));
    const Fill band = solid(hasAccent ? own("shade", 60000) : own("tint", 40000));
    const Fill column = solid(hasAccent ? own("shade", 60000) : own("tint", 60000));
    const Fill total = solid(hasAccent ? own("shade", 40000) : own("tint", 60000));
    return {Hue::Dark,
            0,
            0,
            {{"wholeTbl", false, kLight, {{"lrtbhv", kNoLine}}, whole},
             {"band1H", false, {}, {}, band},
             {"band1V", false, {}, {}, band},
             {"lastCol", true, {}, {{"l", thick(kLight)}}, column},
             {"firstCol", true, {}, {{"r", thick(kLight)}}, column},
             {"lastRow", true, {}, {{"t", thick(kLight)}}, total},
             {"seCell", false, {}, {{"l", kNoLine}}},
             {"swCell", false, {}, {{"r", kNoLine}}},
             {"firstRow", true, {}, {{"b", thick(kLight)}}, solid(kDark)},
             {"neCell", false, {}, {{"l", kNoLine}}},
             {"nwCell", false, {}, {{"r", kNoLine}}}}};
}

void addDark(Families& families) {
    const Fill pale = solid(own("tint", 20000)), band = solid(own("tint", 40000));
    families[F::Dark1] = makeFirstDark(true);
    families[F::Dark2] = {Hue::Dark,
                          0,
                          0,
                          {{"wholeTbl", false, kDark, {{"lrtbhv", kNoLine}}, pale},
                           {"band1H", false, {}, {}, band},
                           {"band1V", false, {}, {}, band},
                           {"lastCol", true},
                           {"firstCol", true},
                           {"lastRow", true, {}, {{"t", twice(kDark)}}, pale},
                           {"firstRow", true, kLight, {}, solid({Hue::NextAccent})}}};
}

Families makeFamilies() {
    Families families;
    addPlain(families);
    addThemed(families);
    addLight(families);
    addMedium(families);
    addDark(families);
    return families;
}

Family findFamily(const BuiltInTableStyle& style) {
    static const Families& families = *new const Families(makeFamilies());
    const bool isOdd = style.family == F::Dark1 && style.accent == 0;
    return isOdd ? makeFirstDark(false) : families.at(style.family);
}

// Into markup

class DefinitionWriter {
public:
    DefinitionWriter(const BuiltInTableStyle& style, opc::MarkupBuffer& out)
        : style_(style),
          family_(findFamily(style)),
          out_(out) {}

    void write() {
        out_.append(R"(<a:tblStyle styleId=")");
        out_.appendValue(opc::XercesString(style_.id));
        out_.append(R"(" styleName=")");
        out_.appendValue(opc::XercesString(style_.name));
        out_.append(R"(">)");
        writeBackground();
        for (const Region& region : family_.regions)
            writeRegion(region);
        out_.append("</a:tblStyle>");
    }

private:
    std::string nameHue(Hue hue) const {
        switch (hue) {
        case Hue::Own:
            return style_.accent > 0 ? "accent" + std::to_string(style_.accent)
                                     : nameHue(family_.withoutAccent);
        case Hue::NextAccent:
            return style_.accent > 0 ? "accent" + std::to_string(style_.accent + 1) : nameHue(Hue::Dark);
        case Hue::Dark:
            return "dk1";
        case Hue::Light:
            return "lt1";
        case Hue::Text:
            return "tx1";
        case Hue::Background:
            return "bg1";
        }
        return {};
    }

    void writeColour(const Colour& colour) {
        out_.append(R"(<a:schemeClr val=")" + nameHue(colour.hue));
        if (colour.change)
            out_.append(std::string(R"("><a:)") + colour.change + R"( val=")" +
                        std::to_string(colour.amount) + R"("/></a:schemeClr>)");
        else
            out_.append(R"("/>)");
    }

    void writeReference(const char* element, int index, const Colour& colour) {
        out_.append(std::string("<a:") + element + R"( idx=")" + std::to_string(index) + R"(">)");
        writeColour(colour);
        out_.append(std::string("</a:") + element + ">");
    }

    void writeSolid(const Colour& colour) {
        out_.append("<a:solidFill>");
        writeColour(colour);
        out_.append("</a:solidFill>");
    }

    void writeBackground() {
        if (family_.backgroundFill == 0)
            return;
        out_.append("<a:tblBg>");
        writeReference("fillRef", family_.backgroundFill, own());
        writeReference("effectRef", family_.backgroundEffect, own());
        out_.append("</a:tblBg>");
    }

    void writeLine(const Line& line) {
        if (line.themeIndex > 0)
            return writeReference("lnRef", line.themeIndex, line.colour);
        if (line.width == 0)
            return out_.append("<a:ln><a:noFill/></a:ln>");
        out_.append(R"(<a:ln w=")" + std::to_string(line.width) + R"(" cmpd=")" +
                    (line.isDouble ? "dbl" : "sng") + R"(">)");
        writeSolid(line.colour);
        out_.append("</a:ln>");
    }

    void writeBorders(const std::vector<Border>& borders) {
        constexpr std::pair<char, const char*> kSides[] = {
            {'l', "left"}, {'r', "right"}, {'t', "top"}, {'b', "bottom"}, {'h', "insideH"}, {'v', "insideV"}};
        const std::size_t start = out_.openElement("a:tcBdr");
        for (const auto& [letter, side] : kSides)
            for (const Border& border : borders) {
                if (border.sides.find(letter) == std::string_view::npos)
                    continue;
                out_.append(std::string("<a:") + side + ">");
                writeLine(border.line);
                out_.append(std::string("</a:") + side + ">");
            }
        out_.closeElement("a:tcBdr", start);
    }

    void writeFill(const Fill& fill) {
        switch (fill.kind) {
        case FillKind::Inherited:
            return;
        case FillKind::None:
            return out_.append("<a:fill><a:noFill/></a:fill>");
        case FillKind::Themed:
            return writeReference("fillRef", 1, fill.colour);
        case FillKind::Solid:
            out_.append("<a:fill>");
            writeSolid(fill.colour);
            return out_.append("</a:fill>");
        }
    }

    void writeText(const Region& region) {
        if (!region.isBold && !region.text)
            return;
        out_.append(region.isBold ? R"(<a:tcTxStyle b="on")" : "<a:tcTxStyle");
        if (!region.text)
            return out_.append("/>");
        out_.append(R"(><a:fontRef idx="minor"><a:prstClr val="black"/></a:fontRef>)");
        writeColour(*region.text);
        out_.append("</a:tcTxStyle>");
    }

    void writeRegion(const Region& region) {
        out_.append(std::string("<a:") + region.name + ">");
        writeText(region);
        out_.append("<a:tcStyle>");
        writeBorders(region.borders);
        writeFill(region.fill);
        out_.append(std::string("</a:tcStyle></a:") + region.name + ">");
    }

    const BuiltInTableStyle& style_;
    const Family family_;
    opc::MarkupBuffer& out_;
};

} // namespace

void appendDefinition(const BuiltInTableStyle& style, opc::MarkupBuffer& out) {
    DefinitionWriter(style, out).write();
}

} // namespace vellox::ppt
