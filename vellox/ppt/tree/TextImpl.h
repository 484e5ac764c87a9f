/// @file
/// The state behind Text. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_TEXTIMPL_H
#define VELLOX_PPT_TREE_TEXTIMPL_H

#include <string>
#include <variant>

#include "vellox/host/values/HvContent.h"
#include "vellox/ppt/object/ElementImpl.h"
#include "vellox/ppt/object/NodeOf.h"
#include "vellox/ppt/tree/Text.h"

namespace vellox::ppt {

class TextImpl : public NodeOf<NodeType::Text, TextImpl, Text, ElementImpl> {
public:
    /// What a run was given beside its text: nothing more, a number, a whole number, a truth value. A node may stand
    /// in no presentation yet, so how such a value is to look is for its writer to say.
    using Given = std::variant<std::monostate, double, long long, bool>;

    TextImpl();
    explicit TextImpl(const std::wstring& text);
    explicit TextImpl(const Given& given);
    /// Numbers and truth values become numbers, texts texts; an object or a value of an unknown kind becomes
    /// its description; anything else leaves the run empty.
    explicit TextImpl(const HvContentPtr& content);
    TextImpl(const TextImpl& other);
    ~TextImpl() override;

    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const override;

    const std::wstring& getTextContent() const { return textContent_; }
    void setTextContent(const std::wstring& text);
    double getNumContent() const;
    /// Makes the run one of what is given, with the text of that as a number: 17 digits, a truth value 1 or 0.
    void setGiven(const Given& given);
    const Given& getGiven() const { return given_; }
    bool isNumContent() const { return !std::holds_alternative<std::monostate>(given_); }

private:
    void setContent(const HvContentPtr& content);

    std::wstring textContent_; // always kept, also for numbers
    Given given_;
};

} // namespace vellox::ppt

#endif
