/// @file
/// Placeholders for anything.

#ifndef VELLOX_PPT_TREE_CONTENTPLACEHOLDER_H
#define VELLOX_PPT_TREE_CONTENTPLACEHOLDER_H

#include "vellox/ppt/tree/PicturePlaceholder.h"
#include "vellox/ppt/tree/Table.h"

namespace vellox::ppt {

class ContentPlaceholderImpl;

/// A placeholder for text, a picture or a table. A handle: copies share one placeholder.
class VELLOX_API ContentPlaceholder : public PicturePlaceholder {
public:
    ContentPlaceholder();

    using PicturePlaceholder::replace;
    /// Puts a new table, made from the given one, in this placeholder's place and under its name; the given
    /// one stays a free object and can be used again.
    /// @return a handle on the new table, or the argument if the placeholder doesn't stand directly on a
    ///         slide, in which case nothing changes
    /// @throws placeholderWasReplacedByObject if the placeholder stands nowhere (any more)
    Table replace(const Table& table);

    /// The node as a ContentPlaceholder, or an empty pointer.
    static boost::shared_ptr<ContentPlaceholder> cast(const boost::shared_ptr<PPTNode>& node);

protected:
    friend struct ObjectAccess;
    explicit ContentPlaceholder(ContentPlaceholderImpl* impl);
    ContentPlaceholderImpl* pimpl();
    const ContentPlaceholderImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
