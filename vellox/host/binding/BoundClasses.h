/// @file
/// The families of the class table, each in a source of its own; BoundClasses.cpp puts them together.

#ifndef VELLOX_HOST_BINDING_BOUNDCLASSES_H
#define VELLOX_HOST_BINDING_BOUNDCLASSES_H

#include <vector>

#include "vellox/host/binding/BoundClass.h"

namespace vellox::ppt::hostbind {

/// @{ Superclasses ahead of their subclasses.
std::vector<BoundClass> describeNodes();
std::vector<BoundClass> describeFormats();
std::vector<BoundClass> describeText();
std::vector<BoundClass> describeShapes();
std::vector<BoundClass> describePlaceholders();
std::vector<BoundClass> describeTables();
std::vector<BoundClass> describeCharts();
std::vector<BoundClass> describeSlides();
std::vector<BoundClass> describeMessages();
/// @}

} // namespace vellox::ppt::hostbind

#endif
