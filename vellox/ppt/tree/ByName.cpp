#include "vellox/ppt/tree/ByName.h"

#include "vellox/ppt/object/PPTNodeImpl.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/ShapeImpl.h"

namespace vellox::ppt {

namespace {

struct Row {
    NodeType type;
    bool takesText;
    bool takesContent;
};

constexpr Row kRows[] = {
    {NodeType::BodyPlaceholder, true, true},
    {NodeType::ContentPlaceholder, true, true},
    {NodeType::PicturePlaceholder, true, true},
    {NodeType::TextBoxPlaceholder, true, true},
    {NodeType::TextBox, true, true},
    {NodeType::TablePlaceholder, false, true},
    {NodeType::Table, false, true},
};

// Calls an action with the implementation of every node of the name that takes what a column of the table
// says.
template <class Impl, class Action>
void forEach(const PPTNode& start, const std::wstring& name, bool Row::*takes, Action action) {
    PPTNode::Children found;
    findNodes(&start, name, found);
    for (const boost::shared_ptr<PPTNode>& node : found)
        for (const Row& row : kRows)
            if (row.type == node->getNodeType() && row.*takes)
                action(*implOf<Impl>(*node));
}

} // namespace

// Texts and paragraphs come by value: what the first box loses may be the very thing that was given.

void addByName(const PPTNode& start, const std::wstring& name, std::wstring text) {
    forEach<BaseTextBoxImpl>(start, name, &Row::takesText, [&](BaseTextBoxImpl& box) { box.add(text); });
}

void addByName(const PPTNode& start, const std::wstring& name, Paragraph paragraph) {
    forEach<BaseTextBoxImpl>(start, name, &Row::takesText, [&](BaseTextBoxImpl& box) {
        if (implOf<PPTNodeImpl>(paragraph)->getParent())
            box.add(static_cast<const Paragraph&>(*paragraph.clone()));
        else
            box.add(paragraph);
    });
}

void replaceByName(const PPTNode& start, const std::wstring& name, std::wstring text) {
    forEach<BaseTextBoxImpl>(start, name, &Row::takesText, [&](BaseTextBoxImpl& box) { box.replace(text); });
}

void replaceByName(const PPTNode& start, const std::wstring& name, Paragraph paragraph) {
    forEach<BaseTextBoxImpl>(start, name, &Row::takesText,
                             [&](BaseTextBoxImpl& box) { box.replace(paragraph); });
}

void replaceByName(const PPTNode& start, const std::wstring& name, const HvContentPtr& content) {
    forEach<ShapeImpl>(start, name, &Row::takesContent, [&](ShapeImpl& shape) { shape.replace(content); });
}

} // namespace vellox::ppt
