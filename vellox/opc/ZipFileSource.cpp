#include "vellox/opc/ZipFileSource.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <memory>
#include <new>

namespace opc {

namespace {

class FileSource {
public:
    explicit FileSource(std::string path) : path_(std::move(path)) { zip_error_init(&error_); }
    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;
    ~FileSource() { zip_error_fini(&error_); }

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
            open_.reset();
            return 0;
        default:
            return fail(ZIP_ER_OPNOTSUPP, 0);
        }
    }

private:
    struct Open {
        std::ifstream file;
        std::array<char, 128 << 10> block;
        std::size_t position = 0, size = 0;
    };

    zip_int64_t fail(int zipCode, int systemCode) {
        zip_error_set(&error_, zipCode, systemCode);
        return -1;
    }

    zip_int64_t stat(zip_stat_t& facts) {
        std::error_code failure;
        zip_stat_init(&facts);
        facts.size = std::filesystem::file_size(path_, failure);
        facts.valid = ZIP_STAT_SIZE;
        return failure ? fail(ZIP_ER_OPEN, failure.value()) : static_cast<zip_int64_t>(sizeof facts);
    }

    zip_int64_t open() {
        open_.reset(new (std::nothrow) Open); // an exception mustn't pass through libzip
        if (!open_)
            return fail(ZIP_ER_MEMORY, 0);
        errno = 0;
        open_->file.open(path_, std::ios::binary);
        return open_->file ? 0 : fail(ZIP_ER_OPEN, errno ? errno : EIO);
    }

    zip_int64_t read(char* target, zip_uint64_t count) {
        if (open_->position == open_->size && !refill())
            return -1;
        const std::size_t taken = std::min<std::size_t>(count, open_->size - open_->position);
        std::copy_n(open_->block.data() + open_->position, taken, target);
        open_->position += taken;
        return static_cast<zip_int64_t>(taken);
    }

    // Streams don't promise to keep the system's code.
    bool refill() {
        errno = 0;
        open_->file.read(open_->block.data(), open_->block.size());
        open_->position = 0;
        open_->size = static_cast<std::size_t>(open_->file.gcount());
        return !open_->file.bad() || fail(ZIP_ER_READ, errno ? errno : EIO) == 0;
    }

    std::string path_;
    std::unique_ptr<Open> open_;
    zip_error_t error_{};
};

zip_int64_t answer(void* source, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<FileSource*>(source)->answer(data, length, command);
}

} // namespace

zip_source_t* makeFileSource(zip_t* archive, const std::string& path) {
    auto source = std::make_unique<FileSource>(path);
    zip_source_t* made = zip_source_function(archive, answer, source.get());
    if (made)
        static_cast<void>(source.release()); // libzip ends it with ZIP_SOURCE_FREE
    return made;
}

} // namespace opc
