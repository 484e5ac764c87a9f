#include "vellox/foundation/CatalogFile.h"

#include <boost/locale/gnu_gettext.hpp>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vellox {

namespace {

namespace gettext = boost::locale::gnu_gettext;

// The places of the file's head.
constexpr std::uint64_t kMagicAt = 0, kCountAt = 8, kKeyTableAt = 12, kTextTableAt = 16;
constexpr std::uint64_t kRowSize = 8;
constexpr std::uint32_t kMagic = 0x950412de;
// The rule for plural forms is parsed by a recursion that nothing bounds; that of Arabic has 130 characters.
constexpr std::size_t kLongestPluralRule = 500;

class Check {
public:
    explicit Check(const std::vector<char>& bytes)
        : bytes_(bytes),
          isLittleEndian_(readNumber(kMagicAt, true) == kMagic) {
        if (readNumber(kMagicAt, isLittleEndian_) != kMagic)
            throw std::runtime_error("it is no message catalog");
    }

    void run() {
        const std::uint64_t count = get(kCountAt);
        if (count == 0) // the reader takes a first text for granted
            throw std::runtime_error("it has no texts");
        for (const std::uint64_t table : {get(kKeyTableAt), get(kTextTableAt)})
            for (std::uint64_t i = 0; i < count; ++i)
                checkString(table + i * kRowSize);
        checkPluralRule(getString(get(kTextTableAt)));
    }

private:
    std::uint32_t readNumber(std::uint64_t at, bool isLittleEndian) const {
        if (at + 4 > bytes_.size())
            throw std::runtime_error("it ends too early");
        std::uint32_t number = 0;
        for (unsigned i = 0; i < 4; ++i) {
            const auto byte = static_cast<unsigned char>(bytes_[static_cast<std::size_t>(at) + i]);
            number |= std::uint32_t(byte) << 8 * (isLittleEndian ? i : 3 - i);
        }
        return number;
    }

    std::uint64_t get(std::uint64_t at) const { return readNumber(at, isLittleEndian_); }

    std::string_view getString(std::uint64_t row) const {
        return {bytes_.data() + get(row + 4), static_cast<std::size_t>(get(row))};
    }

    // A zero follows a string, which its length doesn't count.
    void checkString(std::uint64_t row) {
        const std::uint64_t length = get(row), end = get(row + 4) + length;
        if (end >= bytes_.size() || bytes_[static_cast<std::size_t>(end)] != '\0')
            throw std::runtime_error("a string leads out of it");
        // Strings that share their bytes would make much of a small file.
        total_ += length + 1;
        if (total_ > bytes_.size())
            throw std::runtime_error("its strings overlap");
    }

    static void checkPluralRule(std::string_view head) {
        const std::size_t rule = head.find("plural=");
        if (rule != head.npos &&
            head.substr(rule, head.find_first_of(";\r\n", rule) - rule).size() > kLongestPluralRule)
            throw std::runtime_error("its rule for plural forms is too long");
    }

    const std::vector<char>& bytes_;
    bool isLittleEndian_;
    std::uint64_t total_ = 0;
};

} // namespace

std::locale readCatalogFile(const std::vector<char>& bytes) {
    if (!bytes.empty())
        Check(bytes).run();
    gettext::messages_info info;
    info.language = "any"; // where the file lies has been settled
    info.paths = {""};
    info.domains = {gettext::messages_info::domain("catalog")};
    info.callback = [&](const std::string&, const std::string&) { return bytes; };
    return std::locale(std::locale::classic(), gettext::create_messages_facet<wchar_t>(info));
}

} // namespace vellox
