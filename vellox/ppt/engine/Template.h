/// @file
/// A template that many presentations are made from.
///
///     Template corporate(L"corporate.potx");             // read once
///     for (const std::wstring& region : regions) {
///         Presentation deck(region + L".pptx", corporate);
///         deck.add(L"Title Slide").replace(L"Title", region);
///         deck.close();
///     }

#ifndef VELLOX_PPT_ENGINE_TEMPLATE_H
#define VELLOX_PPT_ENGINE_TEMPLATE_H

#include <string>

#include "vellox/ppt/object/PPTObject.h"

namespace vellox::ppt {

class TemplateImpl;

/// A template as it was read, with all that its file holds in memory. Nothing that is made from it changes it,
/// and what becomes of the file meanwhile doesn't matter. Decks are the same as those that are made from the
/// path, and begin at once.
class VELLOX_API Template : public PPTObject {
public:
    /// @{ Reads a template: the default one, or the file at the path, which gets "pptx" if it has no extension.
    /// @throws pathNotFound, invalidFilePath, failedToDetermineFilename as Presentation
    /// @throws cannotOpenTemplate if the file can't be read, with the reason
    /// @throws cannotOpenFile if it is no package, or a damaged or encrypted one, with the reason and the path
    /// @throws invalidTemplate if it is a package, but no presentation to build on
    /// @throws partDOMBuildError if a part of it can't be read, with the part and the reason
    Template();
    explicit Template(const std::wstring& path);
    /// @}

    /// The file that was read, with "/" as separator.
    const std::wstring getPath() const;

protected:
    friend struct ObjectAccess;
    explicit Template(TemplateImpl* impl);
};

} // namespace vellox::ppt

#endif
