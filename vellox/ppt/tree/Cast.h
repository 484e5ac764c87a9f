/// @file
/// From a node to a handle of its class, for programs that know what it is:
///
///     Table table = as<Table>(slide.shape(L"Figures"));

#ifndef VELLOX_PPT_TREE_CAST_H
#define VELLOX_PPT_TREE_CAST_H

#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/object/Content.h"
#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/tree/Table.h"

namespace vellox::ppt {

/// The node as a handle of a class.
/// @throws emptyHandle if there is no node
/// @throws wrongClass if it is of another class
template <class Facade> Facade as(const boost::shared_ptr<PPTNode>& node) {
    if (!node)
        raise(ppt_error::emptyHandle(L"shape"));
    if (const auto facade = boost::dynamic_pointer_cast<Facade>(node))
        return *facade;
    const std::string present = node->getFullyQualifiedHostTypeName();
    raise(ppt_error::wrongClass(node->getName(), {present.begin(), present.end()}));
}

/// A table of rows of anything that is content.
VELLOX_API Table tableOf(const std::vector<std::vector<Content>>& rows);

} // namespace vellox::ppt

#endif
