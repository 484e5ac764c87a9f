/// @file
/// The state behind TableEntry. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TABLEENTRYIMPL_H
#define VELLOX_PPT_TREE_TABLEENTRYIMPL_H

#include <boost/shared_ptr.hpp>
#include <optional>
#include <string>

#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/template/SlideSource.h"
#include "vellox/ppt/tree/TableEntry.h"

namespace vellox::ppt {

class TableEntryImpl : public NodeOf<NodeType::TableEntry, TableEntryImpl, TableEntry, ElementImpl> {
public:
    TableEntryImpl();
    TableEntryImpl(const TableEntryImpl& other);
    ~TableEntryImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;

    /// Lets the entry stand for a cell that the template has in a table.
    void setTemplateCell(const boost::shared_ptr<const SlideSource>& source, const xercesc::DOMElement& cell);
    std::wstring getText() const;
    void setText(const std::wstring& text);
    /// What a cell of the template got; the children of its entry come behind that.
    const std::optional<std::wstring>& getNewText() const { return given_.get().newText; }
    bool isTouched() const { return getNewText() || !getChildren().empty() || !getStyle().getMap().empty(); }

private:
    /// What an entry of somebody's own doesn't have.
    struct Given {
        boost::shared_ptr<const SlideSource> source;
        const xercesc::DOMElement* cell = nullptr;
        std::optional<std::wstring> newText;
    };

    Lazy<Given> given_;
};

} // namespace vellox::ppt

#endif
