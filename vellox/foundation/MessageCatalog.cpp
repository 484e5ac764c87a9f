#include "vellox/foundation/MessageCatalog.h"

#include "vellox/foundation/CatalogFile.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/host/services/Utf8.h"

#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace vellox {

namespace {

// Languages are shipped as the library's texts are, so that a text missing from one is found in this one.
constexpr char kSourceLanguage[] = "en";

// "vellox:ppt_error" is the file vellox-ppt_error.mo: a colon is no character for a file name.
std::string toFileName(std::string catalog) {
    for (char& c : catalog)
        if (c == ':')
            c = '-';
    return catalog;
}

// The language of a locale named as systems name them, such as "de_AT.UTF-8". One whose categories differ has the
// names of all, such as "LC_CTYPE=de_AT.UTF-8;LC_NUMERIC=C;...", and that of its messages counts.
std::string getLanguage(const std::locale& locale) {
    std::string name = locale.name();
    const std::string category = "LC_MESSAGES=";
    if (const std::size_t start = name.find(category); start != std::string::npos)
        name.erase(0, start + category.size());
    const std::string language = name.substr(0, name.find_first_of("_.@;"));
    return language.size() == 2 || language.size() == 3 ? language : kSourceLanguage;
}

// None if the file is missing, or damaged: a message without its text is better than none at all.
CatalogTexts loadTexts(const std::string& root, const std::string& language, const std::string& catalog) {
    const std::string path =
        root + "/resources/messages/" + language + "/LC_MESSAGES/" + toFileName(catalog) + ".mo";
    std::ifstream file(path, std::ios::binary);
    try {
        return readCatalogFile({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
    } catch (const std::runtime_error&) {
        return {};
    }
}

const std::wstring* findText(const std::string& language, const MsgID& message) {
    // Read once for each language and catalog, and never ended: objects that die in the last moments of the
    // process still have something to say.
    static auto& cache = *new std::map<std::vector<std::string>, CatalogTexts>;
    const std::vector<std::string> key{host::getHostServices().getHostRoot(), language, message.catalog};
    auto texts = cache.find(key);
    if (texts == cache.end())
        texts = cache.emplace(key, loadTexts(key[0], key[1], key[2])).first;
    const auto text = texts->second.find(message.id);
    return text == texts->second.end() ? nullptr : &text->second;
}

// The text with its blanks, %1% and so on, filled in. Any other percent sign stands for itself, and a blank without an
// argument stays as it is: a slip in a translation must not hide the error.
std::wstring fillIn(const std::wstring& text, const std::vector<std::wstring>& args) {
    std::wstring filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::wstring_view rest = std::wstring_view(text).substr(i);
        const bool isBlank =
            rest.size() > 2 && rest[0] == L'%' && rest[1] >= L'1' && rest[1] <= L'9' && rest[2] == L'%';
        if (isBlank) {
            const auto n = static_cast<std::size_t>(rest[1] - L'1');
            filled += n < args.size() ? std::wstring_view(args[n]) : rest.substr(0, 3);
            i += 2;
        } else {
            filled += rest[0];
            i += rest.substr(0, 2) == L"%%" ? 1 : 0;
        }
    }
    return filled;
}

std::wstring spellOut(const MsgID& message) {
    std::wstring text = fromUtf8(message.catalog + ":" + message.id);
    for (const std::wstring& arg : message.args)
        text += L" " + arg;
    return text;
}

} // namespace

std::wstring MessageCatalog::get_message(const MsgID& message, const std::locale& locale) {
    const std::string language = getLanguage(locale);
    const std::wstring* text = findText(language, message);
    if (!text && language != kSourceLanguage)
        text = findText(kSourceLanguage, message);
    return text ? fillIn(*text, message.args) : spellOut(message);
}

} // namespace vellox
