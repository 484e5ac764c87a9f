#include "vellox/foundation/SvgText.h"

#include "vellox/foundation/Conversions.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace vellox {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t kNowhere = std::string_view::npos;

constexpr std::size_t kLongestReference = 100;

using Entities = std::map<std::string, std::string, std::less<>>;

// Puts in what is defined, once: what values refer to was put in when they were defined. References to characters, and to
// what nobody has defined, stay.
std::string putIn(std::string_view text, const Entities& entities) {
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t mark = std::min(text.find('&', at), text.size());
        result += text.substr(at, mark - at);
        const std::string_view reference = text.substr(mark, kLongestReference);
        const std::size_t end = reference.find(';') == kNowhere ? kNowhere : mark + reference.find(';');
        const auto entity =
            end == kNowhere ? entities.end() : entities.find(text.substr(mark + 1, end - mark - 1));
        const bool isKnown = entity != entities.end();
        if (isKnown)
            result += entity->second;
        else if (mark < text.size())
            result += '&';
        at = isKnown ? end + 1 : mark + 1;
        if (result.size() > kGreatestSvg)
            throw SvgFault("its entities make it larger than 32 MB");
    }
    return result;
}

// The declarations of a document type, up to its end.
class Subset {
public:
    explicit Subset(std::string_view text) : text_(text) {}

    /// @param at behind "<!DOCTYPE"
    /// @return behind the end
    std::size_t read(std::size_t at) {
        bool isInside = false; // of the brackets
        while (at < text_.size()) {
            const char c = text_[at];
            if (c == '"' || c == '\'')
                at = behind(std::string_view(&c, 1), at + 1);
            else if (text_.compare(at, 4, "<!--") == 0)
                at = behind("-->", at + 4);
            else if (text_.compare(at, 2, "<?") == 0)
                at = behind("?>", at + 2);
            else if (text_.compare(at, 8, "<!ENTITY") == 0)
                at = readEntity(at + 8);
            else if (c == '>' && !isInside)
                return at + 1;
            else {
                isInside = c == '[' ? true : c == ']' ? false : isInside;
                ++at;
            }
        }
        throw SvgFault("its document type doesn't end");
    }
    const Entities& getEntities() const { return entities_; }

private:
    std::size_t behind(std::string_view end, std::size_t at) const {
        const std::size_t found = text_.find(end, at);
        if (found == kNowhere)
            throw SvgFault("its document type doesn't end");
        return found + end.size();
    }
    // Those with a text; what is to come from elsewhere is left out. Of several of one name the first counts.
    std::size_t readEntity(std::size_t at) {
        const std::size_t name = std::min(text_.find_first_not_of(kBlanks, at), text_.size());
        const std::size_t nameEnd = std::min(text_.find_first_of(" \t\r\n>", name), text_.size());
        const std::size_t quote = std::min(text_.find_first_not_of(kBlanks, nameEnd), text_.size());
        if (quote == text_.size() || (text_[quote] != '"' && text_[quote] != '\''))
            return nameEnd;
        const std::size_t end = behind(text_.substr(quote, 1), quote + 1);
        std::string value = putIn(text_.substr(quote + 1, end - quote - 2), entities_);
        size_ += value.size();
        if (size_ > kGreatestSvg)
            throw SvgFault("its entities are larger than 32 MB");
        entities_.try_emplace(std::string(text_.substr(name, nameEnd - name)), std::move(value));
        return end;
    }

    std::string_view text_;
    Entities entities_;
    std::size_t size_ = 0; // of all of them
};

// Where the document type begins, which is ahead of the first element; nowhere if there is none.
std::size_t findDoctype(std::string_view svg) {
    for (std::size_t at = svg.find('<'); at != kNowhere; at = svg.find('<', at + 1)) {
        if (svg.compare(at, 9, "<!DOCTYPE") == 0)
            return at;
        const std::string_view end = svg.compare(at, 4, "<!--") == 0 ? "-->" : "?>";
        if (svg.compare(at, 4, "<!--") != 0 && svg.compare(at, 2, "<?") != 0)
            return kNowhere;
        at = svg.find(end, at + 2);
        if (at == kNowhere)
            return kNowhere;
    }
    return kNowhere;
}

