/// @file
/// Arguments of any class, as content for add and replace.

#ifndef VELLOX_HOST_BINDING_CONTENTARGUMENTS_H
#define VELLOX_HOST_BINDING_CONTENTARGUMENTS_H

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/values/HvViews.h"

namespace vellox::ppt::hostbind {

/// The content of a value; an empty pointer for the empty array.
/// @throws invalidReplaceArg for a value that has no content
inline HvContentPtr toReplacement(const hvArray& value) {
    const HvContentPtr content = HvCell(&value).getContent();
    if (!content && value.getNElements() > 0)
        raise(ppt_error::invalidReplaceArg());
    return content;
}

/// replace(any) of a shape.
template <class C> void replaceAny(C& shape, const hvArray& value) {
    shape.replace(toReplacement(value));
}

/// add(any) of a text box. The empty array adds nothing.
template <class C> void addAny(C& box, const hvArray& value) {
    if (value.getNElements() == 0)
        return;
    const HvContentPtr content = HvCell(&value).getContent();
    if (!content)
        raise(ppt_error::invalidAddArg());
    box.add(content);
}

/// replace(any, any) of a slide or a presentation.
/// @throws invalidReplaceArg if the first value is no text, or an empty one
template <class C> void replaceAnyByName(C& owner, const hvArray& name, const hvArray& value) {
    const std::wstring text = StringContent::getValue(HvCell(&name).getContent());
    if (text.empty())
        raise(ppt_error::invalidReplaceArg());
    owner.replace(text, toReplacement(value));
}

} // namespace vellox::ppt::hostbind

#endif
