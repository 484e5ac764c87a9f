/// @file
/// The bytes of one compiled message catalog (GNU gettext).

#ifndef VELLOX_FOUNDATION_CATALOGFILE_H
#define VELLOX_FOUNDATION_CATALOGFILE_H

#include <string>
#include <unordered_map>
#include <vector>

namespace vellox {

/// The texts of a catalog, by what they are asked by.
using CatalogTexts = std::unordered_map<std::string, std::wstring>;

/// None if there are no bytes.
/// @throws std::runtime_error if it isn't a catalog, or a damaged one
CatalogTexts readCatalogFile(const std::vector<char>& bytes);

} // namespace vellox

#endif
