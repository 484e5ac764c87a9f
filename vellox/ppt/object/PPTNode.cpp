#include "vellox/ppt/object/PPTNode.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/object/NodeKinds.h"
#include "vellox/ppt/object/PPTNodeImpl.h"

#include <algorithm>
#include <boost/intrusive_ptr.hpp>
#include <utility>

namespace vellox::ppt {

// PPTNodeImpl

PPTNodeImpl::~PPTNodeImpl() {
    if (!family_)
        return;
    family_->node = nullptr;
    const Children ended = std::exchange(family_->children, {});
}

PPTNodeImpl::Family& PPTNodeImpl::requireFamily() {
    if (!family_)
        family_ = new Family(this);
    return *family_;
}

const PPTNodeImpl::Children& PPTNodeImpl::getNoChildren() {
    static const Children& none = *new const Children;
    return none;
}

void PPTNodeImpl::setParent(PPTNodeImpl* parent) {
    parent_ = parent ? &parent->requireFamily() : nullptr;
}

const char* PPTNodeImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Node";
}

void PPTNodeImpl::acceptWriter(PPTWriter*, xercesc::DOMNode*) const {}

void PPTNodeImpl::hear(const MsgID&, const ReportPlace&) const {}

bool PPTNodeImpl::isA(NodeType type) const {
    return isKindOf(getNodeType(), type);
}

void PPTNodeImpl::setName(const std::wstring& name) {
    requireMarks().name = name;
}

void PPTNodeImpl::requireFree(const PPTNode& child) const {
    if (implOf<PPTNodeImpl>(child)->getParent())
        raise(ppt_error::failedToAppendChild());
}

PPTNodeImpl::Children::iterator PPTNodeImpl::findPlaceOf(const PPTNode& node) {
    return std::find_if(children().begin(), children().end(),
                        [&](const Child& child) { return child && *child == node; });
}

void PPTNodeImpl::insertChildBefore(const Child& child, const PPTNode& reference) {
    requireFree(*child);
    children().insert(findPlaceOf(reference), child);
    implOf<PPTNodeImpl>(*child)->setParent(this);
}

void PPTNodeImpl::insertChildAt(const Child& child, unsigned int index) {
    requireFree(*child);
    children().insert(index < children().size() ? children().begin() + index : children().end(), child);
    implOf<PPTNodeImpl>(*child)->setParent(this);
}

void PPTNodeImpl::appendChild(const Child& child) {
    requireFree(*child);
    children().push_back(child);
    implOf<PPTNodeImpl>(*child)->setParent(this);
}

void PPTNodeImpl::appendClones(const PPTNodeImpl& other) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): listeners may change the list
    const Children sources = other.getChildren();
    if (sources.empty())
        return;
    children().reserve(children().size() + sources.size());
    for (const Child& source : sources)
        PPTNodeImpl::appendChild(source->clone()); // a presentation's own would open it
}

void PPTNodeImpl::replaceChild(const PPTNode& former, const Child& child) {
    // The list may hold the only references to the former child and its handle, which end when all is in order.
    const boost::intrusive_ptr<PPTNodeImpl> kept(implOf<PPTNodeImpl>(former));
    const auto place = findPlaceOf(former);
    Child outgoing = child;
    if (place != children().end())
        place->swap(outgoing);
    else
        children().push_back(child);
    implOf<PPTNodeImpl>(*child)->setParent(this);
    kept->setParent(nullptr);
}

void PPTNodeImpl::moveChild(const PPTNode& child, unsigned int index) {
    const auto place = findPlaceOf(child);
    if (place == children().end())
        return;
    const Child moved = *place;
    children().erase(place);
    children().insert(index < children().size() ? children().begin() + index : children().end(), moved);
}

void PPTNodeImpl::setChildren(const Children& children) {
    for (const Child& child : children) {
        PPTNodeImpl* node = implOf<PPTNodeImpl>(*child);
        if (!node->getParent())
            node->setParent(this);
    }
    const Children former = std::exchange(this->children(), children); // ends when all is in order
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
    return implOf<PPTNodeImpl>(*this)->requireName();
}

const PPTNode::Children& PPTNode::getChildren() const {
    return implOf<PPTNodeImpl>(*this)->requireChildren();
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
    return heldImplOf<PPTNodeImpl>(*this)->clone();
}

void PPTNode::acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const {
    pimpl()->acceptWriter(writer, parent);
}

// Searching

void findNodes(const PPTNode* start, const std::wstring& name, PPTNode::Children& result) {
    if (!start)
        return;
    for (const boost::shared_ptr<PPTNode>& child : start->getChildren()) {
        const Searched searched = getNodeKind(child ? child->getNodeType() : NodeType::None).searched;
        if (searched != Searched::No && child->getName() == name)
            result.push_back(child);
        if (searched == Searched::ItselfAndBelow)
            findNodes(child.get(), name, result);
    }
}

} // namespace vellox::ppt
