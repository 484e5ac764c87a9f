/// @file
/// Groups of shapes.

#ifndef VELLOX_PPT_TREE_GROUP_H
#define VELLOX_PPT_TREE_GROUP_H

#include <string>

#include "vellox/ppt/tree/Shape.h"

namespace vellox::ppt {

class GroupImpl;

/// A group of a template slide. What it holds can be found by name, but stays in the file as the template has
/// it. A handle: copies share one group.
class VELLOX_API Group : public Shape {
public:
    Group();
    explicit Group(const std::wstring& name);

protected:
    friend struct ObjectAccess;
    explicit Group(GroupImpl* impl);
};

} // namespace vellox::ppt

#endif
