#include "cli/TemplatePage.h"

#include "cli/Console.h"

#include <algorithm>
#include <cstdio>

namespace vellox::cli {

using namespace ppt;

namespace {

// Both themes of a browser, no fonts but its own.
constexpr char kStyle[] = R"(
:root { color-scheme: light dark; --ink: #1d2733; --faint: #5b6876; --paper: #fff; --page: #f3f5f7; --line: #c9d1d9; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #e6ebf0; --faint: #9aa7b4; --paper: #1b232c; --page: #11171d; --line: #3a4653; }
}
body { margin: 0 auto; max-width: 1200px; padding: 1rem; background: var(--page); color: var(--ink);
  font: 15px/1.5 system-ui, sans-serif; }
h1 { font-size: 1.5rem; margin: .5rem 0; overflow-wrap: anywhere; } h2 { font-size: 1.2rem; margin: 2rem 0 .25rem; }
h3 { font-size: 1rem; margin: 0 0 .5rem; } p { margin: .25rem 0; color: var(--faint); }
.layouts { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(100%, 340px), 1fr)); gap: 1rem; margin-top: 1rem;
  align-items: start; }
.layout { background: var(--paper); border: 1px solid var(--line); border-radius: 6px; padding: .75rem; min-width: 0; }
.layout > svg { width: 100%; height: auto; display: block; border: 1px solid var(--line); }
svg text { fill: #17202a; font-family: system-ui, sans-serif; } svg .kind { fill: #44515e; }
.swatches span { display: inline-block; margin-right: .75rem; white-space: nowrap; color: var(--faint); font-size: 13px; }
.swatches i { display: inline-block; width: 1em; height: 1em; border: 1px solid var(--line); vertical-align: -.15em; margin-right: .3em; }
table { border-collapse: collapse; width: 100%; font-size: 13px; margin-top: .5rem; } td, th { text-align: left; padding: .15rem .4rem .15rem 0;
  vertical-align: top; border-bottom: 1px solid var(--line); overflow-wrap: anywhere; }
summary { margin-top: .5rem; color: var(--faint); cursor: pointer; }
.error { color: #c62828; } .warning { color: #b26a00; } .info { color: var(--faint); }
)";

/// What the classes of placeholders are drawn in.
struct KindColor {
    const char* kind;
    const char* color;
};
constexpr KindColor kColors[] = {{"TextBoxPlaceholder", "#cfe3fb"}, {"BodyPlaceholder", "#cfe3fb"},
                                 {"ContentPlaceholder", "#d5f0d8"}, {"PicturePlaceholder", "#fbe0c4"},
                                 {"TablePlaceholder", "#ead9f7"},   {"", "#e8ebee"}};

const char* getColor(const std::string& kind) {
    for (const KindColor& row : kColors)
        if (kind == row.kind)
            return row.color;
    return "#d5f0d8";
}

std::string escape(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

std::string escape(const std::wstring& text) {
    return escape(makePrintable(text));
}

/// Points, which drawings are in; what lies far out is brought near.
std::string toPoints(long long emu) {
    constexpr double kEmuPerPoint = 12700, kFar = 100000;
    char text[32];
    std::snprintf(text, sizeof text, "%.1f",
                  std::clamp(static_cast<double>(emu) / kEmuPerPoint, -kFar, kFar));
    return text;
}

std::string toCentimeters(long long emu) {
    constexpr double kEmuPerCentimeter = 360000;
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", static_cast<double>(emu) / kEmuPerCentimeter);
    return text;
}

class PageWriter {
public:
    explicit PageWriter(const TemplateReport& report)
        : report_(report),
          // What readers take where a template doesn't say.
          width_(report.slideWidth > 0 ? report.slideWidth : 9144000),
          height_(report.slideHeight > 0 ? report.slideHeight : 6858000) {}

    std::string run() {
        const std::string title = escape(report_.path);
        page_ = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
                title + "</title>\n<style>" + kStyle + "</style>\n</head>\n<body>\n<h1>" + title +
                "</h1>\n<p>" + toCentimeters(width_) + " x " + toCentimeters(height_) + " cm, " +
                std::to_string(report_.slides) + " slides of its own</p>\n";
        for (const MasterReport& master : report_.masters)
            writeMaster(master);
        writeTableStyles();
        writeFindings();
        return page_ + "</body>\n</html>\n";
    }

private:
    void writeMaster(const MasterReport& master) {
        page_ += "<h2>" + escape(master.handle) + "</h2>\n<p>Headings in " + escape(master.headingFont) +
                 ", text in " + escape(master.bodyFont) + "</p>\n<div class=\"swatches\">";
        for (const auto& colour : master.colours)
            page_ += "<span><i style=\"background:#" + getDigits(colour.second) + "\"></i>" +
                     escape(colour.first) + "</span>";
        page_ += "</div>\n<div class=\"layouts\">\n";
        std::size_t number = 0;
        for (const LayoutReport& layout : master.layouts)
            writeLayout(layout, ++number);
        page_ += "</div>\n";
    }

    /// Of a colour, or none if it has others.
    static std::string getDigits(const std::wstring& colour) {
        const bool isColor =
            colour.size() == 6 && colour.find_first_not_of(L"0123456789abcdefABCDEF") == colour.npos;
        return isColor ? toUtf8(colour) : "";
    }

    void writeLayout(const LayoutReport& layout, std::size_t number) {
        page_ += "<div class=\"layout\">\n<h3>" + std::to_string(number) + ". " + escape(layout.handle) +
                 "</h3>\n<svg viewBox=\"0 0 " + toPoints(width_) + " " + toPoints(height_) +
                 "\" role=\"img\" aria-label=\"" + escape(layout.handle) + "\">\n<rect width=\"" +
                 toPoints(width_) + "\" height=\"" + toPoints(height_) + "\" fill=\"#fff\"/>\n";
        for (const PlaceholderReport& placeholder : layout.placeholders)
            if (placeholder.box)
                draw(placeholder, *placeholder.box);
        page_ += "</svg>\n<details><summary>Placeholders</summary>\n<table>\n";
        for (const PlaceholderReport& placeholder : layout.placeholders)
            writeRow(placeholder);
        page_ += "</table>\n</details>\n</div>\n";
    }

    /// A box with a drawing of its own, so that a long name ends at its edge.
    void draw(const PlaceholderReport& placeholder, const BoxEmu& box) {
        constexpr double kLargest = 22, kSmallest = 9;
        const double height = static_cast<double>(std::max(box.cy, 0LL)) / 12700;
        const int size = static_cast<int>(std::clamp(height * 0.4, kSmallest, kLargest));
        const bool hasKind = height > 2.6 * size && !placeholder.kind.empty();
        page_ += "<svg x=\"" + toPoints(box.x) + "\" y=\"" + toPoints(box.y) + "\" width=\"" +
                 toPoints(std::max(box.cx, 0LL)) + "\" height=\"" + toPoints(std::max(box.cy, 0LL)) +
                 "\"><rect width=\"100%\" height=\"100%\" fill=\"" + getColor(placeholder.kind) +
                 "\" fill-opacity=\".8\" stroke=\"#7c8894\" stroke-dasharray=\"6 4\"/><text x=\"6\" y=\"" +
                 std::to_string(size + 2) + "\" font-size=\"" + std::to_string(size) + "\">" +
                 escape(getLabel(placeholder)) + "</text>";
        if (hasKind)
            page_ += "<text class=\"kind\" x=\"6\" y=\"" + std::to_string(2 * size + 6) + "\" font-size=\"" +
                     std::to_string(size * 7 / 10) + "\">" + escape(getKindWord(placeholder)) + "</text>";
        page_ += "</svg>\n";
    }

    /// Dates, footers and numbers aren't found by name.
    static std::wstring getLabel(const PlaceholderReport& placeholder) {
        return placeholder.handle.empty() ? placeholder.type : placeholder.handle;
    }

    /// "Content" of "ContentPlaceholder"; that it is one goes without saying.
    static std::string getKindWord(const PlaceholderReport& placeholder) {
        return placeholder.kind.substr(0, placeholder.kind.find("Placeholder"));
    }

    void writeRow(const PlaceholderReport& placeholder) {
        page_ += "<tr><td>" + escape(getLabel(placeholder)) + "</td><td>" + escape(getKindWord(placeholder)) +
                 "</td><td>";
        if (placeholder.box) {
            const BoxEmu& box = *placeholder.box;
            page_ += toCentimeters(box.x) + ", " + toCentimeters(box.y) + "; " + toCentimeters(box.cx) +
                     " x " + toCentimeters(box.cy) + " cm";
        }
        page_ += "</td></tr>\n";
    }

    void writeTableStyles() {
        if (report_.tableStyles.empty())
            return;
        page_ += "<h2>Table styles</h2>\n<ul>\n";
        for (const TableStyleReport& style : report_.tableStyles)
            page_ += "<li>" + escape(style.name) + "</li>\n";
        page_ += "</ul>\n";
    }

    void writeFindings() {
        if (report_.findings.empty())
            return;
        page_ += "<h2>Findings</h2>\n<table>\n";
        for (const Finding& finding : report_.findings)
            page_ += std::string("<tr><td class=\"") + toString(finding.severity) + "\">" +
                     toString(finding.severity) + "</td><td>" + escape(describe(finding)) + "</td></tr>\n";
        page_ += "</table>\n";
    }

    const TemplateReport& report_;
    long long width_, height_;
    std::string page_;
};

} // namespace

std::string makeTemplatePage(const TemplateReport& report) {
    return PageWriter(report).run();
}

} // namespace vellox::cli
