#include "vellox/ppt/tree/ByName.h"

#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/object/PPTNodeImpl.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/ShapeImpl.h"

namespace vellox::ppt {

namespace {

// Calls an action with the implementation of every node of the name that takes as much.
template <class Impl, class Action>
void forEach(const PPTNode& start, const std::wstring& name, Takes least, Action action) {
    PPTNode::Children found;
    findNodes(&start, name, found);
    for (const boost::shared_ptr<PPTNode>& node : found)
        if (getNodeKind(node->getNodeType()).takes >= least)
            action(*implOf<Impl>(*node));
}

} // namespace

// Texts and paragraphs come by value: what the first box loses may be the very thing that was given.

void addByName(const PPTNode& start, const std::wstring& name, std::wstring text) {
    forEach<BaseTextBoxImpl>(start, name, Takes::TextAndContent,
                             [&](BaseTextBoxImpl& box) { box.add(text); });
}

void addByName(const PPTNode& start, const std::wstring& name, Paragraph paragraph) {
    forEach<BaseTextBoxImpl>(start, name, Takes::TextAndContent, [&](BaseTextBoxImpl& box) {
        if (implOf<PPTNodeImpl>(paragraph)->getParent())
            box.add(static_cast<const Paragraph&>(*paragraph.clone()));
        else
            box.add(paragraph);
    });
}

void replaceByName(const PPTNode& start, const std::wstring& name, std::wstring text) {
    forEach<BaseTextBoxImpl>(start, name, Takes::TextAndContent,
                             [&](BaseTextBoxImpl& box) { box.replace(text); });
}

void replaceByName(const PPTNode& start, const std::wstring& name, Paragraph paragraph) {
    forEach<BaseTextBoxImpl>(start, name, Takes::TextAndContent,
                             [&](BaseTextBoxImpl& box) { box.replace(paragraph); });
}

void replaceByName(const PPTNode& start, const std::wstring& name, const HvContentPtr& content) {
    forEach<ShapeImpl>(start, name, Takes::Content, [&](ShapeImpl& shape) { shape.replace(content); });
}

} // namespace vellox::ppt
