/// @file
/// Table cells: a:tc (ECMA-376 Part 1, 21.1.3.16).

#ifndef VELLOX_PPT_WRITERS_TABLEENTRYWRITER_H
#define VELLOX_PPT_WRITERS_TABLEENTRYWRITER_H

#include "vellox/ppt/formats/SpellingTable.h"
#include "vellox/ppt/writers/ElementWriter.h"
#include "vellox/ppt/xml/PropertyElement.h"

namespace vellox::ppt {

struct CellLook;
struct CellRange;
struct TableContext;

class TableEntryWriter : public ElementWriter {
public:
    /// @param entry the entry, or the row for a cell that it has no entry for
    TableEntryWriter(const ElementImpl& entry, PPTWriter& writer, xercesc::DOMNode* parentNode);

    void write() override;
    /// Writes what the entry has come to have over a cell that is there.
    void writeOver(const TableEntryImpl& entry, xercesc::DOMElement* cell);
    /// Writes a cell without content.
    void writeBlank();
    void applyFormat(const Format& format) override;
    const FormatTypes& inheritedFormatTypes() const override;

    /// The cell's properties. They are written if anything is put in.
    PropertyElement& getTcPr() { return tcPr_; }
    void setTcPrAttribute(const XMLCh* name, const ValueMapping& mapping);
    void setTcPrFlag(const XMLCh* name, bool value);
    /// Appends a new element to the cell's properties.
    PropertyElement& addTcPrChild(const XMLCh* name);
    /// Widens the column that the cell stands in.
    void setColumnWidth(int widthEmu);

private:
    void applyToTexts(xercesc::DOMElement* body) const;
    void applyToText(xercesc::DOMElement* properties) const;

    template <class Content> void writeCell(Content content);
    std::wstring showNew(const std::wstring& text) const;
    void writeEmpty() const;
    void writeMissing(const PPTWriter::Frame& frame) const;
    void writeCovered(const CellRange& merged) const;
    void writeSpans(const CellRange& merged) const;
    template <class F, class Take> void visitFormats(FormatType type, Take take) const;
    template <class Take> void visitMerged(const CellRange& cell, Take take) const;
    void findValues() const;
    void applyLines();
    void applyMargins();

    TableContext* table_;
    const CellLook* look_; // of the cell in whose stead it comes; null if there is none
    PropertyElement tcPr_;
};

} // namespace vellox::ppt

#endif
