#include "vellox/opc/ZipFileSource.h"

#include "vellox/opc/ZipReadSource.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <memory>
#include <new>

namespace opc {

namespace {

class FileSource : public ZipReadSource {
public:
    explicit FileSource(std::string path) : path_(std::move(path)) {}

private:
    struct Open {
        std::ifstream file;
        std::array<char, 128 << 10> block;
        std::size_t position = 0, size = 0;
    };

    zip_int64_t stat(zip_stat_t& facts) override {
        std::error_code failure;
        facts.size = std::filesystem::file_size(path_, failure);
        facts.valid = ZIP_STAT_SIZE;
        return failure ? fail(ZIP_ER_OPEN, failure.value()) : 0;
    }

    zip_int64_t open() override {
        open_.reset(new (std::nothrow) Open); // an exception mustn't pass through libzip
        if (!open_)
            return fail(ZIP_ER_MEMORY, 0);
        errno = 0;
        open_->file.open(path_, std::ios::binary);
        return open_->file ? 0 : fail(ZIP_ER_OPEN, errno ? errno : EIO);
    }

    zip_int64_t read(char* target, zip_uint64_t count) override {
        if (open_->position == open_->size && !refill())
            return -1;
        const std::size_t taken = std::min<std::size_t>(count, open_->size - open_->position);
        std::copy_n(open_->block.data() + open_->position, taken, target);
        open_->position += taken;
        return static_cast<zip_int64_t>(taken);
    }

    void close() override { open_.reset(); }

    // Streams don't promise to keep the system's code.
    bool refill() {
        errno = 0;
        open_->file.read(open_->block.data(), static_cast<std::streamsize>(open_->block.size()));
        open_->position = 0;
        open_->size = static_cast<std::size_t>(open_->file.gcount());
        return !open_->file.bad() || fail(ZIP_ER_READ, errno ? errno : EIO) == 0;
    }

    std::string path_;
    std::unique_ptr<Open> open_;
};

} // namespace

zip_source_t* makeFileSource(zip_t* archive, const std::string& path) {
    return ZipReadSource::give(archive, std::make_unique<FileSource>(path));
}

} // namespace opc
