#include "vellox/ppt/tree/ByName.h"

#include "vellox/foundation/Identifiers.h"
#include "vellox/foundation/NameHint.h"
#include "vellox/ppt/messages/Announce.h"
#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/object/PPTNodeImpl.h"
#include "vellox/ppt/tree/BaseTextBoxImpl.h"
#include "vellox/ppt/tree/ShapeImpl.h"

namespace vellox::ppt {

namespace {

const PPTNodeImpl* getSlide(const PPTNodeImpl* node) {
    while (node && node->getNodeType() != NodeType::Slide)
        node = node->getParent();
    return node;
}

bool takes(const PPTNode& node, Takes least) {
    return getNodeKind(node.getNodeType()).takes >= least;
}

void collectNames(const PPTNode& start, Takes least, std::vector<std::wstring>& names) {
    for (const boost::shared_ptr<PPTNode>& child : start.getChildren()) {
        if (child && takes(*child, least))
            names.push_back(child->getName());
        if (child && getNodeKind(child->getNodeType()).searched == Searched::ItselfAndBelow)
            collectNames(*child, least, names);
    }
}

void reportUnknown(const PPTNode& start, const std::wstring& name, Takes least) {
    const auto& impl = *implOf<PPTNodeImpl>(start);
    if (!isHeard(impl))
        return;
    std::vector<std::wstring> names;
    collectNames(start, least, names);
    report(ppt_finding::unknownName(name, makeNameHint(name, names).getTail()), impl);
}

// Reports what a caller may not have meant. The nodes of one slide stand side by side in the list.
void reportBearers(const PPTNode& start, const std::wstring& name, Takes least,
                   const PPTNode::Children& found) {
    if (found.empty())
        reportUnknown(start, name, least);
    const PPTNodeImpl* slide = nullptr;
    unsigned int taking = 0;
    for (const boost::shared_ptr<PPTNode>& node : found) {
        const auto* impl = implOf<PPTNodeImpl>(*node);
        if (getSlide(impl) != slide)
            taking = 0;
        slide = getSlide(impl);
        if (!takes(*node, least))
            report(ppt_finding::contentRefused(name), *impl);
        else if (++taking == 2)
            report(ppt_finding::ambiguousName(name), *impl);
    }
}

// Calls an action with the implementation of every node of the name that takes as much.
template <class Impl, class Action>
void forEach(const PPTNode& start, const std::wstring& name, Takes least, Action action) {
    PPTNode::Children found;
    findNodes(&start, name, found);
    reportBearers(start, name, least, found);
    for (const boost::shared_ptr<PPTNode>& node : found)
        if (takes(*node, least))
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
