/// @file
/// The document of a chart part: c:chartSpace (ECMA-376 Part 1, 21.2.2.29), as far as its data are concerned.

#ifndef VELLOX_PPT_WRITERS_CHARTDOCUMENT_H
#define VELLOX_PPT_WRITERS_CHARTDOCUMENT_H

#include <string>
#include <string_view>
#include <vector>

#include "vellox/ppt/template/ChartRecords.h"
#include "vellox/ppt/xml/Dom.h"

namespace vellox::ppt {

/// Works on a document that somebody else made, whatever it holds: elements are told by their local names, and what
/// isn't there is made.
class ChartDocument {
public:
    explicit ChartDocument(xercesc::DOMDocument& document);

    /// The kind of a chart that can't be given data, such as "bubbleChart"; empty for one that can.
    std::wstring findUnsupportedKind() const;
    /// The sheet that the chart has its data from, if that can be the name of a sheet; else "Sheet1".
    std::wstring findSheetName() const;
    void setData(const ChartData& data, const std::wstring& sheetName);
    /// The relationship to the workbook; empty if there is none.
    std::wstring getWorkbookId() const;
    void setWorkbookId(const std::wstring& relationshipId);

private:
    struct Series {
        xercesc::DOMElement *group, *element;
        unsigned long order;
        std::wstring name;
    };

    std::vector<Series> readSeries() const;
    std::vector<Series> matchSeries(const ChartData& data);
    Series addSeries(const std::vector<Series>& present, unsigned long index);
    void arrangeSeries(const std::vector<Series>& series) const;
    void writeSeries(const Series& target, std::size_t position, const ChartData& data,
                     const std::wstring& sheetName);
    void writeReference(xercesc::DOMElement* parent, const std::wstring& formula,
                        const std::vector<std::wstring>& values, bool areNumbers,
                        const std::wstring& formatCode);

    std::u16string makeName(std::u16string_view local) const { return prefix_ + std::u16string(local); }
    xercesc::DOMElement* make(std::u16string_view local) const;
    xercesc::DOMElement* append(xercesc::DOMElement* parent, std::u16string_view local) const;
    /// Puts a new child of a series in its place, in the stead of the former one.
    xercesc::DOMElement* renew(xercesc::DOMElement* series, std::u16string_view local) const;
    void setValue(xercesc::DOMElement* series, std::u16string_view local, unsigned long value) const;
    void insertInSequence(xercesc::DOMElement* series, xercesc::DOMElement* child) const;

    xercesc::DOMDocument& document_;
    xercesc::DOMElement* root_;
    std::u16string prefix_; // with its colon
    xercesc::DOMElement* plotArea_;
};

} // namespace vellox::ppt

#endif
