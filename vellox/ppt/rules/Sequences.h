/// @file
/// What the schema of the format demands of the elements that the library writes.

#ifndef VELLOX_PPT_RULES_SEQUENCES_H
#define VELLOX_PPT_RULES_SEQUENCES_H

#include "vellox/ppt/rules/Facts.h"

namespace vellox::ppt {

/// The form of an element of a name, with its prefix; null for one that nothing is said of.
const ElementForm* findElementForm(std::u16string_view element);

} // namespace vellox::ppt

#endif
