/// @file
/// Tables: p:graphicFrame with an a:tbl (ECMA-376 Part 1, 21.1.3.13), free or in the place of another shape.

#ifndef VELLOX_PPT_WRITERS_TABLEWRITER_H
#define VELLOX_PPT_WRITERS_TABLEWRITER_H

#include <optional>
#include <string>

#include "vellox/ppt/rules/Facts.h"
#include "vellox/ppt/writers/ShapeWriter.h"
#include "vellox/ppt/writers/TableLook.h"

namespace vellox::ppt {

class TableImpl;
struct TableContext;
struct GraphicFrameElements;

class TableWriter : public ShapeWriter {
public:
    TableWriter(const TableImpl& table, PPTWriter& writer, xercesc::DOMNode* parentNode);
    void write() override;

private:
    void readFormer();
    GraphicFrameElements makeGraphicFrame();
    void writeProperties(xercesc::DOMElement* tbl);
    void showParts(xercesc::DOMElement* properties) const;
    TableStyle chooseStyle() const;
    void writeStyle(xercesc::DOMElement* properties, const std::wstring& id) const;
    void writeTemplateCells(TableContext& context) const;
    void reportNoRows() const;
    void reportMissingStyle(const std::wstring& name) const;
    const std::wstring* getStyleName() const;
    void updateGrid(const GraphicFrameElements& frame, const TableContext& context) const;
    GridFacts describeGrid(const xercesc::DOMElement* grid, const TableContext& context) const;

    const TableImpl& table_;
    xercesc::DOMElement* formerTbl_ = nullptr; // of the table whose place this one takes, if its look counts
    std::optional<TableLook> look_;            // its look
    TableParts formerParts_;
    TableParts parts_; // what this one shows in its own way
};

} // namespace vellox::ppt

#endif
