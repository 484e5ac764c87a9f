/// @file
/// Which images a deck holds already.

#ifndef VELLOX_PPT_WRITERS_IMAGEINDEX_H
#define VELLOX_PPT_WRITERS_IMAGEINDEX_H

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

#include "vellox/foundation/ImageSource.h"
#include "vellox/host/services/FileSystem.h"

namespace vellox::ppt {

/// What was put into a deck, by what it holds. A file is read here only where another of its size and with its beginning
/// is in the deck.
class ImageIndex {
public:
    /// What is known of an image before it is read.
    struct Look {
        ImageSource image;
        hostfx::filesystem::FileIdentity file; ///< of a file
        unsigned long long size = 0;
        std::size_t beginning = 0;       ///< the hash of its first bytes
        std::optional<std::size_t> hash; ///< of its bytes, once they had to be compared
    };

    /// @return false if it can't be read, or is no regular file
    static bool look(const ImageSource& image, Look& look);
    /// The part of an image that was put in, seen by where it is alone: it needn't be read.
    std::wstring findSource(const ImageSource& image) const;
    /// The part of an image of the same bytes and the same kind; empty if there is none.
    std::wstring findEqual(Look& look);
    /// After findEqual() has found none.
    void add(const Look& look, const std::wstring& partName);

private:
    struct Entry {
        Look look;
        std::wstring partName;
    };
    /// Images of one kind, size and beginning: the first is read when a second comes.
    struct Group {
        std::optional<Entry> unread;
        std::multimap<std::size_t, Entry> read; // by the hash
    };
    using FileKey =
        std::tuple<std::wstring, unsigned long long, unsigned long long, long long, long long, long long>;

    Group& requireGroup(const Look& look);
    static FileKey makeKey(const std::wstring& path, const hostfx::filesystem::FileIdentity& file);
    void remember(const Look& look, const std::wstring& partName);

    std::map<FileKey, std::wstring> files_;
    std::map<const std::string*, Entry> memory_;
    std::map<std::tuple<std::wstring, unsigned long long, std::size_t>, Group> groups_; // the extension first
};

} // namespace vellox::ppt

#endif
