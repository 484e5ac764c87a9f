#include "vellox/foundation/MessageCatalog.h"

#include "vellox/foundation/CatalogFile.h"
#include "vellox/host/services/HostServices.h"
#include "vellox/host/services/Utf8.h"

#include <boost/regex.hpp>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
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
std::locale loadTexts(const std::string& root, const std::string& language, const std::string& catalog) {
    const std::string path =
        root + "/resources/messages/" + language + "/LC_MESSAGES/" + toFileName(catalog) + ".mo";
    std::ifstream file(path, std::ios::binary);
    try {
        return readCatalogFile({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
    } catch (const std::runtime_error&) {
        return std::locale::classic();
    }
}

const wchar_t* findText(const std::string& language, const MsgID& message) {
    // Read once for each language and catalog, and never ended: objects that die in the last moments of the
    // process still have something to say.
    static auto& cache = *new std::map<std::vector<std::string>, std::locale>;
    const std::vector<std::string> key{host::getHostServices().getHostRoot(), language, message.catalog};
    auto texts = cache.find(key);
    if (texts == cache.end())
        texts = cache.emplace(key, loadTexts(key[0], key[1], key[2])).first;
    if (!std::has_facet<CatalogTexts>(texts->second))
        return nullptr;
    return std::use_facet<CatalogTexts>(texts->second).get(0, nullptr, fromUtf8(message.id).c_str());
}

// The text with its blanks, %1% and so on, filled in. Any other percent sign stands for itself, and a blank without an
// argument stays as it is: a slip in a translation must not hide the error.
std::wstring fillIn(const std::wstring& text, const std::vector<std::wstring>& args) {
    static const boost::wregex& blank = *new const boost::wregex(L"%(%|([1-9])%)"); // for late messages
    const auto fill = [&](const boost::wsmatch& found) {
        if (!found[2].matched)
            return std::wstring(L"%");
        const auto n = static_cast<std::size_t>(*found[2].first - L'1');
        return n < args.size() ? args[n] : found.str();
    };
    return boost::regex_replace(text, blank, fill);
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
    const wchar_t* text = findText(language, message);
    if (!text && language != kSourceLanguage)
        text = findText(kSourceLanguage, message);
    return text ? fillIn(text, message.args) : spellOut(message);
}

} // namespace vellox
