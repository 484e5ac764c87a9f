/// @file
/// The methods that text boxes and placeholders have in common, as rows of the class table.

#ifndef VELLOX_HOST_BINDING_PARAGRAPHROWS_H
#define VELLOX_HOST_BINDING_PARAGRAPHROWS_H

#include <vector>

#include "vellox/host/binding/Adapters.h"
#include "vellox/host/binding/ContentArguments.h"

namespace vellox::ppt::hostbind {

/// add and replace with a text or a paragraph.
inline std::vector<BoundMethod> makeParagraphRows() {
    using Box = BaseTextBox;
    return {
        Method<Box, Paragraph(Wide)>::row<&Box::add>("add", {"text"}, "Adds a new paragraph."),
        Method<Box, Paragraph(const Paragraph&)>::row<&Box::add>(
            "add", {"paragraph"}, "Adds this very paragraph, which must not stand anywhere yet."),
        Method<Box, Paragraph(Wide)>::row<&Box::replace>("replace", {"text"},
                                                         "Makes a new paragraph the only one."),
        Method<Box, Paragraph(const Paragraph&)>::row<&Box::replace>(
            "replace", {"paragraph"}, "Makes a paragraph, or a copy if it stands somewhere, the only one."),
    };
}

/// add and replace with a list.
inline std::vector<BoundMethod> makeContentRows() {
    using Box = BaseTextBox;
    return {
        Method<Box, void(const hvArray&)>::row<&addAny<Box>>(
            "add", {"items"}, "Adds the items of a list; a list within it is one level deeper."),
        Method<Box, void(const hvArray&)>::row<&replaceAny<Box>>(
            "replace", {"items"},
            "Makes the items of a list the paragraphs; a list within it is one level deeper."),
    };
}

/// replace with an object that takes the place of this one.
template <class C, class Object> BoundMethod makeReplaceRow(const char* parameter) {
    return Method<C, Object(const Object&)>::template row<&C::replace>(
        "replace", {parameter}, "Puts a new object, made from this one, in the place. Returns the new one.");
}

} // namespace vellox::ppt::hostbind

#endif
