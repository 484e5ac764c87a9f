/// @file
/// Column specifications of tables.

#ifndef VELLOX_PPT_TREE_COLSPEC_H
#define VELLOX_PPT_TREE_COLSPEC_H

#include <string>

#include "vellox/ppt/formats/CellProperties.h"
#include "vellox/ppt/object/Element.h"

namespace vellox::ppt {

class ColSpecImpl;

/// The width and the formats of one column. A format of a row goes before that of a column. A handle: copies
/// share one specification.
class VELLOX_API ColSpec : public Element, public CellProperties<ColSpec>, public WidthProperty<ColSpec> {
public:
    ColSpec();
    /// @param width a length, such as L"2.5cm"
    /// @throws invalidPropertyValue for what isn't a length
    explicit ColSpec(const std::wstring& width);

    /// The node as a ColSpec, or an empty pointer.
    static boost::shared_ptr<ColSpec> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit ColSpec(ColSpecImpl* impl);
};

} // namespace vellox::ppt

#endif
