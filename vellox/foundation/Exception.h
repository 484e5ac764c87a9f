/// @file
/// The plain exceptions: failures of the file system and of host values that carry no message identifier.
/// What a user is to read comes as an identified error instead, see IdentifiedException.h.

#ifndef VELLOX_FOUNDATION_EXCEPTION_H
#define VELLOX_FOUNDATION_EXCEPTION_H

#include <boost/system/error_code.hpp>
#include <stdexcept>
#include <string>

#include "vellox/Api.h"

namespace vellox {

/// The base of the plain exceptions.
class VELLOX_API Exception : public std::runtime_error {
public:
    Exception(const std::string& what, const boost::system::error_code& code);
    Exception(const Exception&);
    ~Exception() override;

    const boost::system::error_code& code() const { return code_; }

private:
    boost::system::error_code code_;
};

/// A path could not be worked with.
class VELLOX_API FileSystem : public Exception {
public:
    FileSystem(const std::string& what, const std::wstring& path, const boost::system::error_code& code);
    FileSystem(const FileSystem&);
    ~FileSystem() override;

    const std::wstring& getPathName() const { return pathName_; }

private:
    std::wstring pathName_;
};

/// A path doesn't exist.
class VELLOX_API PathNotFound : public FileSystem {
public:
    using FileSystem::FileSystem;
    PathNotFound(const PathNotFound&);
    ~PathNotFound() override;
};

/// A host array was asked for what it doesn't have.
class VELLOX_API HvArrayException : public Exception {
public:
    using Exception::Exception;
    HvArrayException(const HvArrayException&);
    ~HvArrayException() override;
};

} // namespace vellox

#endif
