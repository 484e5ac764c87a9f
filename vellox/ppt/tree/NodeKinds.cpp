#include "vellox/ppt/object/NodeKinds.h"

#include "vellox/ppt/tree/BodyPlaceholderImpl.h"
#include "vellox/ppt/tree/ContentPlaceholderImpl.h"
#include "vellox/ppt/tree/GroupImpl.h"
#include "vellox/ppt/tree/PictureImpl.h"
#include "vellox/ppt/tree/PicturePlaceholderImpl.h"
#include "vellox/ppt/tree/TableImpl.h"
#include "vellox/ppt/tree/TablePlaceholderImpl.h"
#include "vellox/ppt/tree/TextBoxImpl.h"
#include "vellox/ppt/tree/TextBoxPlaceholderImpl.h"

#include <iterator>

namespace vellox::ppt {

namespace {

using Record = ShapeImpl::Record;

template <class Impl> PPTNodeImpl::Child make(const Record& record, const std::wstring& name) {
    return (new Impl(name, record))->makeInterface();
}

using T = NodeType;

// In the order of the types. No kind but itself counts as a bare shape, which isn't found either; a placeholder for a
// table takes no text by its name, though it does otherwise.
constexpr NodeKind kKinds[] = {
    {T::None, ""},
    {T::BaseTextBox, "vellox.ppt.BaseTextBox", T::None, Searched::Itself},
    {T::BodyPlaceholder, "vellox.ppt.BodyPlaceholder", T::TextBoxPlaceholder, Searched::Itself,
     Takes::TextAndContent, make<BodyPlaceholderImpl>},
    {T::ColSpec, "vellox.ppt.ColSpec"},
    {T::ContentPlaceholder, "vellox.ppt.ContentPlaceholder", T::PicturePlaceholder, Searched::Itself,
     Takes::TextAndContent, make<ContentPlaceholderImpl>},
    {T::ExternalLink, "vellox.ppt.ExternalLink"},
    {T::Group, "vellox.ppt.Group", T::None, Searched::ItselfAndBelow, Takes::Nothing, make<GroupImpl>},
    {T::Picture, "vellox.ppt.Picture", T::None, Searched::Itself, Takes::Nothing, make<PictureImpl>},
    {T::PicturePlaceholder, "vellox.ppt.PicturePlaceholder", T::BodyPlaceholder, Searched::Itself,
     Takes::TextAndContent, make<PicturePlaceholderImpl>},
    {T::Paragraph, "vellox.ppt.Paragraph"},
    {T::Presentation, "vellox.ppt.Presentation"},
    {T::Shape, "vellox.ppt.Shape"},
    {T::Slide, "vellox.ppt.Slide", T::None, Searched::ItselfAndBelow},
    {T::Table, "vellox.ppt.Table", T::None, Searched::Itself, Takes::Content, make<TableImpl>},
    {T::TableEntry, "vellox.ppt.TableEntry"},
    {T::TablePlaceholder, "vellox.ppt.TablePlaceholder", T::BodyPlaceholder, Searched::Itself, Takes::Content,
     make<TablePlaceholderImpl>},
    {T::TableRow, "vellox.ppt.TableRow"},
    {T::Text, "vellox.ppt.Text"},
    {T::TextBox, "vellox.ppt.TextBox", T::BaseTextBox, Searched::Itself, Takes::TextAndContent,
     make<TextBoxImpl>},
    {T::TextBoxPlaceholder, "vellox.ppt.TextBoxPlaceholder", T::BaseTextBox, Searched::Itself,
     Takes::TextAndContent, make<TextBoxPlaceholderImpl>},
};

constexpr bool areInOrder() {
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        if (kKinds[i].type != static_cast<NodeType>(i))
            return false;
    return kKinds[std::size(kKinds) - 1].type == NodeType::TextBoxPlaceholder; // the last there is
}
static_assert(areInOrder(), "getNodeKind() counts on it");

} // namespace

const NodeKind& getNodeKind(NodeType type) {
    return kKinds[static_cast<std::size_t>(type)];
}

bool isKindOf(NodeType type, NodeType family) {
    for (; type != NodeType::None; type = getNodeKind(type).isA)
        if (type == family)
            return true;
    return false;
}

} // namespace vellox::ppt
