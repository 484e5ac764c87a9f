/// @file
/// A template that many presentations are made from.
///
///     const Template corporate = Template::forOffice(L"corporate.potx"); // read once
///     for (const std::wstring& region : regions) {
///         auto deck = Presentation::forOffice(region + L".pptx", corporate);
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
/// path, and begin at once. It serves presentations of every profile: the first one of a profile other than that which
/// the template was made for takes a second reading.
class VELLOX_API Template : public PPTObject {
public:
    /// @{ Reads a template: the default one, or the file at the path, which gets "pptx" if it has no extension.
    /// @throws pathNotFound, invalidFilePath, failedToDetermineFilename as Presentation
    /// The profile is that of the presentations to come, "classic" or "office".
    /// @throws cannotOpenTemplate if the file can't be read, or has more than 2 GiB, with the reason
    /// @throws cannotOpenFile if it is no package, or a damaged or encrypted one, with the reason and the path
    /// @throws invalidTemplate if it is a package, but no presentation to build on
    /// @throws partDOMBuildError if a part of it can't be read, with the part and the reason
    /// @throws invalidPropertyValue for another profile
    Template();
    explicit Template(const std::wstring& path);
    Template(const std::wstring& path, const std::wstring& profile);
    /// @}
    /// For presentations of the profile "office".
    /// @throws as the constructors
    static Template forOffice(const std::wstring& path);

    /// The file that was read, with "/" as separator.
    const std::wstring getPath() const;

protected:
    friend struct ObjectAccess;
    explicit Template(TemplateImpl* impl);
};

} // namespace vellox::ppt

#endif
