/// @file
/// What random UUIDs are drawn from. Tests that compare whole decks put a source of their own in force; users
/// never do, and no public header knows of this one.

#ifndef VELLOX_FOUNDATION_UUIDSOURCE_H
#define VELLOX_FOUNDATION_UUIDSOURCE_H

#include <string>

namespace vellox {

/// Gives the next UUID in the place of uuid_gen(); null as long as that draws by chance.
extern std::wstring (*uuidSource)();

} // namespace vellox

#endif
