/// @file
/// What sets the classes of nodes apart, as data: one row for each. Internal. Searches, operations by name, the reader
/// of a template and the nodes themselves read it, so that a new class of shapes is a row, a pair and a writer.

#ifndef VELLOX_PPT_OBJECT_NODEKINDS_H
#define VELLOX_PPT_OBJECT_NODEKINDS_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/ppt/object/NodeType.h"

namespace vellox::ppt {

class PPTNode;
struct TemplateShape;

/// What a search by name looks at.
enum class Searched { No, Itself, ItselfAndBelow };

/// What a node takes by its name; each takes what the ones ahead of it do. Kinds that take text are text boxes, those
/// that take content are shapes.
enum class Takes { Nothing, Content, TextAndContent };

struct NodeKind {
    /// Makes a node of a record of the template, still without what the record holds.
    using Maker = boost::shared_ptr<PPTNode> (*)(const boost::shared_ptr<TemplateShape>& record,
                                                 const std::wstring& name);

    NodeType type;
    const char* hostName;          ///< of the class, in host languages
    NodeType isA = NodeType::None; ///< what it counts as too, if it does; the bases of the class say more
    Searched searched = Searched::No;
    Takes takes = Takes::Nothing;
    /// @{ Of what a template may have; null for other kinds.
    const char16_t* nonVisual = nullptr; ///< the element that keeps a shape's id and name
    Maker make = nullptr;
    /// @}
};

/// The row of a type. That of None is of nothing.
const NodeKind& getNodeKind(NodeType type);

/// True for the type itself and for all that it counts as.
bool isKindOf(NodeType type, NodeType family);

} // namespace vellox::ppt

#endif
