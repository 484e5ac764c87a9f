#include "vellox/check/GridCheck.h"

#include "vellox/check/ElementFacts.h"
#include "vellox/opc/XercesString.h"

#include <vector>

namespace vellox::check {

using namespace xercesc;

namespace {

/// How many cells a cell covers: the number in an attribute, or 1.
unsigned readSpan(const DOMElement& cell, const XMLCh* name) {
    if (!cell.hasAttributes())
        return 1;
    const XMLCh* text = cell.getAttribute(name);
    unsigned span = 0;
    for (; *text >= u'0' && *text <= u'9' && span < 1000000; ++text)
        span = span * 10 + static_cast<unsigned>(*text - u'0');
    return span == 0 ? 1 : span;
}

bool isMerged(const DOMElement& cell, const XMLCh* name) {
    if (!cell.hasAttributes())
        return false;
    const std::u16string_view text(cell.getAttribute(name));
    return text == u"1" || text == u"true";
}

class Grid {
public:
    Grid(const DOMElement& table, const Place& place, Report& report)
        : table_(table),
          place_(place),
          report_(report) {}

    void check() {
        for (const DOMElement* child = table_.getFirstElementChild(); child;
             child = child->getNextElementSibling()) {
            if (getLocalName(*child) == u"tblGrid")
                rowsLeft_.assign(count(*child, u"gridCol"), 0);
            else if (getLocalName(*child) == u"tr")
                checkRow(*child);
        }
        for (const unsigned left : rowsLeft_)
            if (left > 0)
                return add(Code::tableGrid, L"a merged cell reaches below the last row");
    }

private:
    static std::size_t count(const DOMElement& parent, std::u16string_view name) {
        std::size_t number = 0;
        for (const DOMElement* child = parent.getFirstElementChild(); child;
             child = child->getNextElementSibling())
            number += getLocalName(*child) == name ? 1 : 0;
        return number;
    }

    void add(Code code, const std::wstring& text) { report_.add(code, place_, text, findShapeName(table_)); }

    void checkRow(const DOMElement& row) {
        ++row_;
        column_ = 0;
        const std::size_t cells = count(row, u"tc");
        if (cells != rowsLeft_.size())
            return add(Code::tableGrid, L"row " + std::to_wstring(row_) + L" has " + countOf(cells, L"cell") +
                                            L", and the grid has " + countOf(rowsLeft_.size(), L"column"));
        Span span;
        for (const DOMElement* cell = row.getFirstElementChild(); cell; cell = cell->getNextElementSibling())
            if (getLocalName(*cell) == u"tc") {
                checkCell(*cell, span);
                ++column_;
            }
    }

    /// The merged cell that the walk along a row is in.
    struct Span {
        std::size_t columnsLeft = 0;
        unsigned rowsBelow = 0;
    };

    void checkCell(const DOMElement& cell, Span& span) {
        unsigned& rowsLeft = rowsLeft_[column_];
        const bool isBelow = rowsLeft > 0, isBeside = span.columnsLeft > 0;
        checkMark(isMerged(cell, u"vMerge"), isBelow, L"above");
        // In the lower rows of a merged block, some programs leave the width out.
        if (!isBelow)
            checkMark(isMerged(cell, u"hMerge"), isBeside, L"to the left");
        if (isBeside) {
            --span.columnsLeft;
        } else {
            span = {readSpan(cell, u"gridSpan") - 1, readSpan(cell, u"rowSpan") - 1};
            if (span.columnsLeft >= rowsLeft_.size() - column_)
                addForCell(Code::tableGrid, L"the cell spans more columns than there are");
        }
        rowsLeft = isBelow ? rowsLeft - 1 : span.rowsBelow;
    }

    void checkMark(bool isMarked, bool isCovered, const wchar_t* where) {
        if (isCovered && !isMarked)
            addForCell(Code::tableSpan,
                       std::wstring(L"a cell ") + where + L" spans this one, which isn't marked as merged");
        else if (isMarked && !isCovered)
            addForCell(Code::tableSpan,
                       std::wstring(L"the cell is marked as merged, and none ") + where + L" spans it");
    }

    void addForCell(Code code, const std::wstring& text) {
        add(code,
            L"row " + std::to_wstring(row_) + L", column " + std::to_wstring(column_ + 1) + L": " + text);
    }

    const DOMElement& table_;
    const Place& place_;
    Report& report_;
    std::size_t row_ = 0;            // counted from 1
    std::size_t column_ = 0;         // counted from 0
    std::vector<unsigned> rowsLeft_; // in each column, that a cell above still covers
};

} // namespace

void checkGrid(const DOMElement& table, const Place& place, Report& report) {
    Grid(table, place, report).check();
}

} // namespace vellox::check
