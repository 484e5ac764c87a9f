/// @file
/// The words of messages. They live in GNU message catalogs below the install root,
///
///     resources/messages/<language>/LC_MESSAGES/<catalog>.mo
///
/// in which the key is the identifier and a blank for the n-th argument is written %n%.

#ifndef VELLOX_FOUNDATION_MESSAGECATALOG_H
#define VELLOX_FOUNDATION_MESSAGECATALOG_H

#include <locale>
#include <string>

#include "vellox/Api.h"
#include "vellox/foundation/MsgID.h"

namespace vellox {

/// Class-level operations only.
class VELLOX_API MessageCatalog {
public:
    /// A message in words, in the language of the locale, or in English where there is no text in it. A
    /// message that no catalog holds comes as its identifier and its arguments.
    static std::wstring get_message(const MsgID& message, const std::locale& locale);
};

} // namespace vellox

#endif
