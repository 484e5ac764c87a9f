/// @file
/// Which shape of a slide a name stands for.

#ifndef VELLOX_PPT_FILL_SHAPEKEYS_H
#define VELLOX_PPT_FILL_SHAPEKEYS_H

#include <boost/intrusive_ptr.hpp>
#include <string>

#include "vellox/ppt/tree/ShapeImpl.h"
#include "vellox/ppt/tree/SlideImpl.h"

namespace vellox::ppt {

/// The one shape of a name, or of "idx:13", "type:title", "type:body#2".
/// @throws unknownShape, ambiguousShape
boost::intrusive_ptr<ShapeImpl> requireShape(const SlideImpl& slide, const std::wstring& key);

} // namespace vellox::ppt

#endif
