/// @file
/// Nodes with a style.

#ifndef VELLOX_PPT_OBJECT_ELEMENT_H
#define VELLOX_PPT_OBJECT_ELEMENT_H

#include "vellox/Api.h"
#include "vellox/ppt/object/PPTNode.h"

namespace vellox::ppt {

class ElementImpl;
class Formats;

/// A node that formats can be set on. A format acts on the element and on all below it that has none of its
/// kind.
class VELLOX_API Element : public PPTNode {
public:
    const Formats& getStyle() const;
    /// Takes a copy of the set; the formats in it are shared.
    void setStyle(const Formats& style);

protected:
    explicit Element(PPTObjectImpl* impl);
    ElementImpl* pimpl();
    const ElementImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
