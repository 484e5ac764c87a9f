/// @file
/// The state behind PPTNode. Internal: users hold facades.

#ifndef VELLOX_PPT_OBJECT_PPTNODEIMPL_H
#define VELLOX_PPT_OBJECT_PPTNODEIMPL_H

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <string>
#include <type_traits>

#include "vellox/foundation/Lazy.h"
#include "vellox/ppt/object/PPTNode.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox {
class MsgID;
}

namespace vellox::ppt {

class ElementImpl;
struct ReportPlace;

/// An ordered list of children, which are owned, and a link to the parent, which isn't.
///
///     parent --children--> facade --> child
///     parent <--------parent--------- child
///
/// A child's link is set when it comes in and cleared when it is replaced or its parent ends. The one
/// asymmetry: setChildren() doesn't clear the links of those that fall out of the list. So a node may link to a
/// parent that doesn't list it, and stand in the list of one that it doesn't link to.
class PPTNodeImpl : public PPTObjectImpl {
public:
    using Child = boost::shared_ptr<PPTNode>;
    using Children = PPTNode::Children;

    PPTNodeImpl() = default;
    explicit PPTNodeImpl(const std::wstring& name) {
        if (!name.empty())
            requireMarks().name = name;
    }
    /// Without name, parent and children: copyOf() makes the copies of these once the new node is whole.
    PPTNodeImpl(const PPTNodeImpl& other) : PPTObjectImpl(other) {}
    ~PPTNodeImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    boost::shared_ptr<PPTObject> makeHandle() override { return makeInterface(); }

    virtual void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const;
    /// A new facade of the node's own class.
    virtual Child makeInterface() = 0;
    virtual Child clone() const = 0;
    virtual NodeType getNodeType() const = 0;
    /// This node as the class that has the type, which it is of or derives from; null for another. See implAs().
    virtual void* findLevel(NodeType) { return nullptr; }
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

    /// Takes out the children for which an action says so; they have no parent then.
    template <class Wanted> Children takeOut(Wanted isWanted);
    /// Puts a child before the one that has an index without it, or at the end if there is none.
    void moveChild(const PPTNode& child, unsigned int index);

    const std::wstring& getName() const { return getMarks().name; }
    /// The same for those who may keep it, and see in it what is set later.
    const std::wstring& requireName() { return requireMarks().name; }
    const Children& getChildren() const { return family_ ? family_->children : getNoChildren(); }
    /// The same for those who may keep it.
    const Children& requireChildren() { return children(); }
    PPTNodeImpl* getParent() const { return parent_ ? parent_->node : nullptr; }
    /// Takes note of a report about a node below, or about this one; see report(). Const, since it changes nothing that
    /// the node is or holds. Presentations do; other nodes forget it.
    virtual void hear(const MsgID& finding, const ReportPlace& place) const;
    /// Whether the node would still keep what it hears.
    virtual bool listens() const { return false; }
    /// This node as an element, or null: presentations are none. Spares the writers a dynamic cast for every
    /// step up the tree.
    virtual const ElementImpl* asElement() const { return nullptr; }

protected:
    /// What clone() is: a copy of a node, of its own class, with copies of its children. Listeners hear of the node
    /// before they hear of its children, and a child's parent is whole when they do.
    template <class Impl> static Child copyOf(const Impl& node) {
        const Child copy = (new Impl(node))->makeInterface();
        implOf<PPTNodeImpl>(*copy)->appendClones(node);
        return copy;
    }
    /// Takes the list as it is. Those in it without a parent get this one.
    void setChildren(const Children& children);
    Children& children() { return requireFamily().children; }

private:
    Children::iterator findPlaceOf(const PPTNode& node);
    void requireFree(const PPTNode& child) const;
    void setParent(PPTNodeImpl* parent);

    /// What a node has below it, and what those know it by: it stays for as long as the node and all that link to it.
    struct Family : InPieces, boost::intrusive_ref_counter<Family, boost::thread_unsafe_counter> {
        explicit Family(PPTNodeImpl* head) : node(head) {}

        PPTNodeImpl* node; // null once it has ended
        Children children;
    };
    Family& requireFamily();
    static const Children& getNoChildren();

    boost::intrusive_ptr<Family> parent_; // that of the parent
    boost::intrusive_ptr<Family> family_; // this one's own, from the first child on
};

/// The implementation behind a node if it is of this class or derives from it, else null. Without a dynamic cast, as decks
/// have nodes by the hundred thousand.
template <class Impl>
auto implAs(const PPTNode& node) -> decltype(void(Impl::kLevel), static_cast<Impl*>(nullptr)) {
    static_assert(std::is_same_v<typename Impl::Level, Impl>, "a class of no type of its own");
    auto* impl = implOf<PPTNodeImpl>(node);
    return impl ? static_cast<Impl*>(impl->findLevel(Impl::kLevel)) : nullptr;
}

template <class Wanted> PPTNodeImpl::Children PPTNodeImpl::takeOut(Wanted isWanted) {
    Children taken, left;
    for (const Child& child : getChildren())
        (isWanted(*child) ? taken : left).push_back(child);
    children().swap(left);
    for (const Child& child : taken)
        implOf<PPTNodeImpl>(*child)->setParent(nullptr);
    return taken;
}

} // namespace vellox::ppt

#endif
