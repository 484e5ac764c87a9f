/// @file
/// Nodes: what a presentation is made of. A presentation holds slides, a slide holds shapes, a text box holds
/// paragraphs, a paragraph holds texts, a table holds rows over entries over paragraphs.

#ifndef VELLOX_PPT_OBJECT_PPTNODE_H
#define VELLOX_PPT_OBJECT_PPTNODE_H

#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/ppt/object/DomForward.h"
#include "vellox/ppt/object/NodeType.h"
#include "vellox/ppt/object/PPTObject.h"

namespace vellox::ppt {

class PPTNodeImpl;
class PPTWriter;

/// A node of the tree. A node has at most one parent, and its parent keeps it alive. There is no operation
/// that takes a node out; replacing a placeholder, a picture or a table does.
class VELLOX_API PPTNode : public PPTObject {
public:
    using Children = std::vector<boost::shared_ptr<PPTNode>>;

    /// What searches compare against. The copy of a node has none.
    const std::wstring& getName() const;
    /// In order. The reference stays valid as long as the node.
    const Children& getChildren() const;
    unsigned int getNChildren() const;
    /// An empty pointer for a node that stands nowhere.
    boost::shared_ptr<PPTNode> getParent();
    NodeType getNodeType() const;
    /// True for the node's own type; for text boxes and placeholders also for those that they are kinds of.
    bool isA(NodeType type) const;
    /// A new facade of the node's own class.
    boost::shared_ptr<PPTNode> makeInterface() const;
    /// A copy with copies of all that it holds: with a new Id, without tag, name and parent. Formats are
    /// shared with the original until one of the two replaces them.
    virtual boost::shared_ptr<PPTNode> clone() const;
    /// Lets a writer write the node below a DOM node. Called by the library when a presentation closes.
    void acceptWriter(PPTWriter* writer, xercesc::DOMNode* parent) const;

protected:
    explicit PPTNode(PPTObjectImpl* impl);
    PPTNodeImpl* pimpl();
    const PPTNodeImpl* pimpl() const;
};

/// Appends to `result` every node below `start` that has the name: slides, groups, text boxes,
/// placeholders, pictures and tables; depth first, a container ahead of what it holds. What stands inside
/// text boxes and tables isn't searched.
VELLOX_API void findNodes(const PPTNode* start, const std::wstring& name, PPTNode::Children& result);

} // namespace vellox::ppt

#endif
