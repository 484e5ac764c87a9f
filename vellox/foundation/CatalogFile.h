/// @file
/// The bytes of one compiled message catalog. What reads them trusts them, so that they are looked through first.

#ifndef VELLOX_FOUNDATION_CATALOGFILE_H
#define VELLOX_FOUNDATION_CATALOGFILE_H

#include <boost/locale/message.hpp>
#include <locale>
#include <vector>

namespace vellox {

/// What a locale made of a catalog holds.
using CatalogTexts = boost::locale::message_format<wchar_t>;

/// A locale that holds nothing but the texts of a GNU message catalog; without any if there are no bytes.
/// @throws std::runtime_error if it isn't a catalog, or a damaged one
std::locale readCatalogFile(const std::vector<char>& bytes);

} // namespace vellox

#endif
