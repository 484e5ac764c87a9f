/// @file
/// The classes of nodes.

#ifndef VELLOX_PPT_OBJECT_NODETYPE_H
#define VELLOX_PPT_OBJECT_NODETYPE_H

namespace vellox::ppt {

/// What a node is. The numbers are part of the interface; 0 stands for no node of interest.
enum class NodeType : int {
    None = 0,
    BaseTextBox = 1,
    BodyPlaceholder = 2,
    ColSpec = 3,
    ContentPlaceholder = 4,
    ExternalLink = 5,
    Group = 6,
    Picture = 7,
    PicturePlaceholder = 8,
    Paragraph = 9,
    Presentation = 10,
    Shape = 11,
    Slide = 12,
    Table = 13,
    TableEntry = 14,
    TablePlaceholder = 15,
    TableRow = 16,
    Text = 17,
    TextBox = 18,
    TextBoxPlaceholder = 19
};

} // namespace vellox::ppt

#endif
