#include "vellox/ppt/object/PPTNode.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/object/PPTNodeImpl.h"

#include <algorithm>
#include <boost/intrusive_ptr.hpp>
#include <utility>

namespace vellox::ppt {

// PPTNodeImpl

PPTNodeImpl::PPTNodeImpl(const PPTNodeImpl& other) : PPTObjectImpl(other) {
    // Listeners hear of the copies, and may change the list that is copied.
    const Children sources = other.children_;
    children_.reserve(sources.size());
    try {
        for (const Child& source : sources) {
            children_.push_back(source->clone());
            implOf<PPTNodeImpl>(*children_.back())->parent_ = this;
        }
    } catch (...) {
        clearLinks();
        throw;
    }
}

PPTNodeImpl::~PPTNodeImpl() {
    clearLinks();
    setParent(nullptr);
}

/// Nothing may link to this node once it has ended.
void PPTNodeImpl::clearLinks() {
    for (const Child& child : children_)
        if (child)
            implOf<PPTNodeImpl>(*child)->parent_ = nullptr;
    if (!fallen_)
        return;
    for (PPTNodeImpl* node : *fallen_)
        node->parent_ = nullptr;
    fallen_.reset();
}

void PPTNodeImpl::setParent(PPTNodeImpl* parent) {
    if (parent_ && parent_ != parent && parent_->fallen_)
        parent_->fallen_->erase(this);
    parent_ = parent;
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
    implOf<PPTNodeImpl>(*child)->setParent(this);
}

void PPTNodeImpl::insertChildAt(const Child& child, unsigned int index) {
    requireFree(*child);
    children_.insert(index < children_.size() ? children_.begin() + index : children_.end(), child);
    implOf<PPTNodeImpl>(*child)->setParent(this);
}

void PPTNodeImpl::appendChild(const Child& child) {
    requireFree(*child);
    children_.push_back(child);
    implOf<PPTNodeImpl>(*child)->setParent(this);
}

void PPTNodeImpl::appendClones(const PPTNodeImpl& other) {
    const Children sources = other.children_; // listeners may change the list
    for (const Child& source : sources)
        appendChild(source->clone());
}

void PPTNodeImpl::replaceChild(const PPTNode& former, const Child& child) {
    // The list may hold the only references to the former child and its handle, which end when all is in order.
    const boost::intrusive_ptr<PPTNodeImpl> kept(implOf<PPTNodeImpl>(former));
    const auto place = findChild(former);
    Child outgoing = child;
    if (place != children_.end())
        place->swap(outgoing);
    else
        children_.push_back(child);
    implOf<PPTNodeImpl>(*child)->setParent(this);
    kept->setParent(nullptr);
}

void PPTNodeImpl::setChildren(const Children& children) {
    for (const Child& child : children) {
        PPTNodeImpl* node = implOf<PPTNodeImpl>(*child);
        if (!node->parent_)
            node->setParent(this);
    }
    const Children former = std::exchange(children_, children);
    for (const Child& child : former) {
        PPTNodeImpl* node = implOf<PPTNodeImpl>(*child);
        if (node->parent_ != this)
            continue;
        if (!fallen_)
            fallen_ = std::make_unique<std::unordered_set<PPTNodeImpl*>>();
        fallen_->insert(node);
    }
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
    const bool isThere = parent && parent->getLife() != PPTObjectImpl::Life::Ending;
    return isThere ? parent->makeInterface() : boost::shared_ptr<PPTNode>();
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
