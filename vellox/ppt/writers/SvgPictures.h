/// @file
/// Pictures that are SVGs: the SVG for readers that draw it, and a PNG of it for all others.

#ifndef VELLOX_PPT_WRITERS_SVGPICTURES_H
#define VELLOX_PPT_WRITERS_SVGPICTURES_H

#include <boost/shared_ptr.hpp>
#include <map>
#include <string>
#include <utility>

#include "vellox/foundation/ImageSource.h"
#include "vellox/foundation/SvgText.h"

namespace vellox::ppt {

class PPTPartWriter;

/// Whether an image is an SVG, by its extension.
bool isSvg(const ImageSource& image);

/// The SVGs of a deck. Each is drawn once for each size, wherever it comes from.
class SvgPictures {
public:
    /// The ids of relationships of a slide.
    struct Ids {
        std::wstring drawing, svg;
    };

    explicit SvgPictures(PPTPartWriter& partWriter) : partWriter_(partWriter) {}

    /// That of the image itself; 300 each way where it says none.
    /// @throws SvgFault if it can't be read
    SvgSize findSize(const ImageSource& image);
    /// Puts an SVG into the deck with a drawing of it for a box.
    /// @param box in EMU
    /// @throws SvgFault if it can't be drawn
    Ids add(const std::wstring& slidePartName, const ImageSource& image, const SvgSize& box);

private:
    using Key = std::pair<std::wstring, ImageSource::Bytes>; // of a file, or in memory
    using Pixels = std::pair<unsigned int, unsigned int>;
    struct Entry {
        ImageSource cleaned; ///< without a document type
        SvgSize size;
        std::map<Pixels, ImageSource> drawings;
    };

    Entry& require(const ImageSource& image);
    boost::shared_ptr<Entry> read(const ImageSource& image);

    PPTPartWriter& partWriter_;
    std::map<Key, boost::shared_ptr<Entry>> known_;
    std::multimap<std::size_t, boost::shared_ptr<Entry>> entries_; // by what they hold
};

} // namespace vellox::ppt

#endif
