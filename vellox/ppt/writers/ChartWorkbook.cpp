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

void fillSheet(lxw_worksheet* sheet, const ChartData& data) {
    const bool isNumeric = data.hasNumbersAsCategories();
    lxw_row_t row = 0;
    for (const ChartCategory& category : data.categories) {
        ++row;
        if (isNumeric)
            worksheet_write_number(sheet, row, 0, *category.number, nullptr);
        else
            worksheet_write_string(sheet, row, 0, toUtf8(category.text).c_str(), nullptr);
    }
    lxw_col_t column = 0;
    for (const ChartSeries& series : data.series) {
        ++column;
        worksheet_write_string(sheet, 0, column, toUtf8(series.name).c_str(), nullptr);
        row = 0;
        for (const double value : series.values) {
            ++row;
            if (std::isfinite(value))
                worksheet_write_number(sheet, row, column, value, nullptr);
        }
    }
}

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
    if (lxw_worksheet* sheet = workbook_add_worksheet(workbook, toUtf8(sheetName).c_str()))
        fillSheet(sheet, data);
    if (const lxw_error failure = workbook_close(workbook))
        raise(ppt_error::chartWorkbookFailed(chartName, fromUtf8(lxw_strerror(failure))));
    try {
        return fsys::readFile(fsys::Path(file.getPath()), kMostBytes);
    } catch (const fsys::FsysExceptionBase& failure) {
        raise(ppt_error::chartWorkbookFailed(chartName, fromUtf8(failure.what())));
    }
}

} // namespace vellox::ppt
