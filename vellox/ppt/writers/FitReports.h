/// @file
/// Whether texts and tables find room. Nobody here knows fonts: an average character is half as wide as it is high, a
/// line a fifth higher than its font. That is near enough to tell a page of text in a box for a paragraph.

#ifndef VELLOX_PPT_WRITERS_FITREPORTS_H
#define VELLOX_PPT_WRITERS_FITREPORTS_H

#include <vector>

namespace vellox::ppt {

class ShapeImpl;
class TableImpl;

/// Reports a text that takes more room than its box has. Of a box whose size nobody knows nothing is told.
void reportFit(const ShapeImpl& textBox);
/// Reports a table that takes more height than its box has, or than is left on its slide where it has none.
/// @param slideHeight in EMU; 0 where it isn't known
/// @param sharesWidth whether columns share the width by their texts
void reportFit(const TableImpl& table, double slideHeight, bool sharesWidth);

/// The width of the box that a table stands in or comes into, and the height that there is for it, in EMU; 0 where one
/// isn't known.
struct TableRoom {
    double width = 0, height = 0;
};
TableRoom findTableRoom(const ShapeImpl& shape, double slideHeight);

/// About how high the rows of a table are that is so wide, in EMU.
/// @param sharesWidth as above
std::vector<double> estimateRowHeights(const TableImpl& table, double width, bool sharesWidth);

} // namespace vellox::ppt

#endif
