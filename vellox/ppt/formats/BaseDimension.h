/// @file
/// Formats that are a length.

#ifndef VELLOX_PPT_FORMATS_BASEDIMENSION_H
#define VELLOX_PPT_FORMATS_BASEDIMENSION_H

#include <string>

#include "vellox/Api.h"
#include "vellox/foundation/Dimension.h"
#include "vellox/ppt/formats/Format.h"

namespace vellox::ppt {

class BaseDimensionImpl;
class ColWidthImpl;

/// A format that is a length, "0px" by default.
class VELLOX_API BaseDimension : public Format {
public:
    BaseDimension();
    /// @throws invalidPropertyValue for what isn't a length
    explicit BaseDimension(const std::wstring& value);
    /// Number and unit with nothing between them.
    const std::wstring& getValue() const;
    /// @throws invalidPropertyValue for what isn't a length; the value stays as it is then
    void setValue(const std::wstring& value);
    const Dimension& getDimension() const;

protected:
    friend struct ObjectAccess;
    explicit BaseDimension(BaseDimensionImpl* impl);
    BaseDimensionImpl* pimpl();
    const BaseDimensionImpl* pimpl() const;
};

/// The width of a table's column, "0.25in" by default. It acts on a column specification and on an entry; the
/// widest in a column wins. A negative one is written as 0.
class VELLOX_API ColWidth : public BaseDimension {
public:
    ColWidth();
    /// @throws invalidPropertyValue for what isn't a length
    explicit ColWidth(const std::wstring& value);
    /// An independent copy.
    boost::shared_ptr<ColWidth> clone() const;

protected:
    friend struct ObjectAccess;
    explicit ColWidth(ColWidthImpl* impl);
};

} // namespace vellox::ppt

#endif
