#include "vellox/foundation/Exception.h"

namespace vellox {

Exception::Exception(const std::string& what, const boost::system::error_code& code)
    : std::runtime_error(what),
      code_(code) {}
Exception::Exception(const Exception&) = default;
Exception::~Exception() = default;

FileSystem::FileSystem(const std::string& what, const std::wstring& path,
                       const boost::system::error_code& code)
    : Exception(what, code),
      pathName_(path) {}
FileSystem::FileSystem(const FileSystem&) = default;
FileSystem::~FileSystem() = default;

PathNotFound::PathNotFound(const PathNotFound&) = default;
PathNotFound::~PathNotFound() = default;

HvArrayException::HvArrayException(const HvArrayException&) = default;
HvArrayException::~HvArrayException() = default;

} // namespace vellox
