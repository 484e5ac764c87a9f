#include "vellox/opc/Deflater.h"

#include "vellox/opc/Exception.h"
#include "vellox/opc/ZipReadSource.h"

#include <algorithm>
#include <array>
#include <boost/make_shared.hpp>
#include <new>

namespace opc {

namespace {

struct Levels {
    int libdeflate;
    zip_uint32_t zlib;
};

// Indexed by Compression.
constexpr std::array<Levels, 3> kLevels{{{1, 1}, {6, 6}, {10, 9}}};

const Levels& getLevels(Compression compression) {
    return kLevels[static_cast<std::size_t>(compression)];
}

// What is remembered, and of how many.
constexpr std::size_t kSmallContent = 1 << 10;
constexpr std::size_t kMostSmall = 64;

class DeflatedBytes : public ZipReadSource {
public:
    explicit DeflatedBytes(boost::shared_ptr<const Deflated> content) : content_(std::move(content)) {}

private:
    zip_int64_t stat(zip_stat_t& facts) override {
        facts.size = content_->fullSize;
        facts.comp_method = ZIP_CM_DEFLATE;
        facts.comp_size = content_->bytes.size();
        facts.crc = content_->checksum;
        facts.valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC;
        return 0;
    }

    zip_int64_t open() override {
        position_ = 0;
        return 0;
    }

    zip_int64_t read(char* target, zip_uint64_t count) override {
        const std::size_t taken = std::min<std::size_t>(count, content_->bytes.size() - position_);
        std::copy_n(content_->bytes.data() + position_, taken, target);
        position_ += taken;
        return static_cast<zip_int64_t>(taken);
    }

    boost::shared_ptr<const Deflated> content_;
    std::size_t position_ = 0;
};

} // namespace

Deflater::Deflater(Compression compression)
    : compression_(compression),
      compressor_(libdeflate_alloc_compressor(getLevels(compression).libdeflate),
                  libdeflate_free_compressor) {
    if (!compressor_)
        throw std::bad_alloc();
}

std::string Deflated::inflate() const {
    const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)> decompressor(
        libdeflate_alloc_decompressor(), libdeflate_free_decompressor);
    std::string content(fullSize, '\0');
    if (!decompressor ||
        libdeflate_deflate_decompress(decompressor.get(), bytes.data(), bytes.size(), content.data(),
                                      content.size(), nullptr) != LIBDEFLATE_SUCCESS)
        throw Exception("what was written can't be read back");
    return content;
}

boost::shared_ptr<const Deflated> Deflater::deflate(const std::string& content) {
    if (content.size() > kSmallContent)
        return makeDeflated(content);
    if (small_.size() >= kMostSmall)
        small_.clear();
    boost::shared_ptr<const Deflated>& known = small_[content];
    if (!known)
        known = makeDeflated(content);
    return known;
}

boost::shared_ptr<const Deflated> Deflater::makeDeflated(const std::string& content) {
    const auto made = boost::make_shared<Deflated>();
    const std::size_t bound = libdeflate_deflate_compress_bound(compressor_.get(), content.size());
    if (space_.size() < bound)
        space_.resize(bound);
    made->bytes.assign(space_, 0,
                       libdeflate_deflate_compress(compressor_.get(), content.data(), content.size(),
                                                   space_.data(), space_.size()));
    made->fullSize = content.size();
    made->checksum = libdeflate_crc32(0, content.data(), content.size());
    return made;
}

zip_source_t* Deflater::makeSource(zip_t* archive, boost::shared_ptr<const Deflated> content) {
    return ZipReadSource::give(archive, std::make_unique<DeflatedBytes>(std::move(content)));
}

zip_uint32_t Deflater::getZlibLevel() const {
    return getLevels(compression_).zlib;
}

} // namespace opc