// The tag of the first element, without its angles.
std::string_view findRootTag(std::string_view svg) {
    for (std::size_t at = svg.find('<'); at != kNowhere; at = svg.find('<', at + 1)) {
        const bool isComment = svg.compare(at, 4, "<!--") == 0;
        if (!isComment && svg.compare(at, 2, "<?") != 0)
            return svg.substr(at + 1, svg.find('>', at) - at - 1);
        at = svg.find(isComment ? "-->" : "?>", at + 2);
        if (at == kNowhere)
            break;
    }
    return {};
}

std::string_view findAttribute(std::string_view tag, std::string_view name) {
    for (std::size_t at = tag.find(name); at != kNowhere; at = tag.find(name, at + 1)) {
        const std::size_t sign = tag.find_first_not_of(kBlanks, at + name.size());
        const bool isWhole =
            at > 0 && kBlanks.find(tag[at - 1]) != kNowhere && sign != kNowhere && tag[sign] == '=';
        const std::size_t quote = isWhole ? tag.find_first_not_of(kBlanks, sign + 1) : kNowhere;
        if (quote != kNowhere && (tag[quote] == '"' || tag[quote] == '\''))
            return tag.substr(quote + 1, tag.find(tag[quote], quote + 1) - quote - 1);
    }
    return {};
}

double readNumber(std::string_view text, std::size_t& end) {
    const std::size_t begin = std::min(text.find_first_not_of(" \t\r\n,"), text.size());
    end = std::min(text.find_first_not_of("+-.0123456789eE", begin), text.size());
    if (end > begin && (text[end - 1] == 'e' || text[end - 1] == 'E')) // of "em"
        --end;
    return str2double(
        std::wstring(text.begin() + static_cast<long>(begin), text.begin() + static_cast<long>(end)));
}

// In pixels; 0 for what hangs on what is around it.
double readLength(std::string_view text) {
    struct Unit {
        std::string_view name;
        double pixels;
    };
    constexpr double kPerInch = 96;
    constexpr Unit kUnits[] = {{"", 1},
                               {"px", 1},
                               {"in", kPerInch},
                               {"cm", kPerInch / 2.54},
                               {"mm", kPerInch / 25.4},
                               {"pt", kPerInch / 72},
                               {"pc", kPerInch / 6}};
    std::size_t end = 0;
    const double number = readNumber(text, end);
    std::string_view unit = text.substr(end);
    unit = unit.substr(0, unit.find_last_not_of(kBlanks) + 1);
    for (const Unit& known : kUnits)
        if (unit == known.name)
            return number * known.pixels;
    return 0;
}

bool isWide(std::string_view svg) {
    return svg.size() > 1 && (svg[0] == '\0' || svg[1] == '\0' || svg.compare(0, 2, "\xFF\xFE") == 0 ||
                              svg.compare(0, 2, "\xFE\xFF") == 0);
}

} // namespace

std::string takeOffDoctype(const std::string& svg) {
    if (isWide(svg))
        throw SvgFault("it isn't in UTF-8");
    const std::size_t begin = findDoctype(svg);
    if (begin == kNowhere)
        return svg;
    Subset subset(svg);
    const std::size_t end = subset.read(begin + std::string_view("<!DOCTYPE").size());
    return svg.substr(0, begin) + putIn(std::string_view(svg).substr(end), subset.getEntities());
}

std::optional<SvgSize> readSvgSize(std::string_view svg) {
    constexpr double kGreatest = 1e6;
    const auto isSensible = [](double length) { return length > 0 && length < kGreatest; };
    const std::string_view tag = findRootTag(svg);
    SvgSize size{readLength(findAttribute(tag, "width")), readLength(findAttribute(tag, "height"))};
    std::string_view box = findAttribute(tag, "viewBox");
    double numbers[4] = {};
    for (double& number : numbers) {
        std::size_t end = 0;
        number = readNumber(box, end);
        box.remove_prefix(end);
    }
    const double width = numbers[2], height = numbers[3];
    const bool hasBox = isSensible(width) && isSensible(height);
    if (size.width <= 0 && hasBox)
        size.width = size.height > 0 ? size.height * width / height : width;
    if (size.height <= 0 && hasBox)
        size.height = size.width * height / width;
    return isSensible(size.width) && isSensible(size.height) ? size : std::optional<SvgSize>();
}

} // namespace vellox
