/// @file
/// Tables: p:graphicFrame with an a:tbl (ECMA-376 Part 1, 21.1.3.13), free or in the place of another shape.

#ifndef VELLOX_PPT_WRITERS_TABLEWRITER_H
#define VELLOX_PPT_WRITERS_TABLEWRITER_H

#include <string>

#include "vellox/ppt/writers/ShapeWriter.h"

namespace vellox::ppt {

class TableImpl;
struct TableContext;

class TableWriter : public ShapeWriter {
public:
    TableWriter(const TableImpl& table, PPTWriter& writer, xercesc::DOMNode* parentNode);
    void write() override;

private:
    xercesc::DOMElement* makeFrame();
    bool applyTableStyle(xercesc::DOMElement* tbl) const;
    void writeTemplateCells() const;
    void reportNoRows() const;
    void reportMissingStyle() const;
    void updateGrid(xercesc::DOMElement* tbl, const TableContext& context) const;

    const TableImpl& table_;
};

} // namespace vellox::ppt

#endif
