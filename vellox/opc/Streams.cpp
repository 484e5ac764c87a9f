#include "vellox/opc/Streams.h"

#include "vellox/host/services/Utf8.h"
#include "vellox/opc/Exception.h"

#include <boost/make_shared.hpp>
#include <filesystem>
#include <fstream>

namespace opc {

InputStream::~InputStream() = default;
OutputStream::~OutputStream() = default;
FileSystemOps::~FileSystemOps() = default;

StdIStreamAdaptor::StdIStreamAdaptor(boost::shared_ptr<std::istream> stream) : stream_(std::move(stream)) {}

std::size_t StdIStreamAdaptor::read(unsigned char* target, std::size_t count) {
    stream_->read(reinterpret_cast<char*>(target), static_cast<std::streamsize>(count));
    return static_cast<std::size_t>(stream_->gcount());
}

bool StdIStreamAdaptor::isDone() const {
    return !stream_->good();
}

void StdIStreamAdaptor::close() {
    if (auto* file = dynamic_cast<std::ifstream*>(stream_.get()))
        file->close();
}

StdOStreamAdaptor::StdOStreamAdaptor(boost::shared_ptr<std::ostream> stream) : stream_(std::move(stream)) {}

void StdOStreamAdaptor::write(const unsigned char* bytes, std::size_t count) {
    if (!stream_->write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(count)))
        throw Exception("the output can't be written");
}

void StdOStreamAdaptor::flush() {
    if (!stream_->flush())
        throw Exception("the output can't be written");
}

bool StdOStreamAdaptor::isDone() const {
    return !stream_->good();
}

void StdOStreamAdaptor::close() {
    flush();
    if (auto* file = dynamic_cast<std::ofstream*>(stream_.get()))
        file->close();
}

void StringOutputStream::write(const unsigned char* bytes, std::size_t count) {
    target_.append(reinterpret_cast<const char*>(bytes), count);
}

namespace {

// The bits of a mode are those of the C library's streams on the systems that the values come from; this
// platform numbers its own differently.
std::ios::openmode toOpenMode(int mode) {
    std::ios::openmode result{};
    if (mode & 1)
        result |= std::ios::in;
    if (mode & 2)
        result |= std::ios::out;
    if (mode & 32)
        result |= std::ios::binary;
    return result;
}

} // namespace

void refusePipe(const std::string& path) {
    std::error_code ignored;
    if (std::filesystem::is_other(path, ignored))
        throw Exception("it is no regular file");
}

boost::shared_ptr<std::istream> LocalFileSystemOps::createInputStream(const std::wstring& path, int mode) {
    refusePipe(vellox::toUtf8(path));
    return boost::make_shared<std::ifstream>(vellox::toUtf8(path), toOpenMode(mode));
}

boost::shared_ptr<std::ostream> LocalFileSystemOps::createOutputStream(const std::wstring& path, int mode) {
    return boost::make_shared<std::ofstream>(vellox::toUtf8(path), toOpenMode(mode));
}

} // namespace opc
