/// @file
/// The state behind BaseTextBox. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_BASETEXTBOXIMPL_H
#define VELLOX_PPT_TREE_BASETEXTBOXIMPL_H

#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/BaseTextBox.h"
#include "vellox/ppt/tree/Paragraph.h"
#include "vellox/ppt/tree/ShapeImpl.h"

namespace vellox::ppt {

/// The words for what becomes of a text that is longer than its box.
namespace autofit {

inline constexpr wchar_t kNone[] = L"none", kShrink[] = L"shrink", kResize[] = L"resize";

} // namespace autofit

class BaseTextBoxImpl : public NodeOf<NodeType::BaseTextBox, BaseTextBoxImpl, BaseTextBox, ShapeImpl> {
public:
    BaseTextBoxImpl();
    explicit BaseTextBoxImpl(const std::wstring& name);
    BaseTextBoxImpl(const std::wstring& name, const Record& record);
    BaseTextBoxImpl(const BaseTextBoxImpl& other);
    ~BaseTextBoxImpl() override;

    void replace(const HvContentPtr& content) override;
    std::wstring getText() const;
    const BaseAttribute<std::wstring>& getAutofit() const { return autofit_.get(); }
    /// @throws invalidPropertyValue
    void setAutofit(const std::wstring& value);
    void unsetAutofit() { autofit_.require().unset(); }
    /// One's own, which shows what is set later.
    const BaseAttribute<std::wstring>& requireAutofit() { return autofit_.require(); }

    /// Puts the items of a list behind the present paragraphs. Unlike all other ways in, this one doesn't
    /// tell the paragraphs of their parent.
    virtual void addList(const boost::shared_ptr<HvList>& list);
    virtual void add(const HvContentPtr& content);
    virtual Paragraph add(const Paragraph& paragraph);
    virtual Paragraph add(const std::wstring& text);
    virtual void replaceList(const boost::shared_ptr<HvList>& list);
    virtual Paragraph replace(const Paragraph& paragraph);
    virtual Paragraph replace(const std::wstring& text);

private:
    Lazy<BaseAttribute<std::wstring>> autofit_; // in lower case
};

} // namespace vellox::ppt

#endif
