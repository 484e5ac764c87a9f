/// @file
/// How a paragraph stands: its bullet or number, the room around it, its direction. Set on a box, they act on all
/// paragraphs in it that have none of their kind.

#ifndef VELLOX_PPT_FORMATS_PARAGRAPHFORMATS_H
#define VELLOX_PPT_FORMATS_PARAGRAPHFORMATS_H

#include <string>

#include "vellox/Api.h"
#include "vellox/ppt/formats/BaseDimension.h"
#include "vellox/ppt/formats/Format.h"

namespace vellox::ppt {

class BulletImpl;
class FirstLineIndentImpl;
class LeftIndentImpl;
class LineSpacingImpl;
class RightToLeftImpl;
class SpaceAfterImpl;
class SpaceBeforeImpl;

/// What stands ahead of a paragraph: a character such as "-" or L"\u2022" (the default), "none", or a number as the
/// first paragraph has it: "1.", "1)", "(1)", "1", the same with "a", "A", "i" or "I", though not bare. A count that
/// begins later is written as it begins: "4.", "c)", "iv.". Several with blanks between them are for the levels from
/// the first on, and the last for those below: "1. a) -".
///
/// Where the template gives paragraphs of the level no hanging indent, they get one, unless an indent is set.
class VELLOX_API Bullet : public Format {
public:
    Bullet();
    /// @throws invalidPropertyValue
    explicit Bullet(const std::wstring& value);
    const std::wstring& getValue() const;
    /// @throws invalidPropertyValue; the value stays as it is then
    void setValue(const std::wstring& value);

protected:
    friend struct ObjectAccess;
    explicit Bullet(BulletImpl* impl);
};

/// The room above a paragraph: a length, or a share of a line such as "50%"; "0pt" by default. What is beyond 0 to
/// 1584 points or 13,200 % is brought to the limit, with a finding. Of the first paragraph in a box, programs take
/// no notice.
class VELLOX_API SpaceBefore : public BaseDimension {
public:
    SpaceBefore();
    /// @throws invalidPropertyValue for what is no length
    explicit SpaceBefore(const std::wstring& value);

protected:
    friend struct ObjectAccess;
    explicit SpaceBefore(SpaceBeforeImpl* impl);
};

/// The room below a paragraph, like that above.
class VELLOX_API SpaceAfter : public BaseDimension {
public:
    SpaceAfter();
    /// @throws invalidPropertyValue for what is no length
    explicit SpaceAfter(const std::wstring& value);

protected:
    friend struct ObjectAccess;
    explicit SpaceAfter(SpaceAfterImpl* impl);
};

/// How high a line is: a share of what its font takes, "100%" by default, or a length, which holds whatever the font.
/// One and a half lines are "150%" (or "1.5*"); "1.5" by itself is a length, as everywhere, of one and a half pixels.
/// The limits are those of the room above.
class VELLOX_API LineSpacing : public BaseDimension {
public:
    LineSpacing();
    /// @throws invalidPropertyValue for what is no length
    explicit LineSpacing(const std::wstring& value);

protected:
    friend struct ObjectAccess;
    explicit LineSpacing(LineSpacingImpl* impl);
};

/// How far the lines of a paragraph stand from the left edge of the box (of a paragraph from right to left, from the
/// right): a length, "0cm" by default, up to 142 cm.
class VELLOX_API LeftIndent : public BaseDimension {
public:
    LeftIndent();
    /// @throws invalidPropertyValue for what is no length, and for shares such as "10%"
    explicit LeftIndent(const std::wstring& value);

protected:
    friend struct ObjectAccess;
    explicit LeftIndent(LeftIndentImpl* impl);
};

/// How much further than the others the first line stands: a length, "0cm" by default. With a negative one, such as
/// "-0.8cm", it hangs out to the left, which is where a bullet stands.
class VELLOX_API FirstLineIndent : public BaseDimension {
public:
    FirstLineIndent();
    /// @throws invalidPropertyValue for what is no length, and for shares such as "10%"
    explicit FirstLineIndent(const std::wstring& value);

protected:
    friend struct ObjectAccess;
    explicit FirstLineIndent(FirstLineIndentImpl* impl);
};

/// Whether a paragraph is read from right to left, like Arabic or Hebrew; true unless told otherwise. Such a paragraph
/// stands at the right, unless it has an alignment of its own.
class VELLOX_API RightToLeft : public Format {
public:
    RightToLeft();
    explicit RightToLeft(bool value);
    template <class T> explicit RightToLeft(const T*) = delete; ///< a text is no truth value
    bool getValue() const;
    void setValue(bool value);
    template <class T> void setValue(const T*) = delete;

protected:
    friend struct ObjectAccess;
    explicit RightToLeft(RightToLeftImpl* impl);
};

} // namespace vellox::ppt

#endif
