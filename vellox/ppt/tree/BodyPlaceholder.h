/// @file
/// Placeholders for body text.

#ifndef VELLOX_PPT_TREE_BODYPLACEHOLDER_H
#define VELLOX_PPT_TREE_BODYPLACEHOLDER_H

#include "vellox/ppt/tree/TextBoxPlaceholder.h"

namespace vellox::ppt {

class BodyPlaceholderImpl;

/// A placeholder for text. A handle: copies share one placeholder.
class VELLOX_API BodyPlaceholder : public TextBoxPlaceholder {
public:
    BodyPlaceholder();

    /// The node as a BodyPlaceholder, or an empty pointer.
    static boost::shared_ptr<BodyPlaceholder> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit BodyPlaceholder(BodyPlaceholderImpl* impl);
};

} // namespace vellox::ppt

#endif
