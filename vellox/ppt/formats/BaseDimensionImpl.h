/// @file
/// The state behind BaseDimension. Internal: users hold facades.

#ifndef VELLOX_PPT_FORMATS_BASEDIMENSIONIMPL_H
#define VELLOX_PPT_FORMATS_BASEDIMENSIONIMPL_H

#include <string>

#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/formats/FormatImpl.h"

namespace vellox::ppt {

class BaseDimensionImpl : public FormatImpl {
public:
    enum class Shares { Taken, Refused };

    /// @param shares whether it may be a share of something, such as "50%"
    /// @throws invalidPropertyValue for what isn't a length
    explicit BaseDimensionImpl(const std::wstring& value, Shares shares = Shares::Taken);
    BaseDimensionImpl(const BaseDimensionImpl&) = default;

    const char* getFullyQualifiedHostTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;

    const Dimension& getDimension() const { return dimension_; }
    void setValue(const std::wstring& value);

private:
    Shares shares_;
    Dimension dimension_;
};

/// A length that is no share of anything, and not negative.
/// @param named what the error names: a text that the length may be a part of
/// @throws invalidPropertyValue
Dimension requireExtent(const std::wstring& text, const std::wstring& named);

} // namespace vellox::ppt

#endif
