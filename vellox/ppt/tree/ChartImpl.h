/// @file
/// The state behind Chart. Internal: users hold facades.

#ifndef VELLOX_PPT_TREE_CHARTIMPL_H
#define VELLOX_PPT_TREE_CHARTIMPL_H

#include <boost/intrusive_ptr.hpp>

#include "vellox/ppt/object/PPTObjectImpl.h"
#include "vellox/ppt/template/ChartRecords.h"
#include "vellox/ppt/tree/Chart.h"

namespace vellox::ppt {

class SlideImpl;

/// The data are the slide's: a copy of the slide has them too.
class ChartImpl : public PPTObjectImpl {
public:
    ChartImpl(boost::intrusive_ptr<SlideImpl> slide, std::wstring name);
    ~ChartImpl() override;

    const char* getFullyQualifiedHostTypeName() const override;
    boost::shared_ptr<PPTObject> makeHandle() override;

    const std::wstring& getName() const { return name_; }
    /// @throws chartDataEmpty, chartDataRagged, chartDataTooLarge, chartValueNoNumber
    void setData(ChartData data);

private:
    boost::intrusive_ptr<SlideImpl> slide_;
    std::wstring name_;
};

} // namespace vellox::ppt

#endif
