/// @file
/// What a template's package has beside its presentation, and decks needn't have: macros, signatures, a thumbnail.

#ifndef VELLOX_PPT_PACKAGE_PACKAGEEXTRAS_H
#define VELLOX_PPT_PACKAGE_PACKAGEEXTRAS_H

#include <set>
#include <string>
#include <vector>

#include "vellox/opc/Package.h"
#include "vellox/ppt/rules/Facts.h"

namespace vellox::ppt {

/// One extra of a package: what leads to it, and all parts that nothing else leads to.
struct PackageExtra {
    Extra what = Extra::Macros;
    std::wstring source; ///< the part whose relationships lead to it; empty for the package
    std::wstring relationshipType;
    std::set<opc::PartName> parts;
};

/// Finds an extra of a package with this main part.
/// @return nothing if the package hasn't got it, else one
/// @throws opc::Exception
std::vector<PackageExtra> findExtra(const opc::Package& package, const opc::Part& mainPart, Extra what);

/// Takes an extra out of the package in which it was found, or a copy of it.
/// @throws opc::Exception
void removeExtra(opc::Package& package, const PackageExtra& extra);

} // namespace vellox::ppt

#endif
