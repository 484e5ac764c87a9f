/// @file
/// Runs that link to a place outside the presentation, or to a slide of it.

#ifndef VELLOX_PPT_TREE_EXTERNALLINK_H
#define VELLOX_PPT_TREE_EXTERNALLINK_H

#include <string>

#include "vellox/ppt/tree/Text.h"

namespace vellox::ppt {

class ExternalLinkImpl;
class Slide;

/// A run of text that is a link. It has no looks of its own beyond those of its text. A handle: copies share
/// one link.
class VELLOX_API ExternalLink : public Text {
public:
    ExternalLink();
    /// @param target where the link leads, such as "https://example.org/report"
    /// @param text what is shown
    ExternalLink(const std::wstring& target, const std::wstring& text);

    /// @param target the slide that the link leads to
    /// @param text what is shown
    ExternalLink(const Slide& target, const std::wstring& text);

    /// Empty for a link to a slide.
    const std::wstring& getTarget() const;
    /// The target isn't checked. An empty one makes a link that leads nowhere.
    void setTarget(const std::wstring& target);
    /// Leads to a slide of the same presentation, wherever that stands by the end. One that isn't there then makes a
    /// link that leads nowhere.
    void setTarget(const Slide& target);

protected:
    friend struct ObjectAccess;
    explicit ExternalLink(ExternalLinkImpl* impl);
    ExternalLinkImpl* pimpl();
    const ExternalLinkImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
