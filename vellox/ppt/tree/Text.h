/// @file
/// Runs of text.

#ifndef VELLOX_PPT_TREE_TEXT_H
#define VELLOX_PPT_TREE_TEXT_H

#include <string>
#include <type_traits>

#include "vellox/Api.h"
#include "vellox/ppt/formats/FormatProperties.h"
#include "vellox/ppt/object/Element.h"

namespace vellox::ppt {

class TextImpl;

/// A piece of a paragraph that looks the same throughout. A handle: copies share one run.
///
/// Characters that XML can't hold, such as most control characters, stay in the content and are left out when
/// the presentation is written.
class VELLOX_API Text : public Element, public CharacterProperties<Text> {
public:
    /// An empty run.
    Text();
    explicit Text(const std::wstring& text);
    /// @{ A run set from a number, see setNumContent(); from a truth value, from 1 or 0.
    explicit Text(double number);
    template <class Integer, class = std::enable_if_t<std::is_integral_v<Integer>>>
    explicit Text(Integer number)
        : Text(makeImpl(static_cast<Widest<Integer>>(number))) {} // or 0 could be a pointer
    /// @}

    /// The text; of a number, its text.
    const std::wstring& getTextContent() const;
    /// Makes the run one of text, whatever it was.
    void setTextContent(const std::wstring& text);
    /// The number; of a text, the number that it begins with, or 0.
    double getNumContent() const;
    /// Makes the run one of a number, with the number's 17 significant digits as text.
    void setNumContent(double number);
    /// True if the run was last set from a number.
    bool isNumContent() const;

    /// The node as a Text, or an empty pointer.
    static boost::shared_ptr<Text> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit Text(TextImpl* impl);
    TextImpl* pimpl();
    const TextImpl* pimpl() const;

private:
    // Whole numbers and truth values stay what they are behind the facade.
    template <class Integer>
    using Widest =
        std::conditional_t<std::is_same_v<Integer, bool>, bool,
                           std::conditional_t<std::is_signed_v<Integer>, long long, unsigned long long>>;
    static TextImpl* makeImpl(bool value);
    static TextImpl* makeImpl(long long number);
    static TextImpl* makeImpl(unsigned long long number);
};

} // namespace vellox::ppt

#endif
