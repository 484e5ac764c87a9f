#include "vellox/ppt/object/PPTNode.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/object/PPTNodeImpl.h"

#include <algorithm>
#include <utility>

namespace vellox::ppt {

// PPTNodeImpl

PPTNodeImpl::PPTNodeImpl(const PPTNodeImpl& other) : PPTObjectImpl(other) {
    children_.reserve(other.children_.size());
    for (const Child& child : other.children_) {
        children_.push_back(child->clone());
        implOf<PPTNodeImpl>(*children_.back())->parent_ = this;
    }
}

PPTNodeImpl::~PPTNodeImpl() {
    for (const Child& child : children_)
        if (child)
            implOf<PPTNodeImpl>(*child)->parent_ = nullptr;
    for (const auto& fallen : fallen_)
        if (fallen->parent_ == this)
            fallen->parent_ = nullptr;
}

const char* PPTNodeImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Node";
}

void PPTNodeImpl::acceptWriter(PPTWriter*, xercesc::DOMNode*) const {}

bool PPTNodeImpl::isA(NodeType type) const {
    return type == getNodeType();
}

void PPTNodeImpl::setName(const std::wstring& name) {
    name_ = name;
}

void PPTNodeImpl::requireFree(const PPTNode& child) const {
    if (implOf<PPTNodeImpl>(child)->parent_)
        raise(ppt_error::failedToAppendChild());
}

PPTNodeImpl::Children::iterator PPTNodeImpl::findChild(const PPTNode& node) {
    return std::find_if(children_.begin(), children_.end(),
                        [&](const Child& child) { return child && *child == node; });
}

void PPTNodeImpl::insertChildBefore(const Child& child, const PPTNode& reference) {
    requireFree(*child);
    children_.insert(findChild(reference), child);
    implOf<PPTNodeImpl>(*child)->parent_ = this;
}

void PPTNodeImpl::insertChildAt(const Child& child, unsigned int index) {
    requireFree(*child);
    children_.insert(index < children_.size() ? children_.begin() + index : children_.end(), child);
    implOf<PPTNodeImpl>(*child)->parent_ = this;
}

void PPTNodeImpl::appendChild(const Child& child) {
    requireFree(*child);
    children_.push_back(child);
    implOf<PPTNodeImpl>(*child)->parent_ = this;
}

void PPTNodeImpl::replaceChild(const PPTNode& former, const Child& child) {
    // The list may hold the only reference to the former child, which has yet to lose its parent.
    const boost::intrusive_ptr<PPTNodeImpl> kept(implOf<PPTNodeImpl>(former));
    const auto place = findChild(former);
    if (place != children_.end())
        *place = child;
    else
        children_.push_back(child);
    implOf<PPTNodeImpl>(*child)->parent_ = this;
    kept->parent_ = nullptr;
}

void PPTNodeImpl::setChildren(const Children& children) {
    for (const Child& child : children) {
        PPTNodeImpl* node = implOf<PPTNodeImpl>(*child);
        if (!node->parent_)
            node->parent_ = this;
    }
    const Children former = std::exchange(children_, children);
    fallen_.erase(std::remove_if(fallen_.begin(), fallen_.end(),
                                 [](const auto& fallen) { return fallen->getRefCount() == 1; }),
                  fallen_.end());
    for (const Child& child : former)
        keepFallen(child);
}

void PPTNodeImpl::keepFallen(const Child& child) {
    PPTNodeImpl* node = implOf<PPTNodeImpl>(*child);
    const bool isHeldElsewhere = child.use_count() > 1 || node->getRefCount() > 1;
    if (isHeldElsewhere && node->parent_ == this)
        fallen_.emplace_back(node);
}

// PPTNode

PPTNode::PPTNode(PPTObjectImpl* impl) : PPTObject(impl) {}

PPTNodeImpl* PPTNode::pimpl() {
    return implOf<PPTNodeImpl>(*this);
}

const PPTNodeImpl* PPTNode::pimpl() const {
    return implOf<PPTNodeImpl>(*this);
}

const std::wstring& PPTNode::getName() const {
    return pimpl()->getName();
}

const PPTNode::Children& PPTNode::getChildren() const {
    return pimpl()->getChildren();
}

unsigned int PPTNode::getNChildren() const {
    return static_cast<unsigned int>(getChildren().size());
}

boost::shared_ptr<PPTNode> PPTNode::getParent() {
    PPTNodeImpl* parent = pimpl()->getParent();
    return parent ? parent->makeInterface() : boost::shared_ptr<PPTNode>();
}

NodeType PPTNode::getNodeType() const {
    return pimpl()->getNodeType();
}

bool PPTNode::isA(NodeType type) const {
    return pimpl()->isA(type);
}

boost::shared_ptr<PPTNode> PPTNode::makeInterface() const {
    return implOf<PPTNodeImpl>(*this)->makeInterface();
}

boost::shared_ptr<PPTNode> PPTNode::clone() const {
    return pimpl()->clone();
}

void PPTNode::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    pimpl()->acceptWriter(writer, parent);
}

// Searching

namespace {

enum class Searched { No, Itself, ItselfAndBelow };

Searched getSearched(NodeType type) {
    switch (type) {
    case NodeType::Group:
    case NodeType::Slide:
        return Searched::ItselfAndBelow;
    case NodeType::BaseTextBox:
    case NodeType::BodyPlaceholder:
    case NodeType::ContentPlaceholder:
    case NodeType::Picture:
    case NodeType::PicturePlaceholder:
    case NodeType::Table:
    case NodeType::TablePlaceholder:
    case NodeType::TextBox:
    case NodeType::TextBoxPlaceholder:
        return Searched::Itself;
    case NodeType::None:
    case NodeType::ColSpec:
    case NodeType::ExternalLink:
    case NodeType::Paragraph:
    case NodeType::Presentation:
    case NodeType::Shape:
    case NodeType::TableEntry:
    case NodeType::TableRow:
    case NodeType::Text:
        break;
    }
    return Searched::No;
}

} // namespace

void findNodes(const PPTNode* start, const std::wstring& name, PPTNode::Children& result) {
    if (!start)
        return;
    for (const boost::shared_ptr<PPTNode>& child : start->getChildren()) {
        const Searched searched = child ? getSearched(child->getNodeType()) : Searched::No;
        if (searched != Searched::No && child->getName() == name)
            result.push_back(child);
        if (searched == Searched::ItselfAndBelow)
            findNodes(child.get(), name, result);
    }
}

} // namespace vellox::ppt
