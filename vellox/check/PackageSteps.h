/// @file
/// The steps of the check that compare parts with one another. Each goes over the index once.

#ifndef VELLOX_CHECK_PACKAGESTEPS_H
#define VELLOX_CHECK_PACKAGESTEPS_H

#include "vellox/check/PackageIndex.h"
#include "vellox/check/Report.h"

namespace vellox::check {

/// Targets that are missing, badly spelled, or of another type than the relationship says.
void checkRelationships(const PackageIndex& index, Report& report);
/// The main part: that there is one, of which type, and what the file's extension has to say about it.
void findMainPart(PackageIndex& index, const std::wstring& path, Report& report);
/// Parts that nothing leads to.
void checkReachability(const PackageIndex& index, Report& report);

/// Gives the listed slides their numbers.
void numberSlides(PackageIndex& index);
/// The lists of slides, masters, layouts and sections.
void checkPresentation(const PackageIndex& index, Report& report);
/// What each kind of part needs, and who may share it.
void checkStructure(const PackageIndex& index, Report& report);

} // namespace vellox::check

#endif
