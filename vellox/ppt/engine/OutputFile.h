/// @file
/// The file that a presentation makes.

#ifndef VELLOX_PPT_ENGINE_OUTPUTFILE_H
#define VELLOX_PPT_ENGINE_OUTPUTFILE_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/host/services/FileSystem.h"

namespace vellox::ppt {

/// Where the template is put to the output path when a presentation is opened, what stands there at close may be
/// another file: the current folder has changed, or another presentation, or another process, has the same
/// output. Slides that are written into that would be lost, or would meet layouts that aren't theirs.
class OutputFile {
public:
    /// Takes note of the template, before anything is read from it or copied.
    OutputFile(const std::wstring& templatePath, const std::wstring& workingCopy);
    /// From a template in memory.
    explicit OutputFile(boost::shared_ptr<const std::string> bytes) : bytes_(std::move(bytes)) {}

    /// Puts the template to the output path.
    /// @throws hostfx::filesystem::FsysExceptionBase
    void put(const std::wstring& outputPath);
    /// Takes note of the output path and leaves what stands there.
    /// @throws hostfx::filesystem::FsysExceptionBase if no file can be made there
    void reserve(const std::wstring& outputPath);
    /// The template in memory.
    const boost::shared_ptr<const std::string>& getBytes() const { return bytes_; }
    /// Where the file stands, whatever the current folder has become.
    std::wstring getPath() const { return path_.toGeneric(); }
    /// Checks that the file is the one that was put there, or one of the same bytes, and may be written.
    /// @throws cannotOpenFile with what is wrong and the path
    void check() const;

private:
    bool isSame() const;

    boost::shared_ptr<const std::string> bytes_; // or where they are:
    hostfx::filesystem::Path templatePath_, workingCopy_;
    hostfx::filesystem::FileIdentity template_;
    hostfx::filesystem::Path path_;
    hostfx::filesystem::FileIdentity file_;
};

} // namespace vellox::ppt

#endif
