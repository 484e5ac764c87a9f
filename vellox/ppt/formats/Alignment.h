/// @file
/// Where text stands in its paragraph, and in its box or cell.

#ifndef VELLOX_PPT_FORMATS_ALIGNMENT_H
#define VELLOX_PPT_FORMATS_ALIGNMENT_H

#include <string>

#include "vellox/Api.h"
#include "vellox/ppt/formats/Format.h"

namespace vellox::ppt {

class HAlignImpl;
class VAlignImpl;

/// The alignment of a paragraph: "left" (the default), "right", "center", "justified", "justifiedLow",
/// "distributed" or "thaiDistributed", in any case.
class VELLOX_API HAlign : public Format {
public:
    HAlign();
    /// @throws invalidPropertyValue
    explicit HAlign(const std::wstring& value);
    /// The alignment in its own spelling, whatever the case in which it was given.
    std::wstring getValue() const;
    /// @throws invalidPropertyValue; the value stays as it is then
    void setValue(const std::wstring& value);
    /// An independent copy.
    boost::shared_ptr<HAlign> clone() const;

protected:
    friend struct ObjectAccess;
    explicit HAlign(HAlignImpl* impl);
};

/// Where the text of a box or a cell is anchored: "top" (the default), "middle", "bottom", or the same with
/// "Centered" behind it, in any case; centred text is also moved to the middle from left to right.
class VELLOX_API VAlign : public Format {
public:
    VAlign();
    /// @throws invalidPropertyValue
    explicit VAlign(const std::wstring& value);
    /// The alignment in its own spelling, whatever the case in which it was given.
    std::wstring getValue() const;
    /// @throws invalidPropertyValue; the value stays as it is then
    void setValue(const std::wstring& value);
    /// An independent copy.
    boost::shared_ptr<VAlign> clone() const;

protected:
    friend struct ObjectAccess;
    explicit VAlign(VAlignImpl* impl);
};

} // namespace vellox::ppt

#endif
