/// @file
/// Table rows: a:tr (ECMA-376 Part 1, 21.1.3.18).

#ifndef VELLOX_PPT_WRITERS_TABLEROWWRITER_H
#define VELLOX_PPT_WRITERS_TABLEROWWRITER_H

#include "vellox/ppt/writers/ElementWriter.h"

namespace vellox::ppt {

class TableRowImpl;

/// A row's formats aren't applied here: its entries find them.
class TableRowWriter : public ElementWriter {
public:
    TableRowWriter(const TableRowImpl& row, PPTWriter& writer, xercesc::DOMNode* parentNode);
    void write() override;

private:
    const TableRowImpl& row_;
};

} // namespace vellox::ppt

#endif
