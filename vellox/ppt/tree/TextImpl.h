/// @file
/// The state behind Text. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TEXTIMPL_H
#define VELLOX_PPT_TREE_TEXTIMPL_H

#include <string>

#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/object/ElementImpl.h"

namespace vellox::ppt {

class TextImpl : public ElementImpl {
public:
    TextImpl();
    explicit TextImpl(const std::wstring& text);
    explicit TextImpl(double number);
    /// Numbers and truth values become numbers, texts texts; an object or a value of an unknown kind becomes
    /// its description; anything else leaves the run empty.
    explicit TextImpl(const HvContentPtr& content);
    TextImpl(const TextImpl& other);
    ~TextImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;
    Child makeInterface() override;
    Child clone() const override;
    NodeType getNodeType() const override;

    const std::wstring& getTextContent() const { return textContent_; }
    void setTextContent(const std::wstring& text);
    double getNumContent() const;
    void setNumContent(double number);
    bool isNumContent() const { return isNum_; }

private:
    void setContent(const HvContentPtr& content);

    std::wstring textContent_; // always kept, also for numbers
    double numContent_ = 0;    // valid while isNum_ is true
    bool isNum_ = false;
};

} // namespace vellox::ppt

#endif
