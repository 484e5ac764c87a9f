/// @file
/// The paths of a presentation, as callers give them.

#ifndef VELLOX_PPT_ENGINE_PRESENTATIONPATHS_H
#define VELLOX_PPT_ENGINE_PRESENTATIONPATHS_H

#include <string>

namespace vellox::ppt {

std::wstring getDefaultTemplatePath();

/// The path with the extension of presentations if it has none, and as it is if it has any.
std::wstring ensureExtension(const std::wstring& path);

/// The path in its normal form, if its folder is there.
/// @throws pathNotFound, invalidFilePath, failedToDetermineFilename
std::wstring normalizeAndCheck(const std::wstring& path);

} // namespace vellox::ppt

#endif
