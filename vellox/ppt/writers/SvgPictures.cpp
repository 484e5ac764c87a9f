#include "vellox/ppt/writers/SvgPictures.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/foundation/FileUtils.h"
#include "vellox/foundation/SvgDrawing.h"
#include "vellox/ppt/writers/PPTPartWriter.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <cmath>
#include <functional>
#include <istream>

namespace vellox::ppt {

namespace {

constexpr SvgSize kUsualSize{300, 300};

std::string readAll(const ImageSource& image) {
    if (image.getBytes())
        return *image.getBytes();
    const auto stream = image.open();
    std::string text;
    char block[1 << 16];
    while (stream && *stream && text.size() <= kGreatestSvg) {
        stream->read(block, sizeof(block));
        text.append(block, static_cast<std::size_t>(stream->gcount()));
    }
    return text;
}

// Twice as fine as screens were when the inch got its 96 pixels.
unsigned int toPixels(double emu, double longest) {
    constexpr double kEmuPerPixel = 914400 / 192.0;
    const double scale = std::min(1.0, kGreatestDrawing * kEmuPerPixel / std::max(longest, 1.0));
    const double pixels = std::round(emu * scale / kEmuPerPixel);
    return pixels >= 1 ? static_cast<unsigned int>(pixels) : 1;
}

} // namespace

bool isSvg(const ImageSource& image) {
    return toLowerString(FileUtils::getFileNameExtension(image.getFileName())) == L"svg";
}

SvgSize SvgPictures::findSize(const ImageSource& image) {
    return require(image).size;
}

SvgPictures::Ids SvgPictures::add(const std::wstring& slidePartName, const ImageSource& image,
                                  const SvgSize& box) {
    Entry& entry = require(image);
    // In its own proportions, whatever those of the box: it is readers who crop and stretch.
    const double scale = std::max(box.width / entry.size.width, box.height / entry.size.height);
    const double width = entry.size.width * scale, height = entry.size.height * scale;
    const Pixels pixels{toPixels(width, std::max(width, height)), toPixels(height, std::max(width, height))};
    ImageSource& drawing = entry.drawings[pixels];
    if (drawing.isEmpty())
        drawing = ImageSource(drawSvg(readAll(entry.cleaned), pixels.first, pixels.second), L"png");
    return {partWriter_.addImage(slidePartName, drawing, true),
            partWriter_.addImage(slidePartName, entry.cleaned, true)};
}

SvgPictures::Entry& SvgPictures::require(const ImageSource& image) {
    const Key key(image.getPath(), image.getBytes());
    const auto known = known_.find(key);
    return *(known != known_.end() ? known->second : known_.emplace(key, read(image)).first->second);
}

boost::shared_ptr<SvgPictures::Entry> SvgPictures::read(const ImageSource& image) {
    const std::string svg = readAll(image);
    if (svg.size() > kGreatestSvg)
        throw SvgFault("it is larger than 32 MB");
    std::string cleaned = takeOffDoctype(svg);
    const std::size_t hash = std::hash<std::string>()(cleaned);
    const auto [first, end] = entries_.equal_range(hash);
    for (auto row = first; row != end; ++row)
        if (readAll(row->second->cleaned) == cleaned)
            return row->second;
    const auto entry = boost::make_shared<Entry>();
    entry->cleaned = image;
    entry->size = readSvgSize(cleaned).value_or(kUsualSize);
    if (cleaned.size() != svg.size())
        entry->cleaned = ImageSource(std::move(cleaned), L"svg");
    entries_.emplace(hash, entry);
    return entry;
}

} // namespace vellox::ppt
