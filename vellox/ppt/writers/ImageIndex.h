/// @file
/// Which images a deck holds already.

#ifndef VELLOX_PPT_WRITERS_IMAGEINDEX_H
#define VELLOX_PPT_WRITERS_IMAGEINDEX_H

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "vellox/foundation/ImageSource.h"
#include "vellox/host/services/FileSystem.h"

namespace vellox::ppt {

/// What was put into a deck, by what it holds. Each file is read once to its end; a second time only where another
/// may hold the same.
class ImageIndex {
public:
    /// An image that was read to its end.
    struct Reading {
        ImageSource image;
        hostfx::filesystem::FileIdentity file; ///< of a file
        unsigned long long size = 0;
        std::size_t hash = 0;
    };

    /// @param wantsHash whether anybody is to look for one of the same bytes, which isn't free
    /// @return false if it can't be read to its end, or is no regular file
    static bool read(const ImageSource& image, bool wantsHash, Reading& reading);
    /// The part of an image that was put in, seen by where it is alone: it needn't be read.
    std::wstring findSource(const ImageSource& image) const;
    /// The part of an image of the same bytes and the same kind; empty if there is none.
    std::wstring findEqual(const Reading& reading);
    void add(const Reading& reading, const std::wstring& partName);

private:
    struct Entry {
        Reading reading;
        std::wstring partName;
    };
    using FileKey =
        std::tuple<std::wstring, unsigned long long, unsigned long long, long long, long long, long long>;

    static FileKey makeKey(const std::wstring& path, const hostfx::filesystem::FileIdentity& file);
    void remember(const Reading& reading, const std::wstring& partName);

    std::map<FileKey, std::wstring> files_;
    std::map<const std::string*, Entry> memory_;
    std::map<std::tuple<std::wstring, unsigned long long, std::size_t>, std::vector<Entry>> contents_;
};

} // namespace vellox::ppt

#endif
