/// @file
/// Whether texts and tables find room. Nobody here knows fonts: an average character is half as wide as it is high, a
/// line a fifth higher than its font. That is near enough to tell a page of text in a box for a paragraph.

#ifndef VELLOX_PPT_WRITERS_FITREPORTS_H
#define VELLOX_PPT_WRITERS_FITREPORTS_H

namespace vellox::ppt {

class ShapeImpl;
class TableImpl;

/// Reports a text that takes more room than its box has. Of a box whose size nobody knows nothing is told.
void reportFit(const ShapeImpl& textBox);
/// Reports a table that takes more height than its box has, or than is left on its slide where it has none.
/// @param slideHeight in EMU; 0 where it isn't known
void reportFit(const TableImpl& table, double slideHeight);

} // namespace vellox::ppt

#endif
