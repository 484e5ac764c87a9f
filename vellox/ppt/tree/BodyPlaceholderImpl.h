/// @file
/// The state behind BodyPlaceholder. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_BODYPLACEHOLDERIMPL_H
#define VELLOX_PPT_TREE_BODYPLACEHOLDERIMPL_H

#include "vellox/ppt/tree/TextBoxPlaceholderImpl.h"

namespace vellox::ppt {

class BodyPlaceholderImpl : public TextBoxPlaceholderImpl {
public:
    BodyPlaceholderImpl();
    BodyPlaceholderImpl(const std::wstring& name, const Record& record, const std::wstring& placeholderType);
    BodyPlaceholderImpl(const BodyPlaceholderImpl& other);
    ~BodyPlaceholderImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    Child makeInterface() override;
    Child clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;
};

} // namespace vellox::ppt

#endif
