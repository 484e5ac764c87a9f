/// @file
/// The state behind PPTNode. Internal: users hold facades.

#ifndef VELLOX_PPT_OBJECT_PPTNODEIMPL_H
#define VELLOX_PPT_OBJECT_PPTNODEIMPL_H

#include <boost/shared_ptr.hpp>
#include <memory>
#include <string>
#include <unordered_set>

#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox::ppt {

class ElementImpl;

/// An ordered list of children, which are owned, and a link to the parent, which isn't.
///
///     parent --children_--> facade --> child
///     parent <--------parent_--------- child
///
/// A child's link is set when it comes in and cleared when it is replaced or its parent ends. The one
/// asymmetry: setChildren() doesn't clear the links of those that fall out of the list.
class PPTNodeImpl : public PPTObjectImpl {
public:
    using Child = boost::shared_ptr<PPTNode>;
    using Children = PPTNode::Children;

    PPTNodeImpl() = default;
    explicit PPTNodeImpl(std::wstring name) : name_(std::move(name)) {}
    /// Copies the children, and neither name nor parent.
    PPTNodeImpl(const PPTNodeImpl& other);
    ~PPTNodeImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    boost::shared_ptr<PPTObject> makeHandle() override { return makeInterface(); }

    virtual void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const;
    /// A new facade of the node's own class.
    virtual Child makeInterface() = 0;
    virtual Child clone() const = 0;
    virtual NodeType getNodeType() const = 0;
    virtual bool isA(NodeType type) const;
    virtual void setName(const std::wstring& name);
    /// @{ @throws failedToAppendChild for a child that has a parent
    /// Before the reference, or at the end if that is no child.
    virtual void insertChildBefore(const Child& child, const PPTNode& reference);
    /// Before the child at the index, or at the end if there is none.
    virtual void insertChildAt(const Child& child, unsigned int index);
    virtual void appendChild(const Child& child);
    /// @}
    /// Appends clones of another node's children.
    void appendClones(const PPTNodeImpl& other);
    /// Puts a child in the place of another, or at the end if that isn't there; the other has no parent
    /// then. Whether the new child has a parent isn't asked.
    virtual void replaceChild(const PPTNode& former, const Child& child);

    const std::wstring& getName() const { return name_; }
    const Children& getChildren() const { return children_; }
    PPTNodeImpl* getParent() const { return parent_; }
    /// This node as an element, or null: presentations are none. Spares the writers a dynamic cast for every
    /// step up the tree.
    virtual const ElementImpl* asElement() const { return nullptr; }

protected:
    /// Takes the list as it is. Those in it without a parent get this one.
    void setChildren(const Children& children);
    Children& children() { return children_; }

private:
    Children::iterator findChild(const PPTNode& node);
    void requireFree(const PPTNode& child) const;
    void setParent(PPTNodeImpl* parent);
    void clearLinks();

    PPTNodeImpl* parent_ = nullptr;
    Children children_;
    std::wstring name_;
    // Nodes that fell out of the list and still link to this one, which must not outlive it. They aren't owned:
    // each leaves the set when it ends or gets another parent.
    std::unique_ptr<std::unordered_set<PPTNodeImpl*>> fallen_;
};

} // namespace vellox::ppt

#endif
