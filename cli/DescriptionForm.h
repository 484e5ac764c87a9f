/// @file
/// The form of a deck description, as cli/deck.schema.json has it for editors.

#ifndef CLI_DESCRIPTIONFORM_H
#define CLI_DESCRIPTIONFORM_H

#include "cli/Data.h"

namespace vellox::cli {

/// @throws DataFailure that says what isn't as it should be, and where
void checkForm(const Data& description, const DataPlace& place);

} // namespace vellox::cli

#endif
