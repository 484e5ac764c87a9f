#include "vellox/ppt/tree/ByName.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/messages/Announce.h"
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

bool takes(const PPTNode& node, bool Row::*what) {
    for (const Row& row : kRows)
        if (row.type == node.getNodeType() && row.*what)
            return true;
    return false;
}

const PPTNodeImpl* getSlide(const PPTNodeImpl* node) {
    while (node && node->getNodeType() != NodeType::Slide)
        node = node->getParent();
    return node;
}

// Reports what a caller may not have meant. The nodes of one slide stand side by side in the list.
template <class Takes>
void reportBearers(const PPTNode& start, const std::wstring& name, const PPTNode::Children& found,
                   Takes takes) {
    if (found.empty())
        report(ppt_finding::unknownName(name), *implOf<PPTNodeImpl>(start));
    const PPTNodeImpl* slide = nullptr;
    unsigned int taking = 0;
    for (const boost::shared_ptr<PPTNode>& node : found) {
        const auto* impl = implOf<PPTNodeImpl>(*node);
        if (getSlide(impl) != slide)
            taking = 0;
        slide = getSlide(impl);
        if (!takes(*node))
            report(ppt_finding::contentRefused(name), *impl);
        else if (++taking == 2)
            report(ppt_finding::ambiguousName(name), *impl);
    }
}

// Calls an action with the implementation of every node of the name that takes what a column of the table
// says.
template <class Impl, class Action>
void forEach(const PPTNode& start, const std::wstring& name, bool Row::*what, Action action) {
    PPTNode::Children found;
    findNodes(&start, name, found);
    reportBearers(start, name, found, [&](const PPTNode& node) { return takes(node, what); });
    for (const boost::shared_ptr<PPTNode>& node : found)
        if (takes(*node, what))
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
