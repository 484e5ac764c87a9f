/// @file
/// What stands around the content of slides: date, footer and slide number.

#ifndef VELLOX_PPT_TREE_PAGEFIELDS_H
#define VELLOX_PPT_TREE_PAGEFIELDS_H

#include <string>

#include "vellox/Api.h"
#include "vellox/foundation/Lazy.h"
#include "vellox/ppt/object/Attribute.h"

namespace vellox::ppt {

class PPTNode;

/// What is asked for of each. What isn't set is as the profile has it.
struct PageFields {
    BaseAttribute<std::wstring> date, footer;
    BaseAttribute<bool> slideNumbers;

    bool areSet() const { return date.isSet() || footer.isSet() || slideNumbers.isSet(); }
};

/// The base of the states that have page fields. Internal.
struct WithPageFields {
    virtual ~WithPageFields() = default;

    Lazy<PageFields> pageFields;
};

/// The way to a node's page fields. Not for direct use.
namespace page_fields {

VELLOX_API PageFields& of(const PPTNode& node);

} // namespace page_fields

/// Date, footer and slide number of a presentation, and of one slide, which has its own way where it sets one. They
/// stand where the layout of a slide has a placeholder for them; a slide without a layout for it goes without. What is
/// not set is as the profile has it.
template <class Owner> class PageFieldProperties {
public:
    /// @{ A date as text, such as "21 November 2026", or "auto" for one that programs bring up to date; an empty text
    /// for none.
    const BaseAttribute<std::wstring>& getDate() const { return fields().date; }
    void setDate(const std::wstring& date) { fields().date.set(date); }
    void unsetDate() { fields().date.unset(); }
    /// @}
    /// @{ The text at the foot; an empty one for none.
    const BaseAttribute<std::wstring>& getFooter() const { return fields().footer; }
    void setFooter(const std::wstring& text) { fields().footer.set(text); }
    void unsetFooter() { fields().footer.unset(); }
    /// @}
    /// @{ Whether slide numbers are shown.
    const BaseAttribute<bool>& getSlideNumbers() const { return fields().slideNumbers; }
    void setSlideNumbers(bool areShown) { fields().slideNumbers.set(areShown); }
    template <class T> void setSlideNumbers(const T*) = delete; ///< a text is no truth value
    void unsetSlideNumbers() { fields().slideNumbers.unset(); }
    /// @}

private:
    PageFields& fields() const { return page_fields::of(static_cast<const Owner&>(*this)); }
};

} // namespace vellox::ppt

#endif
