/// @file
/// Pictures.

#ifndef VELLOX_PPT_TREE_PICTURE_H
#define VELLOX_PPT_TREE_PICTURE_H

#include <string>
#include <vector>

#include "vellox/ppt/tree/Shape.h"

namespace vellox::ppt {

class PictureImpl;
class Slide;

/// A shape that shows an image file. Only the size is read from the file at first; its bytes are copied into
/// the presentation when that is closed. A handle: copies share one picture.
class VELLOX_API Picture : public Shape {
public:
    /// Without a file and without a size.
    Picture();
    /// As setPath().
    explicit Picture(const std::wstring& path);
    /// Of an image in memory, with its size. The bytes are copied once; what they hold says what kind it is.
    /// @throws unknownImageBytes for what is no image of a known kind
    explicit Picture(const std::vector<unsigned char>& image);

    /// As it was given; empty for an image in memory.
    const std::wstring& getPath() const;
    /// Sets the file, and with it width and height to the image's own size in pixels; set another size
    /// afterwards. A file that can't be read counts as 300 by 300 pixels.
    /// @throws failedToDetermineFilename for a path that ends in a separator
    void setPath(const std::wstring& path);

    /// @{ How the picture goes into its box: "contain", "enlarge", "cover" or "stretch", in any case. The box is that of
    /// the shape in whose place it comes, or, of a free picture, its width and height where somebody has set both.
    ///
    /// - contain: as when nothing is set. In place of a shape at its own size, or the size that is set, shrunk until
    ///   it fits; in the box of a free picture as large as it fits.
    /// - enlarge: as large as it fits, also if its own size is smaller.
    /// - cover: as large as it fills the box, with what goes beyond cut off.
    /// - stretch: the box, whatever becomes of the proportions.
    ///
    /// @throws invalidPropertyValue for other words
    const BaseAttribute<std::wstring>& getFit() const;
    void setFit(const std::wstring& fit);
    void unsetFit();
    /// @}
    /// @{ Where the picture stands in a box that it doesn't fill, and what is kept of one that is cut: "center" if
    /// nothing is set, or "top", "bottom", "left", "right", "topLeft", "topRight", "bottomLeft", "bottomRight", in
    /// any case.
    /// @throws invalidPropertyValue for other words
    const BaseAttribute<std::wstring>& getFitPosition() const;
    void setFitPosition(const std::wstring& position);
    void unsetFitPosition();
    /// @}
    /// @{ Where a click on the picture leads, such as L"https://example.org/report"; unset for a slide.
    const BaseAttribute<std::wstring>& getLink() const;
    void setLink(const std::wstring& target);
    /// To a slide of the same presentation, wherever that stands by the end. If it isn't there then, the picture has no
    /// link.
    void setLink(const Slide& target);
    void unsetLink();
    /// @}

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
