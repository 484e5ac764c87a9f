/// @file
/// The state behind Element. Internal: users hold facades.

#ifndef VELLOX_PPT_OBJECT_ELEMENTIMPL_H
#define VELLOX_PPT_OBJECT_ELEMENTIMPL_H

#include "vellox/ppt/formats/Formats.h"
#include "vellox/ppt/object/Element.h"
#include "vellox/ppt/object/PPTNodeImpl.h"

namespace vellox::ppt {

class ElementImpl : public PPTNodeImpl {
public:
    ElementImpl() = default;
    explicit ElementImpl(const std::wstring& name) : PPTNodeImpl(name) {}
    ElementImpl(const ElementImpl&) = default;

    const char* getFullyQualifiedHostTypeName() const override;
    const ElementImpl* asElement() const override { return this; }

    const Formats& getStyle() const { return style_; }
    Formats& style() { return style_; }
    void setStyle(const Formats& style) { style_ = style; }

private:
    Formats style_;
};

} // namespace vellox::ppt

#endif
