/// @file
/// The parts of charts: c:chartSpace and the workbooks that belong to them.

#ifndef VELLOX_PPT_WRITERS_CHARTPARTS_H
#define VELLOX_PPT_WRITERS_CHARTPARTS_H

#include <set>
#include <string>

#include "vellox/opc/Package.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"
#include "vellox/ppt/template/ChartRecords.h"

namespace vellox::ppt {

class PPTPartWriter;

class ChartParts {
public:
    explicit ChartParts(PPTPartWriter& partWriter);

    /// Gives a chart its data, and its workbook the same.
    /// @param slideNumber for errors
    /// @throws unsupportedChart if there is no chart, or one of a kind that can't be filled
    /// @throws partDOMBuildError if its part can't be read
    /// @throws chartWorkbookFailed
    void write(const std::wstring& slidePartName, std::size_t slideNumber, const ChartRecord& chart);

private:
    std::wstring findPart(const std::wstring& slidePartName, const ChartRecord& chart) const;
    opc::DocumentScope read(const std::wstring& partName);
    std::wstring findOwnWorkbook(const opc::Part& part, const std::wstring& relationshipId) const;
    std::wstring makeWorkbookPart();

    PPTPartWriter& partWriter_;
    opc::XercesProcess xerces_;
    opc::ParserScope parser_;
    std::set<std::wstring> workbooks_; // that have been written
    unsigned int counter_ = 0;
};

} // namespace vellox::ppt

#endif
