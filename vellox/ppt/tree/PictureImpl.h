/// @file
/// The state behind Picture. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_PICTUREIMPL_H
#define VELLOX_PPT_TREE_PICTUREIMPL_H

#include "vellox/foundation/ImageSource.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/Picture.h"
#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/SlideTarget.h"

namespace vellox::ppt {

class PictureImpl : public NodeOf<NodeType::Picture, PictureImpl, Picture, ShapeImpl> {
public:
    using ShapeImpl::replace;

    PictureImpl();
    PictureImpl(const std::wstring& name, const Record& record);
    /// The picture in the place of another shape.
    PictureImpl(const ShapeImpl& former, TakeName takeName, const PictureImpl& picture);
    PictureImpl(const PictureImpl& other);
    ~PictureImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;

    const std::wstring& getPath() const { return image_.getPath(); }
    void setPath(const std::wstring& path) { setImage(ImageSource(path)); }
    const ImageSource& getImage() const { return image_; }
    void setImage(const ImageSource& image);
    /// What is asked for beside the shape's own.
    struct Wishes {
        BaseAttribute<std::wstring> fit, fitPosition, link;
        SlideTarget slide; ///< where the link leads if it isn't set
    };
    const Wishes& getWishes() const { return wishes_; }
    Wishes& wishes() { return wishes_; }
    /// The size of the file when the path was set, in pixels, whatever width and height are now; 0 by 0 without
    /// a file.
    const ImageInfo& getFileSize() const { return fileSize_; }
    Picture replace(const Picture& picture);
    /// @throws pictureCannotBeReplaced if this picture stands nowhere
    virtual void checkReplaceable() const;

private:
    ImageSource image_;
    ImageInfo fileSize_;
    Wishes wishes_;
};

} // namespace vellox::ppt

#endif
