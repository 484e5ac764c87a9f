/// @file
/// From whom a shape inherits its place: shapes of its layout, and of that one's slide master.

#ifndef VELLOX_PPT_TEMPLATE_KIN_H
#define VELLOX_PPT_TEMPLATE_KIN_H

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

/// Lists a shape of a layout for those that inherit from it. The first of an id, an index or a type counts.
void addKin(TemplateLayout& layout, const ShapeFacts& facts, const boost::shared_ptr<TemplateShape>& shape);
/// The same with the place of a shape of a master, which may be empty.
void addKin(TemplateMaster& master, const ShapeFacts& facts, const Place& place);

/// The place that a shape inherits from a layout.
/// @return empty if its kin has none, or if there is no kin
Place findKinsPlace(const TemplateLayout& layout, const ShapeFacts& facts, Kinship kinship);
/// The same from a master.
Place findKinsPlace(const TemplateMaster& master, const ShapeFacts& facts, Kinship kinship);

} // namespace vellox::ppt

#endif
