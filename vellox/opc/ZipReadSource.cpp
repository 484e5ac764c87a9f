#include "vellox/opc/ZipReadSource.h"

namespace opc {

ZipReadSource::ZipReadSource() {
    zip_error_init(&error_);
}

ZipReadSource::~ZipReadSource() {
    zip_error_fini(&error_);
}

zip_source_t* ZipReadSource::give(zip_t* archive, std::unique_ptr<ZipReadSource> source) {
    zip_source_t* made = zip_source_function(archive, &ZipReadSource::answer, source.get());
    if (made)
        static_cast<void>(source.release()); // libzip ends it with ZIP_SOURCE_FREE
    return made;
}

zip_int64_t ZipReadSource::fail(int zipCode, int systemCode) {
    zip_error_set(&error_, zipCode, systemCode);
    return -1;
}

zip_int64_t ZipReadSource::answer(void* source, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<ZipReadSource*>(source)->answer(data, length, command);
}

zip_int64_t ZipReadSource::answer(void* data, zip_uint64_t length, zip_source_cmd_t command) {
    switch (command) {
    case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_READABLE;
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&error_, data, length);
    case ZIP_SOURCE_FREE:
        delete this;
        return 0;
    case ZIP_SOURCE_STAT: {
        auto& facts = *static_cast<zip_stat_t*>(data);
        zip_stat_init(&facts);
        return stat(facts) == 0 ? static_cast<zip_int64_t>(sizeof facts) : -1;
    }
    case ZIP_SOURCE_OPEN:
        return open();
    case ZIP_SOURCE_READ:
        return read(static_cast<char*>(data), length);
    case ZIP_SOURCE_CLOSE:
        close();
        return 0;
    default:
        return fail(ZIP_ER_OPNOTSUPP, 0);
    }
}

} // namespace opc
