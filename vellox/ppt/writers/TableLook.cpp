#include "vellox/ppt/writers/TableLook.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/ppt/xml/Dom.h"

#include <algorithm>
#include <numeric>

namespace vellox::ppt {

using namespace xercesc;

namespace {

bool isOn(const DOMElement& element, const XMLCh* attribute) {
    const std::wstring value = getAttribute(&element, attribute);
    return value == L"1" || value == L"true";
}

double getLength(const DOMElement& element, const XMLCh* attribute) {
    return std::max(0.0, str2double(getAttribute(&element, attribute)));
}

} // namespace

TableLook::TableLook(const DOMElement& tbl) {
    std::vector<const DOMElement*> rows;
    for (const DOMElement* child : getChildElements(&tbl))
        if (hasName(*child, xml::kATr))
            rows.push_back(child);
    for (const DOMElement* column : getChildElements(findChild(&tbl, xml::kATblGrid)))
        widths_.push_back(getLength(*column, xml::kW));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        height_ += getLength(*rows[i], xml::kH);
        if (i < 2 || i + 1 == rows.size())
            rows_.push_back(readRow(*rows[i]));
    }
}

// A cell that is covered by a wider or a higher one has no look of its own.
TableLook::Row TableLook::readRow(const DOMElement& row) {
    Row read;
    read.height = getLength(row, xml::kH);
    for (const DOMElement* cell : getChildElements(&row)) {
        if (!hasName(*cell, xml::kATc))
            continue;
        const bool isCovered = isOn(*cell, xml::kHMerge) || isOn(*cell, xml::kVMerge);
        if (isCovered && !read.cells.empty()) {
            read.cells.push_back(read.cells.back());
            continue;
        }
        read.cells.push_back(read.looks.size());
        CellLook& look = read.looks.emplace_back();
        if (const DOMElement* properties = findChild(cell, xml::kATcPr))
            look.tcPr.copyFrom(*properties);
        look.text = TextLook(findChild(cell, xml::kATxBody));
    }
    return read;
}

const TableLook::Row* TableLook::findRow(unsigned int row, unsigned int rowCount, bool hasTotalRow) const {
    if (rows_.empty())
        return nullptr;
    if (hasTotalRow && row > 0 && row + 1 == rowCount)
        return &rows_.back();
    return &rows_[std::min<std::size_t>(row, rows_.size() > 1 ? 1 : 0)];
}

const CellLook* TableLook::find(unsigned int row, unsigned int column, unsigned int rowCount,
                                bool hasTotalRow) const {
    const Row* found = findRow(row, rowCount, hasTotalRow);
    if (!found || found->cells.empty())
        return nullptr;
    return &found->looks[found->cells[std::min<std::size_t>(column, found->cells.size() - 1)]];
}

int TableLook::getRowHeight(unsigned int row, unsigned int rowCount, bool hasTotalRow) const {
    const Row* found = findRow(row, rowCount, hasTotalRow);
    if (!found || rowCount == 0)
        return 0;
    double sum = findRow(0, rowCount, hasTotalRow)->height;
    if (rowCount > 1)
        sum += findRow(rowCount - 1, rowCount, hasTotalRow)->height;
    if (rowCount > 2)
        sum += findRow(1, rowCount, hasTotalRow)->height * (rowCount - 2);
    return truncateToInt(sum > height_ ? found->height * height_ / sum : found->height);
}

double TableLook::getWidth() const {
    return std::accumulate(widths_.begin(), widths_.end(), 0.0);
}

} // namespace vellox::ppt
