#include "vellox/opc/PartName.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"

#include <string_view>

namespace opc {

namespace {

constexpr char kHexDigits[] = "0123456789ABCDEF";

int hexValue(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// The byte that "%XX" at a position stands for, or -1 where there is no such triple.
int decodeTriple(std::string_view text, std::size_t at) {
    if (text[at] != '%' || at + 2 >= text.size())
        return -1;
    const int high = hexValue(text[at + 1]), low = hexValue(text[at + 2]);
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

bool isSeparator(int byte) {
    return byte == '/' || byte == '\\';
}

std::string fold(const std::string& name) {
    std::string key;
    key.reserve(name.size());
    for (std::size_t i = 0; i < name.size(); ++i) {
        const int decoded = decodeTriple(name, i);
        char c = name[i];
        if (decoded >= 0 && decoded != '%') {
            c = static_cast<char>(decoded);
            i += 2;
        }
        key.push_back(c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c);
    }
    return key;
}

void require(bool holds, const std::string& name, const char* fault) {
    if (!holds)
        throw Exception("\"" + name + "\" is no part name: " + fault);
}

void checkSegment(std::string_view segment, const std::string& name) {
    require(!segment.empty(), name, "an element of it is empty");
    require(segment.find_first_not_of('.') != std::string::npos, name, "an element of it is made of dots");
    for (std::size_t i = 0; i < segment.size(); ++i) {
        require(static_cast<unsigned char>(segment[i]) >= 0x20, name, "it holds a control character");
        const int decoded = decodeTriple(segment, i);
        require(segment[i] != '\\' && !isSeparator(decoded), name, "it holds a slash in disguise");
        require(decoded < 0 || decoded >= 0x20, name, "it holds a control character in disguise");
    }
}

void checkName(const std::string& name) {
    require(!name.empty() && name[0] == '/', name, "it doesn't begin with \"/\"");
    for (std::size_t start = 1; start <= name.size();) {
        const std::size_t end = std::min(name.find('/', start), name.size());
        checkSegment(std::string_view(name).substr(start, end - start), name);
        start = end + 1;
    }
}

} // namespace

PartName::PartName(const std::wstring& name) : PartName(makeText(name)) {}

PartName::Text PartName::makeText(const std::wstring& name) {
    const std::size_t last = name.find_last_not_of(L'.');
    const bool isDotted = last != std::wstring::npos && name[last] != L'/';
    Text text{isDotted ? name.substr(0, last + 1) : name, {}};
    const std::string bytes = vellox::toUtf8(text.name);
    checkName(bytes);
    text.key = fold(bytes);
    return text;
}

std::wstring PartName::getFolder() const {
    return toString().substr(0, toString().rfind(L'/') + 1);
}

std::wstring PartName::getExtension() const {
    const std::string& key = getKey();
    const std::size_t slash = key.rfind('/');
    const std::size_t dot = key.rfind('.');
    if (dot == std::string::npos || dot < slash)
        return {};
    return vellox::fromUtf8(key.substr(dot + 1));
}

// A name that is one stays one: it needn't be checked again. There are as many of these as there are slides.
PartName PartName::getRelationshipPartName() const {
    Text part(*text_);
    part.name.insert(part.name.rfind(L'/') + 1, L"_rels/").append(L".rels");
    part.key.insert(part.key.rfind('/') + 1, "_rels/").append(".rels");
    return PartName(std::move(part));
}

URI PartName::toURI() const {
    if (toString().find_first_of(L" \"<>^`{|}#?%") == std::wstring::npos)
        return URI(toString());
    return URI(L"/" + vellox::fromUtf8(toEntryName()));
}

std::string PartName::toEntryName() const {
    constexpr std::string_view kEncoded = " \"<>^`{|}#?";
    std::string entry;
    const std::string bytes = vellox::toUtf8(toString());
    entry.reserve(bytes.size());
    for (std::size_t i = 1; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        const bool mustEncode =
            kEncoded.find(bytes[i]) != kEncoded.npos || (byte == '%' && decodeTriple(bytes, i) < 0);
        if (mustEncode)
            entry += {'%', kHexDigits[byte >> 4], kHexDigits[byte & 15]};
        else
            entry.push_back(bytes[i]);
    }
    return entry;
}

} // namespace opc
