#include "vellox/ppt/writers/ChartWorkbook.h"

#include "vellox/foundation/FileUtils.h"
#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/host/services/FreshFile.h"
#include "vellox/host/services/Utf8.h"

#include <cmath>
#include <xlsxwriter.h>

namespace vellox::ppt {

namespace fsys = hostfx::filesystem;

namespace {

/// The library writes to files only. This one goes whatever happens.
class TemporaryFile {
public:
    TemporaryFile() : path_(FileUtils::getTempName() + L".xlsx") {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        std::error_code failure; // there may be nothing to remove
        std::filesystem::remove(toUtf8(path_), failure);
    }
    const std::wstring& getPath() const { return path_; }

private:
    std::wstring path_;
};

/// One sheet, and the first thing that didn't go into it.
class Sheet {
public:
    explicit Sheet(lxw_worksheet* sheet) : sheet_(sheet) {}

    void fill(const ChartData& data) {
        const bool isNumeric = data.hasNumbersAsCategories();
        lxw_row_t row = 0;
        for (const ChartCategory& category : data.categories) {
            ++row;
            if (isNumeric)
                put(row, 0, *category.number);
            else
                put(row, 0, category.text);
        }
        lxw_col_t column = 0;
        for (const ChartSeries& series : data.series) {
            put(0, ++column, series.name);
            row = 0;
            for (const double value : series.values)
                put(++row, column, value);
        }
    }
    lxw_error getFailure() const { return failure_; }

private:
    void put(lxw_row_t row, lxw_col_t column, const std::wstring& text) {
        note(worksheet_write_string(sheet_, row, column, toUtf8(text).c_str(), nullptr));
    }
    void put(lxw_row_t row, lxw_col_t column, double number) {
        if (std::isfinite(number))
            note(worksheet_write_number(sheet_, row, column, number, nullptr));
    }
    void note(lxw_error result) { failure_ = failure_ ? failure_ : result; }

    lxw_worksheet* sheet_;
    lxw_error failure_ = LXW_NO_ERROR;
};

} // namespace

std::string makeChartWorkbook(const std::wstring& chartName, const std::wstring& sheetName,
                              const ChartData& data) {
    constexpr time_t kAnyTime = 946684800; // that of the making would make every file another
    constexpr std::size_t kMostBytes = std::size_t(1) << 30;
    const TemporaryFile file;
    lxw_workbook* workbook = workbook_new(toUtf8(file.getPath()).c_str());
    if (!workbook)
        raise(ppt_error::chartWorkbookFailed(chartName, L"out of memory"));
    lxw_doc_properties properties{};
    properties.created = kAnyTime;
    workbook_set_properties(workbook, &properties);
    lxw_worksheet* added = workbook_add_worksheet(workbook, toUtf8(sheetName).c_str());
    Sheet sheet(added);
    if (added)
        sheet.fill(data);
    const lxw_error closed = workbook_close(workbook);
    if (!added)
        raise(ppt_error::chartWorkbookFailed(chartName, L"there can be no sheet " + sheetName));
    if (const lxw_error failure = sheet.getFailure() ? sheet.getFailure() : closed)
        raise(ppt_error::chartWorkbookFailed(chartName, fromUtf8(lxw_strerror(failure))));
    try {
        return fsys::readFile(fsys::Path(file.getPath()), kMostBytes);
    } catch (const fsys::FsysExceptionBase& failure) {
        raise(ppt_error::chartWorkbookFailed(chartName, fromUtf8(failure.what())));
    }
}

} // namespace vellox::ppt
