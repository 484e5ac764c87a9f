/// @file
/// Sets of formats.

#ifndef VELLOX_PPT_FORMATS_FORMATS_H
#define VELLOX_PPT_FORMATS_FORMATS_H

#include <boost/container/flat_map.hpp>
#include <boost/container/small_vector.hpp>
#include <boost/shared_ptr.hpp>
#include <memory>

#include "vellox/Api.h"
#include "vellox/ppt/formats/FormatType.h"

namespace vellox::ppt {

class Format;

/// At most one format of each kind. A value: a copy is another set, of the same format objects.
class VELLOX_API Formats {
public:
    /// In the order of the kinds. Most elements that have a format have one.
    using Map = boost::container::small_flat_map<FormatType, boost::shared_ptr<Format>, 1>;

    Formats();
    Formats(const Formats& other);
    Formats& operator=(const Formats& other);
    ~Formats();

    /// Puts a format in, in the place of one of its kind if there is one. A null pointer does nothing.
    void appendFormat(const boost::shared_ptr<Format>& format);
    /// @return an empty pointer if there is none of the kind
    boost::shared_ptr<Format> getFormat(FormatType type) const;
    /// Takes a format out; does nothing if there is none of the kind.
    void unsetFormat(FormatType type);
    /// In the order of the kinds.
    const Map& getMap() const { return getEntries(); }
    /// The same. Programs built against release 1.0.0 expect another class of map by the other name.
    const Map& getEntries() const;

private:
    // Made with the first format: most elements of a deck never have one.
    struct Own;
    std::unique_ptr<Own> own_;
};

} // namespace vellox::ppt

#endif
