#include "vellox/ppt/fill/TablePages.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/engine/PresentationImpl.h"
#include "vellox/ppt/fill/ShapeKeys.h"
#include "vellox/ppt/rules/Rules.h"
#include "vellox/ppt/writers/FitReports.h"

#include <algorithm>

namespace vellox::ppt {

// TablePages

TablePages::TablePages(const Table& table)
    : table_(heldImplOf<TableImpl>(table)),
      bare_(new TableImpl(*table_)),
      header_(std::min<std::size_t>(table_->countHeaderRows(), table_->getChildren().size())) {
    bare_->setMerged({});
    if (!table_->getChildren().empty())
        ends_ = {table_->getChildren().size()};
    findMerged();
}

void TablePages::splitByCount(unsigned int rows) {
    const std::size_t count = table_->getChildren().size();
    ends_.clear();
    for (std::size_t end = header_; end < count;)
        ends_.push_back(end = std::min(count, end + rows));
    if (ends_.empty() && count > 0)
        ends_.push_back(count);
    findMerged();
}

void TablePages::splitByHeight(const std::vector<double>& heights, double room) {
    double header = 0;
    for (std::size_t row = 0; row < header_; ++row)
        header += heights[row];
    ends_.clear();
    double height = header;
    for (std::size_t row = header_; row < heights.size(); ++row) {
        const bool isFirst = row == findFirst(ends_.size());
        if (!isFirst && height + heights[row] > room) {
            ends_.push_back(row);
            height = header;
        }
        height += heights[row];
    }
    if (!heights.empty())
        ends_.push_back(heights.size());
    findMerged();
}

void TablePages::findMerged() {
    merged_.assign(ends_.size(), {});
    for (const CellRange& range : table_->getMerged().getRanges()) {
        if (ends_.empty() || range.lastRow >= ends_.back()) // the table has lost rows since
            continue;
        const auto pageOf = [&](std::size_t row) {
            return static_cast<std::size_t>(std::upper_bound(ends_.begin(), ends_.end(), row) -
                                            ends_.begin());
        };
        const bool isInHeader = range.row < header_;
        const bool isOnAll = isInHeader && range.lastRow < header_;
        const std::size_t last = isOnAll ? ends_.size() - 1 : pageOf(range.lastRow);
        for (std::size_t page = isInHeader ? 0 : pageOf(range.row); page <= last; ++page)
            merged_[page].push_back(range);
    }
}

Table TablePages::makePage(std::size_t page) const {
    const PPTNodeImpl::Child child = (new TableImpl(*bare_))->makeInterface();
    TableImpl& made = *implOf<TableImpl>(*child);
    const PPTNodeImpl::Children& rows = table_->getChildren();
    for (std::size_t row = 0; row < header_; ++row)
        made.append(rows[row]->clone());
    for (std::size_t row = findFirst(page); row < ends_[page]; ++row)
        made.append(rows[row]->clone());
    takeMerged(made, page);
    const bool isLast = page + 1 == ends_.size();
    if (!isLast && made.part(TablePart::TotalRow).isSet())
        made.part(TablePart::TotalRow).set(false);
    return static_cast<const Table&>(*child);
}

// What began on an earlier part is shown at the top of this one.
void TablePages::takeMerged(TableImpl& made, std::size_t page) const {
    const std::size_t first = findFirst(page), end = ends_[page];
    const auto place = [&](std::size_t row) {
        return static_cast<unsigned int>(row < header_ ? row : row - first + header_);
    };
    MergedCells merged;
    for (const CellRange& range : merged_[page]) {
        CellRange here = range;
        here.row = place(range.row < header_ ? range.row : std::max<std::size_t>(range.row, first));
        here.lastRow =
            place(range.lastRow < header_ ? range.lastRow : std::min<std::size_t>(range.lastRow, end - 1));
        const PPTNode::Children shown = table_->getChildren()[range.row]->getChildren();
        auto* row = implOf<PPTNodeImpl>(*made.getChildren()[here.row]);
        const bool areThere = std::min(shown.size(), row->getChildren().size()) > range.column;
        if (range.row >= header_ && range.row < first && areThere)
            row->replaceChild(*row->getChildren()[range.column], shown[range.column]->clone());
        if (!here.isOneCell())
            merged.add(here);
    }
    made.setMerged(merged);
}

// Presentation::addPages

namespace {

double readRoom(const std::wstring& length) {
    const double emu = Dimension::isValid(length) ? Dimension(length).getEMUNumber() : 0;
    if (!(emu > 0))
        raise(ppt_error::invalidPropertyValue(length));
    return emu;
}

std::wstring makeTitle(const std::wstring& title, std::size_t page, std::size_t pages) {
    bool hasNumber = false;
    std::wstring made = title;
    const auto put = [&](const std::wstring& name, std::size_t number) {
        for (std::size_t at = made.find(name); at != std::wstring::npos; at = made.find(name, at)) {
            made.replace(at, name.size(), std::to_wstring(number));
            hasNumber = true;
        }
    };
    put(L"{page}", page);
    put(L"{pages}", pages);
    if (hasNumber || pages == 1)
        return made;
    return made + L" (" + std::to_wstring(page) + L"/" + std::to_wstring(pages) + L")";
}

TablePages split(const Table& table, const PageOptions& options, const ShapeImpl& place, double slideHeight,
                 bool sharesWidth) {
    TablePages pages(table);
    if (options.rows > 0) {
        pages.splitByCount(options.rows);
        return pages;
    }
    TableRoom room = findTableRoom(place, slideHeight);
    if (!options.height.empty())
        room.height = readRoom(options.height);
    if (room.width > 0 && room.height > 0)
        pages.splitByHeight(estimateRowHeights(*heldImplOf<TableImpl>(table), room.width, sharesWidth),
                            room.height);
    return pages;
}

void fillPage(Slide& slide, const std::wstring& name, const Table& page, const std::wstring& title) {
    const ShapeImpl* place = requireShape(*heldImplOf<SlideImpl>(slide), name).get();
    const PPTNode::Children shapes = slide.getChildren();
    const auto at = std::find_if(shapes.begin(), shapes.end(),
                                 [&](const auto& shape) { return implOf<PPTNodeImpl>(*shape) == place; });
    std::vector<Contents::Row> rows{{name, page}};
    if (!title.empty())
        rows.emplace_back(L"type:title", title);
    slide.fill(Contents(rows));
    const auto index = static_cast<std::size_t>(at - shapes.begin());
    const auto placed =
        index < slide.getChildren().size() ? Table::cast(slide.getChildren()[index]) : nullptr;
    if (placed && page.getStyleName().isSet())
        placed->setStyleName(page.getStyleName().get());
}

} // namespace

std::vector<Slide> Presentation::addPages(const std::wstring& layoutName, const std::wstring& name,
                                          const Table& table, const PageOptions& options) {
    open();
    if (!options.height.empty())
        readRoom(options.height);
    if (table.getNChildren() == 0)
        return {};
    const boost::intrusive_ptr<PresentationImpl> deck = heldImplOf<PresentationImpl>(*this);
    std::vector<Slide> slides;
    try {
        slides.push_back(add(layoutName));
        const boost::intrusive_ptr<SlideImpl> first = heldImplOf<SlideImpl>(slides[0]);
        const TablePages pages = split(table, options, *requireShape(*first, name), deck->getSlideHeight(),
                                       first->getRules() && first->getRules()->measuresColumns());
        for (std::size_t page = 0; page < pages.getCount(); ++page) {
            if (page > 0)
                slides.push_back(add(layoutName));
            const std::wstring title =
                options.title.empty() ? L"" : makeTitle(options.title, page + 1, pages.getCount());
            fillPage(slides.back(), name, pages.makePage(page), title);
        }
    } catch (...) {
        for (const Slide& slide : slides)
            if (implOf<SlideImpl>(slide)->getParent() == deck.get()) // a listener may have taken it out
                remove(slide);
        throw;
    }
    return slides;
}

} // namespace vellox::ppt
