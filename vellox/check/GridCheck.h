/// @file
/// Do the cells of a table fill its grid?

#ifndef VELLOX_CHECK_GRIDCHECK_H
#define VELLOX_CHECK_GRIDCHECK_H

#include <xercesc/dom/DOM.hpp>

#include "vellox/check/Report.h"

namespace vellox::check {

/// Every row has a cell for each column, and a merged cell is followed, to the right and below, by cells that
/// say that they belong to it.
void checkGrid(const xercesc::DOMElement& table, const Place& place, Report& report);

} // namespace vellox::check

#endif
