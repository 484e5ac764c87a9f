/// @file
/// Placeholders for pictures.

#ifndef VELLOX_PPT_TREE_PICTUREPLACEHOLDER_H
#define VELLOX_PPT_TREE_PICTUREPLACEHOLDER_H

#include "vellox/ppt/tree/BodyPlaceholder.h"
#include "vellox/ppt/tree/Picture.h"

namespace vellox::ppt {

class PicturePlaceholderImpl;

/// A placeholder for a picture, which takes text too. A handle: copies share one placeholder.
class VELLOX_API PicturePlaceholder : public BodyPlaceholder {
public:
    PicturePlaceholder();

    using BodyPlaceholder::replace;
    /// Puts a new picture, made from the given one, in this placeholder's place and under its name; the given
    /// one stays a free object and can be used again.
    /// @return a handle on the new picture, or the argument if the placeholder doesn't stand directly on a
    ///         slide, in which case nothing changes
    /// @throws placeholderWasReplacedByObject if the placeholder stands nowhere (any more)
    Picture replace(const Picture& picture);

    /// The node as a PicturePlaceholder, or an empty pointer.
    static boost::shared_ptr<PicturePlaceholder> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit PicturePlaceholder(PicturePlaceholderImpl* impl);
    PicturePlaceholderImpl* pimpl();
    const PicturePlaceholderImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
