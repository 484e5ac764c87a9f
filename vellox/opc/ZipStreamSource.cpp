#include "vellox/opc/ZipStreamSource.h"

#include "vellox/opc/ZipWindow.h"

#include <cerrno>
#include <memory>
#include <optional>

namespace opc {

namespace {

/// What libzip asks of a source, answered by a stream. One struct serves both directions: a command that
/// doesn't fit the direction is answered with an error.
struct StreamSource {
    std::istream* input = nullptr;
    std::optional<ZipWindow> output;
    zip_int64_t inputPlace = 0, streamPlace = -1, inputSize = -1;
    zip_error_t error{};

    ~StreamSource() { zip_error_fini(&error); }

    zip_int64_t fail(int zipCode, int systemCode) {
        zip_error_set(&error, zipCode, systemCode);
        return -1;
    }

    zip_int64_t read(void* target, zip_uint64_t count) {
        input->clear();
        if (inputPlace != streamPlace && !input->seekg(inputPlace))
            return fail(ZIP_ER_SEEK, EINVAL);
        input->read(static_cast<char*>(target), static_cast<std::streamsize>(count));
        if (input->bad())
            return fail(ZIP_ER_READ, EIO);
        streamPlace = inputPlace += input->gcount();
        return input->gcount();
    }

    // libzip asks again and again, which would cost calls to the system each time, and what is buffered.
    zip_int64_t getInputSize() {
        if (inputSize < 0) {
            input->clear();
            streamPlace = inputSize = input->seekg(0, std::ios::end).tellg();
        }
        return inputSize < 0 ? fail(ZIP_ER_SEEK, EINVAL) : inputSize;
    }

    zip_int64_t stat(zip_stat_t* result) {
        if (!input) // A new archive doesn't exist before it is written.
            return fail(ZIP_ER_READ, ENOENT);
        if (getInputSize() < 0)
            return -1;
        zip_stat_init(result);
        result->size = static_cast<zip_uint64_t>(getInputSize());
        result->valid = ZIP_STAT_SIZE;
        return sizeof *result;
    }

    zip_int64_t seek(void* arguments, zip_uint64_t length) {
        if (getInputSize() < 0)
            return -1;
        const zip_int64_t target = zip_source_seek_compute_offset(static_cast<zip_uint64_t>(inputPlace),
                                                                  static_cast<zip_uint64_t>(getInputSize()),
                                                                  arguments, length, &error);
        if (target < 0)
            return -1;
        inputPlace = target;
        return 0;
    }

    zip_int64_t seekWrite(void* arguments, zip_uint64_t length) {
        const zip_int64_t target =
            zip_source_seek_compute_offset(output->getPlace(), output->getSize(), arguments, length, &error);
        if (target < 0)
            return -1;
        output->setPlace(static_cast<zip_uint64_t>(target));
        return 0;
    }

    zip_int64_t write(const void* bytes, zip_uint64_t count) {
        errno = 0;
        if (!output->write(static_cast<const char*>(bytes), count))
            return failToWrite();
        return static_cast<zip_int64_t>(count);
    }

    // Streams don't promise to keep the system's code.
    zip_int64_t failToWrite() { return fail(ZIP_ER_WRITE, errno ? errno : EIO); }

    zip_int64_t answer(void* data, zip_uint64_t length, zip_source_cmd_t command) {
        constexpr zip_int64_t reading = ZIP_SOURCE_SUPPORTS_SEEKABLE;
        constexpr zip_int64_t writing = ZIP_SOURCE_SUPPORTS_WRITABLE;
        switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return input ? reading : writing;
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&error, data, length);
        case ZIP_SOURCE_FREE:
            delete this;
            return 0;
        case ZIP_SOURCE_STAT:
            return stat(static_cast<zip_stat_t*>(data));
        case ZIP_SOURCE_OPEN:
            inputPlace = 0;
            return input ? 0 : fail(ZIP_ER_OPEN, ENOENT);
        case ZIP_SOURCE_READ:
            return read(data, length);
        case ZIP_SOURCE_SEEK:
            return seek(data, length);
        case ZIP_SOURCE_TELL:
            return inputPlace;
        case ZIP_SOURCE_WRITE:
            return write(data, length);
        case ZIP_SOURCE_SEEK_WRITE:
            return seekWrite(data, length);
        case ZIP_SOURCE_TELL_WRITE:
            return static_cast<zip_int64_t>(output->getPlace());
        case ZIP_SOURCE_COMMIT_WRITE:
            errno = 0;
            return output->flush() ? 0 : failToWrite();
        case ZIP_SOURCE_BEGIN_WRITE:
        case ZIP_SOURCE_ROLLBACK_WRITE:
        case ZIP_SOURCE_REMOVE:
        case ZIP_SOURCE_CLOSE:
            return 0;
        default:
            return fail(ZIP_ER_OPNOTSUPP, 0);
        }
    }
};

zip_int64_t answer(void* source, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<StreamSource*>(source)->answer(data, length, command);
}

zip_source_t* makeSource(std::unique_ptr<StreamSource> stream, zip_error_t* error) {
    zip_error_init(&stream->error);
    zip_source_t* source = zip_source_function_create(answer, stream.get(), error);
    if (source)
        static_cast<void>(stream.release()); // libzip ends it with ZIP_SOURCE_FREE
    return source;
}

} // namespace

zip_source_t* makeReadSource(std::istream& stream, zip_error_t* error) {
    auto source = std::make_unique<StreamSource>();
    source->input = &stream;
    stream.clear();
    return makeSource(std::move(source), error);
}

zip_source_t* makeWriteSource(std::ostream& stream, zip_error_t* error) {
    auto source = std::make_unique<StreamSource>();
    source->output.emplace(stream);
    return makeSource(std::move(source), error);
}

} // namespace opc
