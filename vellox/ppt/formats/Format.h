/// @file
/// Formats: small objects that say how an element looks. They are put into an element's style, or set through
/// its properties, and act when the presentation is closed.

#ifndef VELLOX_PPT_FORMATS_FORMAT_H
#define VELLOX_PPT_FORMATS_FORMAT_H

#include <boost/shared_ptr.hpp>

#include "vellox/Api.h"
#include "vellox/ppt/formats/FormatType.h"
#include "vellox/ppt/object/PPTObject.h"

namespace vellox::ppt {

class FormatImpl;

/// The base of all formats. A handle: one format object may be in the styles of several elements, and a
/// change to it shows in all of them.
class VELLOX_API Format : public PPTObject {
public:
    FormatType getFormatType() const;
    /// A new facade of the format's own class.
    boost::shared_ptr<Format> makeInterface() const;

protected:
    explicit Format(FormatImpl* impl);
    FormatImpl* pimpl();
    const FormatImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
