/// @file
/// The natural size of images.

#ifndef VELLOX_FOUNDATION_INFOUTILS_H
#define VELLOX_FOUNDATION_INFOUTILS_H

#include <iosfwd>
#include <string>

#include "vellox/Api.h"

namespace vellox {

/// The size of an image in pixels. A value, and at the same time the reader of one kind of image: make()
/// reads a file and falls back on the reader's own size.
class VELLOX_API ImageInfo {
public:
    /// 0 by 0, which no reader gives for a file.
    ImageInfo();
    ImageInfo(double width, double height);
    ImageInfo(const ImageInfo&);
    ImageInfo& operator=(const ImageInfo&);
    virtual ~ImageInfo();

    double getWidth() const { return width_; }
    double getHeight() const { return height_; }

protected:
    friend class InfoUtils;
    /// The size of the image in a file, whatever the host can read; this object's own size otherwise.
    virtual ImageInfo make(const std::wstring& path) const;

private:
    double width_ = 0;
    double height_ = 0;
};

/// Reads Enhanced Metafiles: the frame of the header, in hundredths of a millimetre, at the density of the
/// screen.
class VELLOX_API ImageInfoEMF : public ImageInfo {
public:
    using ImageInfo::ImageInfo;

protected:
    ImageInfo make(const std::wstring& path) const override;
};

/// An SVG image always has the default size; the file isn't opened.
class VELLOX_API ImageInfoSVG : public ImageInfo {
public:
    using ImageInfo::ImageInfo;

protected:
    ImageInfo make(const std::wstring& path) const override;
};

/// Class-level operations only.
class VELLOX_API InfoUtils {
public:
    /// The size of an image file, by the reader that goes with the extension. A file that is missing or
    /// can't be read as an image counts as 300 by 300 pixels.
    /// @throws failedToDetermineFilename for a path that ends in a separator
    static ImageInfo getImageInfo(const std::wstring& path);
    /// The size of an image in a stream, as that of a file with an extension in lower case.
    static ImageInfo getImageInfo(std::istream& image, const std::wstring& extension);
    /// What the host says, asked for once; 96 where it says nothing.
    static double getScreenPixelsPerInch();
};

} // namespace vellox

#endif
