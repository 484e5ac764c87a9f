/// @file
/// The value that names one message: a catalog, an identifier in it, and what goes into its blanks. The
/// words are looked up elsewhere, see MessageCatalog.h.

#ifndef VELLOX_FOUNDATION_MSGID_H
#define VELLOX_FOUNDATION_MSGID_H

#include <string>
#include <vector>

#include "vellox/Api.h"

namespace vellox {

/// A message by name. The classes of Identifiers.h derive from it, one for each identifier.
class VELLOX_API MsgID {
public:
    /// A message with `nArgs` arguments, which are empty until they are set.
    MsgID(const std::string& catalogName, const std::string& identifier, unsigned int nArgs)
        : catalog(catalogName),
          id(identifier),
          args(nArgs) {}
    MsgID(const std::string& catalogName, const std::string& identifier, std::vector<std::wstring> arguments)
        : catalog(catalogName),
          id(identifier),
          args(std::move(arguments)) {}

    std::string catalog;            ///< such as "vellox:ppt_error"
    std::string id;                 ///< such as "badSlideSubscript"
    std::vector<std::wstring> args; ///< in the order in which the text counts them
};

} // namespace vellox

#endif
