/// @file
/// Pictures.

#ifndef VELLOX_PPT_TREE_PICTURE_H
#define VELLOX_PPT_TREE_PICTURE_H

#include <string>

#include "vellox/ppt/tree/Shape.h"

namespace vellox::ppt {

class PictureImpl;

/// A shape that shows an image file. Only the size is read from the file at first; its bytes are copied into
/// the presentation when that is closed. A handle: copies share one picture.
class VELLOX_API Picture : public Shape {
public:
    /// Without a file and without a size.
    Picture();
    /// As setPath().
    explicit Picture(const std::wstring& path);

    /// As it was given.
    const std::wstring& getPath() const;
    /// Sets the file, and with it width and height to the image's own size in pixels; set another size
    /// afterwards. A file that can't be read counts as 300 by 300 pixels.
    /// @throws failedToDetermineFilename for a path that ends in a separator
    void setPath(const std::wstring& path);

    using Shape::replace;
    /// Puts a new picture, made from the given one, in this picture's place and under its name. The new one
    /// has this picture's position, the given one's file, and its size where it has one set.
    /// @return a handle on the new picture, or the argument if this picture doesn't stand directly on a
    ///         slide, in which case nothing changes
    /// @throws pictureCannotBeReplaced if this picture stands nowhere (any more)
    Picture replace(const Picture& picture);

    /// The node as a Picture, or an empty pointer.
    static boost::shared_ptr<Picture> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit Picture(PictureImpl* impl);
    PictureImpl* pimpl();
    const PictureImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
