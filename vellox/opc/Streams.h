/// @file
/// Byte streams of the package layer, and the adaptors that make them of standard streams.

#ifndef VELLOX_OPC_STREAMS_H
#define VELLOX_OPC_STREAMS_H

#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <istream>
#include <ostream>
#include <string>

namespace opc {

/// Bytes to be read, once, from the first to the last.
class InputStream {
public:
    virtual ~InputStream();
    virtual void open() {}
    /// Copies at most `count` bytes.
    /// @return the number of bytes copied, 0 at the end
    /// @throws opc::Exception if the bytes can't be had, such as for a damaged archive entry
    virtual std::size_t read(unsigned char* target, std::size_t count) = 0;
    virtual bool isDone() const = 0;
    virtual void close() {}
};

/// A place for bytes.
class OutputStream {
public:
    virtual ~OutputStream();
    virtual void open() {}
    virtual void write(const unsigned char* bytes, std::size_t count) = 0;
    virtual void flush() {}
    virtual bool isDone() const { return false; }
    virtual void close() {}
};

/// A standard input stream as the layer wants it.
class StdIStreamAdaptor : public InputStream {
public:
    explicit StdIStreamAdaptor(boost::shared_ptr<std::istream> stream);
    std::size_t read(unsigned char* target, std::size_t count) override;
    bool isDone() const override;
    void close() override;
    std::istream& getStream() { return *stream_; }

private:
    boost::shared_ptr<std::istream> stream_;
};

/// A standard output stream as the layer wants it.
class StdOStreamAdaptor : public OutputStream {
public:
    explicit StdOStreamAdaptor(boost::shared_ptr<std::ostream> stream);
    /// @throws opc::Exception if the stream takes no more
    void write(const unsigned char* bytes, std::size_t count) override;
    void flush() override;
    bool isDone() const override;
    void close() override;
    std::ostream& getStream() { return *stream_; }

private:
    boost::shared_ptr<std::ostream> stream_;
};

/// Collects what is written in a string that outlives it.
class StringOutputStream : public OutputStream {
public:
    explicit StringOutputStream(std::string& target) : target_(target) {}
    void write(const unsigned char* bytes, std::size_t count) override;

private:
    std::string& target_;
};

/// Makes streams on files.
class FileSystemOps {
public:
    virtual ~FileSystemOps();
    /// @{ A stream whose state tells whether the file could be opened. The mode is the usual set of bits
    /// of a standard stream.
    virtual boost::shared_ptr<std::istream> createInputStream(const std::wstring& path, int mode) = 0;
    virtual boost::shared_ptr<std::ostream> createOutputStream(const std::wstring& path, int mode) = 0;
    /// @}
};

/// On the files of this machine.
class LocalFileSystemOps : public FileSystemOps {
public:
    boost::shared_ptr<std::istream> createInputStream(const std::wstring& path, int mode) override;
    boost::shared_ptr<std::ostream> createOutputStream(const std::wstring& path, int mode) override;
};

/// The modes in use: for reading and for writing, both binary.
constexpr int kReadBinary = 33;
constexpr int kWriteBinary = 34;

/// Of a pipe or a device, which might never answer, nothing is read. A file that isn't there is another's fault to tell.
/// @throws opc::Exception
void refusePipe(const std::string& path);

} // namespace opc

#endif
