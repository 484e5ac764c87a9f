#include "vellox/foundation/CatalogFile.h"

#include "vellox/host/services/Utf8.h"

#include <boost/algorithm/string/predicate.hpp>
#include <cstdint>
#include <iconv.h>
#include <stdexcept>
#include <string_view>

namespace vellox {

namespace {

// The places of the file's head.
constexpr std::uint64_t kMagicAt = 0, kCountAt = 8, kKeyTableAt = 12, kTextTableAt = 16;
constexpr std::uint64_t kRowSize = 8;
constexpr std::uint32_t kMagic = 0x950412de;

/// From the encoding of a catalog, which nearly always is UTF-8.
class Decoder {
public:
    explicit Decoder(const std::string& charset) {
        if (charset.empty() || boost::algorithm::iequals(charset, "UTF-8"))
            return;
        conversion_ = iconv_open("WCHAR_T", charset.c_str());
        if (conversion_ == kNone)
            throw std::runtime_error("its encoding is unknown");
    }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;
    ~Decoder() {
        if (conversion_ != kNone)
            iconv_close(conversion_);
    }

    std::wstring decode(std::string bytes) const {
        if (conversion_ == kNone)
            return fromUtf8(bytes);
        std::wstring text(bytes.size(), L'\0'); // no character takes less than a byte
        char *from = bytes.data(), *to = reinterpret_cast<char*>(text.data());
        std::size_t left = bytes.size(), room = text.size() * sizeof(wchar_t);
        if (iconv(conversion_, &from, &left, &to, &room) == static_cast<std::size_t>(-1))
            throw std::runtime_error("a text isn't in its encoding");
        text.resize(text.size() - room / sizeof(wchar_t));
        return text;
    }

private:
    inline static const iconv_t kNone = reinterpret_cast<iconv_t>(-1); // as iconv has it

    iconv_t conversion_ = kNone;
};

class Reader {
public:
    explicit Reader(const std::vector<char>& bytes)
        : bytes_(bytes),
          isLittleEndian_(readNumber(kMagicAt, true) == kMagic) {
        if (readNumber(kMagicAt, isLittleEndian_) != kMagic)
            throw std::runtime_error("it is no message catalog");
    }

    CatalogTexts read() {
        CatalogTexts texts;
        const std::uint64_t count = get(kCountAt), keys = get(kKeyTableAt), values = get(kTextTableAt);
        // The first text, which has an empty key, tells of the others.
        const Decoder decoder(count > 0 ? findCharset(getString(values)) : std::string());
        total_ = 0;
        for (std::uint64_t i = 0; i < count; ++i) {
            const std::string key = getString(keys + i * kRowSize);
            texts.emplace(key, decoder.decode(getString(values + i * kRowSize)));
        }
        return texts;
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

    // A zero follows a string, which its length doesn't count. Forms for more than one are parted by zeros; the first
    // is what is asked for.
    std::string getString(std::uint64_t row) {
        const std::uint64_t length = get(row), start = get(row + 4), end = start + length;
        if (end >= bytes_.size() || bytes_[static_cast<std::size_t>(end)] != '\0')
            throw std::runtime_error("a string leads out of it");
        // Strings that share their bytes would make much of a small file.
        total_ += length + 1;
        if (total_ > bytes_.size())
            throw std::runtime_error("its strings overlap");
        return bytes_.data() + start;
    }

    static std::string findCharset(std::string_view head) {
        constexpr std::string_view kKey = "charset=";
        const std::size_t start = head.find(kKey);
        if (start == head.npos)
            return {};
        head.remove_prefix(start + kKey.size());
        return std::string(head.substr(0, head.find_first_of(" ;\r\n")));
    }

    const std::vector<char>& bytes_;
    bool isLittleEndian_;
    std::uint64_t total_ = 0;
};

} // namespace

CatalogTexts readCatalogFile(const std::vector<char>& bytes) {
    return bytes.empty() ? CatalogTexts() : Reader(bytes).read();
}

} // namespace vellox
