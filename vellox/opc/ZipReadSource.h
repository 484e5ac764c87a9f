/// @file
/// What becomes an entry of an archive, as libzip asks for it.

#ifndef VELLOX_OPC_ZIPREADSOURCE_H
#define VELLOX_OPC_ZIPREADSOURCE_H

#include <zip.h>

#include <memory>

namespace opc {

/// A source that is read from its start to its end, maybe several times. libzip is no place for exceptions to pass
/// through: what fails says so by fail().
class ZipReadSource {
public:
    ZipReadSource();
    ZipReadSource(const ZipReadSource&) = delete;
    ZipReadSource& operator=(const ZipReadSource&) = delete;
    virtual ~ZipReadSource();

    /// Hands a source to libzip, which ends it.
    /// @return a null pointer with the error in the archive if there is no memory left; the source has ended then
    static zip_source_t* give(zip_t* archive, std::unique_ptr<ZipReadSource> source);

protected:
    /// What is known of the content ahead of reading it.
    /// @return 0, or what fail() gives
    virtual zip_int64_t stat(zip_stat_t& facts) = 0;
    /// Goes to the start.
    /// @return 0, or what fail() gives
    virtual zip_int64_t open() = 0;
    /// @return how many bytes there were, 0 at the end, or what fail() gives
    virtual zip_int64_t read(char* target, zip_uint64_t count) = 0;
    virtual void close() {}

    zip_int64_t fail(int zipCode, int systemCode);

private:
    static zip_int64_t answer(void* source, void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t answer(void* data, zip_uint64_t length, zip_source_cmd_t command);

    zip_error_t error_{};
};

} // namespace opc

#endif
