#include "vellox/doctor/ReportJson.h"

#include "vellox/host/services/Utf8.h"

#include <array>
#include <cstdio>

namespace vellox::ppt {

namespace {

std::string escapeUnit(unsigned long unit) {
    std::array<char, 8> digits;
    std::snprintf(digits.data(), digits.size(), "\\u%04lx", unit & 0xFFFFUL);
    return digits.data();
}

// Beyond the first 65,536 a character is two units.
std::string escape(wchar_t c) {
    const auto code = static_cast<char32_t>(c);
    constexpr unsigned long kFirstPair = 0x10000, kHigh = 0xD800, kLow = 0xDC00;
    if (code < kFirstPair)
        return escapeUnit(code);
    const unsigned long rest = code - kFirstPair;
    return escapeUnit(kHigh + (rest >> 10U)) + escapeUnit(kLow + (rest & 0x3FFU));
}

std::string toJson(const std::wstring& text) {
    std::string json = "\"";
    for (const wchar_t c : text) {
        const bool isPlain = c >= L' ' && c < L'\x7F' && c != L'"' && c != L'\\';
        json += isPlain ? std::string(1, static_cast<char>(c)) : escape(c);
    }
    return json + "\"";
}

std::string toJson(const std::string& text) {
    return toJson(fromUtf8(text));
}

std::string toJson(bool value) {
    return value ? "true" : "false";
}

std::string toJson(long long number) {
    return std::to_string(number);
}

// The fields of an object, one after another.
class Object {
public:
    template <class Value> Object& add(const char* name, const Value& value) {
        return addJson(name, toJson(value));
    }
    Object& addJson(const char* name, const std::string& json) {
        text_ += (text_.empty() ? "{\"" : ", \"") + std::string(name) + "\": " + json;
        return *this;
    }
    std::string finish() const { return text_ + "}"; }

private:
    std::string text_;
};

template <class Item, class Write> std::string toList(const std::vector<Item>& items, Write write) {
    std::string list;
    for (const Item& item : items)
        list += (list.empty() ? "" : ", ") + write(item);
    return "[" + list + "]";
}

std::string writeBox(const BoxEmu& box) {
    return Object().add("x", box.x).add("y", box.y).add("cx", box.cx).add("cy", box.cy).finish();
}

std::string writePlaceholder(const PlaceholderReport& placeholder) {
    return Object()
        .add("name", placeholder.name)
        .add("handle", placeholder.handle)
        .add("kind", placeholder.kind)
        .add("type", placeholder.type)
        .add("index", placeholder.index)
        .addJson("box", placeholder.box ? writeBox(*placeholder.box) : "null")
        .add("is_box_inherited", placeholder.isBoxInherited)
        .add("is_filled_in_classic", placeholder.isFilledInClassic)
        .finish();
}

std::string writeLayout(const LayoutReport& layout) {
    return Object()
        .add("name", layout.name)
        .add("handle", layout.handle)
        .add("type", layout.type)
        .add("part", layout.part)
        .add("shows_master_shapes", layout.showsMasterShapes)
        .add("has_background", layout.hasBackground)
        .addJson("placeholders", toList(layout.placeholders, writePlaceholder))
        .finish();
}

std::string writeColours(const std::vector<std::pair<std::wstring, std::wstring>>& colours) {
    return toList(colours, [](const auto& colour) {
        return "[" + toJson(colour.first) + ", " + toJson(colour.second) + "]";
    });
}

std::string writeMaster(const MasterReport& master) {
    return Object()
        .add("name", master.name)
        .add("handle", master.handle)
        .add("part", master.part)
        .add("heading_font", master.headingFont)
        .add("body_font", master.bodyFont)
        .addJson("colours", writeColours(master.colours))
        .addJson("layouts", toList(master.layouts, writeLayout))
        .finish();
}

std::string writeFinding(const Finding& finding) {
    return Object()
        .add("severity", std::string(toString(finding.severity)))
        .add("code", finding.code)
        .add("part", finding.part)
        .add("slide", static_cast<long long>(finding.slide))
        .add("shape", finding.shape)
        .add("text", finding.text)
        .finish();
}

std::string writeFont(const FontReport& font) {
    return Object()
        .add("name", font.name)
        .addJson("is_installed", font.isInstalled ? toJson(*font.isInstalled) : "null")
        .finish();
}

} // namespace

std::string toJson(const TemplateReport& report) {
    return Object()
        .add("path", report.path)
        .add("slide_width", report.slideWidth)
        .add("slide_height", report.slideHeight)
        .addJson("masters", toList(report.masters, writeMaster))
        .addJson("table_styles",
                 toList(report.tableStyles,
                        [](const TableStyleReport& style) {
                            return Object().add("name", style.name).add("id", style.id).finish();
                        }))
        .addJson("fonts", toList(report.fonts, writeFont))
        .add("slides", static_cast<long long>(report.slides))
        .addJson("findings", toList(report.findings, writeFinding))
        .finish();
}

} // namespace vellox::ppt
