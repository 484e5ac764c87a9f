/// @file
/// The parts of charts: c:chartSpace and the workbooks that belong to them.

#ifndef VELLOX_PPT_WRITERS_CHARTPARTS_H
#define VELLOX_PPT_WRITERS_CHARTPARTS_H

#include <set>
#include <string>
#include <vector>

#include "vellox/opc/Package.h"
#include "vellox/opc/XercesHelper.h"
#include "vellox/opc/XercesProcess.h"
#include "vellox/ppt/template/ChartRecords.h"

namespace vellox::ppt {

class PPTPartWriter;

class ChartParts {
public:
    explicit ChartParts(PPTPartWriter& partWriter);

    /// Takes note of a chart of a slide.
    /// @param slideNumber for errors
    void add(const std::wstring& slidePartName, std::size_t slideNumber, const ChartRecord& chart) {
        tasks_.push_back({slidePartName, slideNumber, chart});
    }
    /// Gives these charts their data, and their workbooks the same.
    /// @throws unsupportedChart if there is no chart, or one of a kind that can't be filled
    /// @throws partDOMBuildError if its part can't be read
    /// @throws chartWorkbookFailed
    void write();

private:
    struct Task {
        std::wstring slidePartName;
        std::size_t slideNumber;
        ChartRecord chart;
    };

    void write(const Task& task);
    std::wstring findPart(const Task& task) const;
    opc::DocumentScope read(const std::wstring& partName);
    std::wstring findOwnWorkbook(const opc::Part& part, const std::wstring& relationshipId) const;
    std::wstring makeWorkbookPart();

    PPTPartWriter& partWriter_;
    std::vector<Task> tasks_;
    opc::XercesProcess xerces_;
    opc::ParserScope parser_;
    std::set<std::wstring> workbooks_; // that have been written
    unsigned int counter_ = 0;
};

} // namespace vellox::ppt

#endif
