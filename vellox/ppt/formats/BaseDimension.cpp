#include "vellox/ppt/formats/BaseDimension.h"

#include "vellox/foundation/IdentifiedException.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/ppt/formats/BaseDimensionImpl.h"
#include "vellox/ppt/writers/TableEntryWriter.h"

namespace vellox::ppt {

namespace {

constexpr wchar_t kDefaultValue[] = L"0px";
constexpr wchar_t kDefaultColWidth[] = L"0.25in";

Dimension requireLength(const std::wstring& text, BaseDimensionImpl::Shares shares,
                        const std::wstring& named) {
    if (!Dimension::isValid(text))
        raise(ppt_error::invalidPropertyValue(named));
    const Dimension length(text);
    if (shares == BaseDimensionImpl::Shares::Refused && length.isShare())
        raise(ppt_error::invalidPropertyValue(named));
    return length;
}

} // namespace

// BaseDimensionImpl

BaseDimensionImpl::BaseDimensionImpl(const std::wstring& value, Shares shares)
    : shares_(shares),
      dimension_(requireLength(value, shares, value)) {}

const char* BaseDimensionImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.BaseDimension";
}

boost::shared_ptr<Format> BaseDimensionImpl::makeInterface() {
    return ObjectAccess::makeFacade<BaseDimension>(this);
}

void BaseDimensionImpl::setValue(const std::wstring& value) {
    // Made first and assigned then: a text that is valid and still no length, "-", must change nothing.
    dimension_ = requireLength(value, shares_, value);
}

Dimension requireExtent(const std::wstring& text, const std::wstring& named) {
    const Dimension extent = requireLength(text, BaseDimensionImpl::Shares::Refused, named);
    if (extent.getEMUNumber() < 0)
        raise(ppt_error::invalidPropertyValue(named));
    return extent;
}

// BaseDimension

BaseDimension::BaseDimension() : BaseDimension(new BaseDimensionImpl(kDefaultValue)) {}
BaseDimension::BaseDimension(const std::wstring& value) : BaseDimension(new BaseDimensionImpl(value)) {}
BaseDimension::BaseDimension(BaseDimensionImpl* impl) : Format(impl) {}

BaseDimensionImpl* BaseDimension::pimpl() {
    return implOf<BaseDimensionImpl>(*this);
}

const BaseDimensionImpl* BaseDimension::pimpl() const {
    return implOf<BaseDimensionImpl>(*this);
}

const std::wstring& BaseDimension::getValue() const {
    return getDimension().getRawValue();
}

void BaseDimension::setValue(const std::wstring& value) {
    pimpl()->setValue(value);
}

const Dimension& BaseDimension::getDimension() const {
    return pimpl()->getDimension();
}

// ColWidth

class ColWidthImpl : public BaseDimensionImpl {
public:
    using BaseDimensionImpl::BaseDimensionImpl;

    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.ColWidth"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<ColWidth>(this); }
    FormatType getFormatType() const override { return FormatType::ColWidth; }
    /// Writes nothing itself: the width goes into the table's grid when the whole table is done.
    void applyToTableEntry(TableEntryWriter& writer) const override {
        writer.setColumnWidth(getDimension().getEMUNumber());
    }
    virtual boost::shared_ptr<ColWidth> clone() const {
        return ObjectAccess::makeFacade<ColWidth>(new ColWidthImpl(*this));
    }
};

ColWidth::ColWidth() : ColWidth(new ColWidthImpl(kDefaultColWidth)) {}
ColWidth::ColWidth(const std::wstring& value) : ColWidth(new ColWidthImpl(value)) {}
ColWidth::ColWidth(ColWidthImpl* impl) : BaseDimension(impl) {}

boost::shared_ptr<ColWidth> ColWidth::clone() const {
    return implOf<ColWidthImpl>(*this)->clone();
}

} // namespace vellox::ppt
