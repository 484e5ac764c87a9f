/// @file
/// The workbook in a chart: what people see who ask an office program for the chart's data.

#ifndef VELLOX_PPT_WRITERS_CHARTWORKBOOK_H
#define VELLOX_PPT_WRITERS_CHARTWORKBOOK_H

#include <string>

#include "vellox/ppt/template/ChartRecords.h"

namespace vellox::ppt {

/// A workbook of one sheet: names of series in the first row from B on, categories in A, values below their series.
/// @return the bytes of the file, the same for the same data
/// @throws chartWorkbookFailed with the name of the chart and the reason
std::string makeChartWorkbook(const std::wstring& chartName, const std::wstring& sheetName,
                              const ChartData& data);

} // namespace vellox::ppt

#endif
