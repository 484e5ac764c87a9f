#include "vellox/ppt/writers/FormatsInForce.h"

#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/writers/TableContext.h"

namespace vellox::ppt {

FormatsInForce FormatsInForce::at(const PPTNodeImpl* node, const TableContext* table) {
    const ElementImpl* element = node ? node->asElement() : nullptr;
    if (!element)
        return FormatsInForce();
    FormatsInForce formats = at(element->getParent(), table);
    if (table && element->getNodeType() == NodeType::TableRow)
        formats.layOver(table->getColumnFormats());
    formats.layOver(element->getStyle());
    return formats;
}

void FormatsInForce::layOver(const Formats& nearer) {
    for (const auto& entry : nearer.getMap()) {
        formats_[static_cast<std::size_t>(entry.first)] = entry.second.get();
        isEmpty_ = false;
    }
}

} // namespace vellox::ppt
