#include "vellox/opc/Deflater.h"

#include <algorithm>
#include <array>
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

/// What libzip asks of a source, which it opens once; it asks for the checksum when it has read all.
class DeflatedBytes {
public:
    DeflatedBytes(libdeflate_compressor* compressor, const std::string& bytes)
        : compressor_(compressor),
          bytes_(bytes) {
        zip_error_init(&error_);
    }
    DeflatedBytes(const DeflatedBytes&) = delete;
    DeflatedBytes& operator=(const DeflatedBytes&) = delete;
    ~DeflatedBytes() { zip_error_fini(&error_); }

    zip_int64_t answer(void* data, zip_uint64_t length, zip_source_cmd_t command) {
        switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return ZIP_SOURCE_SUPPORTS_READABLE;
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&error_, data, length);
        case ZIP_SOURCE_FREE:
            delete this;
            return 0;
        case ZIP_SOURCE_STAT:
            return stat(*static_cast<zip_stat_t*>(data));
        case ZIP_SOURCE_OPEN:
            return open();
        case ZIP_SOURCE_READ:
            return read(static_cast<char*>(data), length);
        case ZIP_SOURCE_CLOSE:
            deflated_.reset();
            return 0;
        default:
            zip_error_set(&error_, ZIP_ER_OPNOTSUPP, 0);
            return -1;
        }
    }

private:
    zip_int64_t stat(zip_stat_t& facts) const {
        zip_stat_init(&facts);
        facts.size = bytes_.size();
        facts.comp_method = ZIP_CM_DEFLATE;
        facts.valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_METHOD;
        if (isDeflated_) {
            facts.comp_size = deflatedSize_;
            facts.crc = crc_;
            facts.valid |= ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC;
        }
        return sizeof facts;
    }

    zip_int64_t open() {
        const std::size_t bound = libdeflate_deflate_compress_bound(compressor_, bytes_.size());
        deflated_.reset(new (std::nothrow) char[bound]); // an exception mustn't pass through libzip
        if (!deflated_) {
            zip_error_set(&error_, ZIP_ER_MEMORY, 0);
            return -1;
        }
        deflatedSize_ =
            libdeflate_deflate_compress(compressor_, bytes_.data(), bytes_.size(), deflated_.get(), bound);
        crc_ = libdeflate_crc32(0, bytes_.data(), bytes_.size());
        isDeflated_ = true;
        position_ = 0;
        return 0;
    }

    zip_int64_t read(char* target, zip_uint64_t count) {
        const std::size_t taken = std::min<std::size_t>(count, deflatedSize_ - position_);
        std::copy_n(deflated_.get() + position_, taken, target);
        position_ += taken;
        return static_cast<zip_int64_t>(taken);
    }

    libdeflate_compressor* compressor_;
    const std::string& bytes_;
    std::unique_ptr<char[]> deflated_;
    std::size_t deflatedSize_ = 0;
    std::size_t position_ = 0;
    zip_uint32_t crc_ = 0;
    bool isDeflated_ = false;
    zip_error_t error_{};
};

zip_int64_t answer(void* source, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<DeflatedBytes*>(source)->answer(data, length, command);
}

} // namespace

Deflater::Deflater(Compression compression)
    : compression_(compression),
      compressor_(libdeflate_alloc_compressor(getLevels(compression).libdeflate),
                  libdeflate_free_compressor) {
    if (!compressor_)
        throw std::bad_alloc();
}

zip_source_t* Deflater::makeSource(zip_t* archive, const std::string& bytes) const {
    auto source = std::make_unique<DeflatedBytes>(compressor_.get(), bytes);
    zip_source_t* made = zip_source_function(archive, answer, source.get());
    if (made)
        static_cast<void>(source.release()); // libzip ends it with ZIP_SOURCE_FREE
    return made;
}

zip_uint32_t Deflater::getZlibLevel() const {
    return getLevels(compression_).zlib;
}

} // namespace opc
