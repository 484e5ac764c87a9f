/// @file
/// Paths and files, as the library needs them. All paths are wide text; results have "/" between their
/// elements. What fails in the file system comes out as one fixed error for each operation.

#ifndef VELLOX_FOUNDATION_FILEUTILS_H
#define VELLOX_FOUNDATION_FILEUTILS_H

#include <string>

#include "vellox/Api.h"

namespace vellox {

/// Why a file of some name couldn't be kept everywhere.
/// What may be wrong with the name of a file. A DeviceName can be had, but not everywhere.
enum class FileNameFault { None, ReservedName, ReservedCharacter, DeviceName };

/// Class-level operations only. Those that give a bool give true when they return, but for unzip().
class VELLOX_API FileUtils {
public:
    /// `tail` joined to `base`, with a separator if one is needed; `base` alone if `tail` is empty.
    /// @throws failedToCombinePaths
    static std::wstring appendPath(const std::wstring& base, const std::wstring& tail);
    /// @{ The last element of a path, its extension without the dot, and what stands before that.
    /// @throws failedToDetermineFilename for a path that ends in a separator
    static std::wstring extractFilename(const std::wstring& path);
    static std::wstring getFileNameExtension(const std::wstring& path);
    static std::wstring getFileNameStem(const std::wstring& path);
    /// @}
    /// The path without its last element.
    /// @param canonical resolve links and dots as far as the file system can tell; the path needn't exist
    /// @throws FileSystem
    static std::wstring extractPath(const std::wstring& path, bool canonical);
    /// The path with "/" as separator; one that begins with two backslashes stays as it is.
    /// @throws FileSystem for a text that can't be a path, such as one with a NUL in it
    static std::wstring normalizePath(const std::wstring& path);
    /// The path with links and dots resolved, relative ones starting from the current folder; one that
    /// begins with two backslashes stays as it is.
    /// @throws PathNotFound if it doesn't exist
    /// @throws FileSystem if it can't be followed for another reason
    static std::wstring resolvePath(const std::wstring& path);

    /// Whether a file or folder stands at the path.
    /// @throws failedToQueryFileState
    static bool fileExists(const std::wstring& path);
    /// True only if the path exists and its owner may not write it.
    /// @throws fileSystemError
    static bool isReadOnlyFile(const std::wstring& path);
    /// Makes one folder; a folder that exists is left as it is.
    /// @throws failedToCreateDirectory, also if the parent doesn't exist
    static bool createDirectory(const std::wstring& path);
    /// Removes a folder and all that it holds. Failures come as the file system layer throws them.
    static bool removeDirectory(const std::wstring& path);
    /// Removes what stands at the path: a file, or a folder with all that it holds.
    /// @throws failedToCopyFile
    static bool removeFile(const std::wstring& path);
    /// Copies a file. Whatever stands at the target is removed first, a folder too, so that a failed copy
    /// leaves nothing there.
    /// @param makeWritable give the owner of the copy the right to write it
    /// @throws failedToCopyFile
    static bool copyFile(const std::wstring& source, const std::wstring& target, bool makeWritable);
    /// Puts a copy of a file in the place of another one, or where none is yet. What stands at the target, and
    /// what a link there leads to, stays whole until the copy is complete; a folder isn't replaced.
    /// @throws failedToCopyFile
    static void replaceFile(const std::wstring& source, const std::wstring& target);
    /// Copies a file into a folder, under its own name. Errors as extractFilename(), appendPath() and
    /// copyFile().
    static bool copyFileToFolder(const std::wstring& source, const std::wstring& folder, bool makeWritable);

    static std::wstring getCurrentDirectory();
    /// A path in the system's temporary folder at which nothing stands.
    static std::wstring getTempName();
    /// Makes a new temporary folder and gives its path.
    /// @throws cannotCreateTemporaryDirectory, failedToCreateDirectory
    static std::wstring makeTempDirectory();

    /// The media type that goes with a path's extension, in any case; empty for an extension that isn't
    /// known.
    /// @throws failedToDetermineFilename
    static std::wstring getContentType(const std::wstring& path);
    /// What is wrong with the name of a file. Only its stem is looked at: a ReservedName is "nul" at its start,
    /// or "con", "aux", "prn", "com1" to "com9", "lpt1" to "lpt9" anywhere in it, in any case, and a
    /// ReservedCharacter one of : < > " / | ? *
    static FileNameFault judgeFileName(const std::wstring& name);
    /// Whether Windows takes the name of a file for a device, which it does whatever comes behind the first dot: "con",
    /// "prn", "aux", "nul", "com1" to "com9", "lpt1" to "lpt9", in any case.
    static bool isDeviceName(const std::wstring& name);
    /// Raises what a fault is called; nothing for None and DeviceName.
    /// @throws reservedWindowsFileName, reservedWindowsFileNameChar with the stem of the name
    static void refuseFileName(FileNameFault fault, const std::wstring& name);
    /// Checks the name of a file that is to be made, so that a deck made here can be kept anywhere.
    /// @throws reservedWindowsFileName, reservedWindowsFileNameChar
    static void validateFileName(const std::wstring& name);

    /// Unpacks a ZIP archive into a folder.
    /// @return false if that failed
    static bool unzip(const std::wstring& zipPath, const std::wstring& folder);
    /// The folder below which the library's resources are installed.
    static std::wstring getHostRoot();
    /// The folder of an add-on; where the host knows none by that name, `name` below its add-on root.
    /// @throws failedToCombinePaths
    static std::wstring getAddondir(const std::wstring& name);
};

} // namespace vellox

#endif
