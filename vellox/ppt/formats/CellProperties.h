/// @file
/// What a table, its rows, its columns and its entries have in common: how the cells in them look.

#ifndef VELLOX_PPT_FORMATS_CELLPROPERTIES_H
#define VELLOX_PPT_FORMATS_CELLPROPERTIES_H

#include "vellox/ppt/formats/CellFormats.h"
#include "vellox/ppt/formats/FormatProperties.h"

namespace vellox::ppt {

/// Properties of `Owner` that are the facets of one format of class F. Setting and unsetting one gives the owner a
/// format of its own.
template <class Owner, class F, FormatType kType> class FacetProperties {
protected:
    BaseAttribute<std::wstring> getFacetOf(unsigned int facet) const {
        const boost::shared_ptr<F> format = element_style::find<F>(static_cast<const Owner&>(*this), kType);
        return format ? format->getFacet(facet) : BaseAttribute<std::wstring>();
    }
    void setFacetOf(unsigned int facet, const std::wstring& text) {
        Owner& owner = static_cast<Owner&>(*this);
        boost::shared_ptr<F> own = element_style::findOwn<F>(owner, kType);
        if (!own)
            own = boost::make_shared<F>();
        own->setFacet(facet, text);
        element_style::append(owner, own);
    }
    void unsetFacetOf(unsigned int facet) {
        Owner& owner = static_cast<Owner&>(*this);
        const boost::shared_ptr<F> own = element_style::findOwn<F>(owner, kType);
        if (!own)
            return;
        own->unsetFacet(facet);
        if (own->isEmpty())
            element_style::unset(owner, kType);
    }
};

/// See CellBorders for what a line is. Border is the four lines around, where they are the same.
template <class Owner>
class BorderProperties : public FacetProperties<Owner, CellBorders, FormatType::CellBorders> {
public:
    BaseAttribute<std::wstring> getBorder() const {
        const BaseAttribute<std::wstring> left = getBorderLeft();
        const bool isSame = left.isSet() && isLine(getBorderRight(), left.get()) &&
                            isLine(getBorderTop(), left.get()) && isLine(getBorderBottom(), left.get());
        return isSame ? left : BaseAttribute<std::wstring>();
    }
    /// @throws invalidPropertyValue for what is no line
    void setBorder(const std::wstring& line) {
        setBorderLeft(line);
        setBorderRight(line);
        setBorderTop(line);
        setBorderBottom(line);
    }
    void unsetBorder() {
        unsetBorderLeft();
        unsetBorderRight();
        unsetBorderTop();
        unsetBorderBottom();
    }
    /// @{ Each by itself.
    /// @throws invalidPropertyValue for what is no line
    BaseAttribute<std::wstring> getBorderLeft() const { return this->getFacetOf(CellBorders::Left); }
    void setBorderLeft(const std::wstring& line) { this->setFacetOf(CellBorders::Left, line); }
    void unsetBorderLeft() { this->unsetFacetOf(CellBorders::Left); }
    BaseAttribute<std::wstring> getBorderRight() const { return this->getFacetOf(CellBorders::Right); }
    void setBorderRight(const std::wstring& line) { this->setFacetOf(CellBorders::Right, line); }
    void unsetBorderRight() { this->unsetFacetOf(CellBorders::Right); }
    BaseAttribute<std::wstring> getBorderTop() const { return this->getFacetOf(CellBorders::Top); }
    void setBorderTop(const std::wstring& line) { this->setFacetOf(CellBorders::Top, line); }
    void unsetBorderTop() { this->unsetFacetOf(CellBorders::Top); }
    BaseAttribute<std::wstring> getBorderBottom() const { return this->getFacetOf(CellBorders::Bottom); }
    void setBorderBottom(const std::wstring& line) { this->setFacetOf(CellBorders::Bottom, line); }
    void unsetBorderBottom() { this->unsetFacetOf(CellBorders::Bottom); }
    /// @}
    /// @{ Those between the cells of a row, a column or a table: across, and from top to bottom. One entry has none.
    /// @throws invalidPropertyValue for what is no line
    BaseAttribute<std::wstring> getBorderInsideH() const { return this->getFacetOf(CellBorders::InsideH); }
    void setBorderInsideH(const std::wstring& line) { this->setFacetOf(CellBorders::InsideH, line); }
    void unsetBorderInsideH() { this->unsetFacetOf(CellBorders::InsideH); }
    BaseAttribute<std::wstring> getBorderInsideV() const { return this->getFacetOf(CellBorders::InsideV); }
    void setBorderInsideV(const std::wstring& line) { this->setFacetOf(CellBorders::InsideV, line); }
    void unsetBorderInsideV() { this->unsetFacetOf(CellBorders::InsideV); }
    /// @}

private:
    static bool isLine(const BaseAttribute<std::wstring>& border, const std::wstring& line) {
        return border.isSet() && border.get() == line;
    }
};

/// See CellMargins.
template <class Owner>
class MarginProperties : public FacetProperties<Owner, CellMargins, FormatType::CellMargins> {
public:
    /// @{ @throws invalidPropertyValue for what is no length, or a negative one
    BaseAttribute<std::wstring> getMarginLeft() const { return this->getFacetOf(CellMargins::Left); }
    void setMarginLeft(const std::wstring& length) { this->setFacetOf(CellMargins::Left, length); }
    void unsetMarginLeft() { this->unsetFacetOf(CellMargins::Left); }
    BaseAttribute<std::wstring> getMarginRight() const { return this->getFacetOf(CellMargins::Right); }
    void setMarginRight(const std::wstring& length) { this->setFacetOf(CellMargins::Right, length); }
    void unsetMarginRight() { this->unsetFacetOf(CellMargins::Right); }
    BaseAttribute<std::wstring> getMarginTop() const { return this->getFacetOf(CellMargins::Top); }
    void setMarginTop(const std::wstring& length) { this->setFacetOf(CellMargins::Top, length); }
    void unsetMarginTop() { this->unsetFacetOf(CellMargins::Top); }
    BaseAttribute<std::wstring> getMarginBottom() const { return this->getFacetOf(CellMargins::Bottom); }
    void setMarginBottom(const std::wstring& length) { this->setFacetOf(CellMargins::Bottom, length); }
    void unsetMarginBottom() { this->unsetFacetOf(CellMargins::Bottom); }
    /// @}
};

/// How numbers, dates, truth values and what is missing are shown. What is set on a table or a column acts below the
/// table's header rows.
template <class Owner>
class ValueProperties : public FacetProperties<Owner, ValueFormat, FormatType::ValueFormat> {
public:
    /// @{ The form of numbers, such as L".1f", L",.0f", L".0%" or L"{:.1f} m", or of dates, such as L"%d.%m.%Y". Values
    /// that it can't be for stay as they are, and with "none" all do, whatever is said around.
    /// @throws invalidPropertyValue for what is no form
    BaseAttribute<std::wstring> getNumberFormat() const {
        return this->getFacetOf(ValueFormat::NumberFormat);
    }
    void setNumberFormat(const std::wstring& form) { this->setFacetOf(ValueFormat::NumberFormat, form); }
    void unsetNumberFormat() { this->unsetFacetOf(ValueFormat::NumberFormat); }
    /// @}
    /// @{ What a cell shows that holds nothing, or a number that is none, or what data frames show instead: "NaT",
    /// "<NA>", "nan", "NaN", "None".
    BaseAttribute<std::wstring> getMissingText() const { return this->getFacetOf(ValueFormat::MissingText); }
    void setMissingText(const std::wstring& text) { this->setFacetOf(ValueFormat::MissingText, text); }
    void unsetMissingText() { this->unsetFacetOf(ValueFormat::MissingText); }
    /// @}
    /// @{ What truth values show.
    BaseAttribute<std::wstring> getTrueText() const { return this->getFacetOf(ValueFormat::TrueText); }
    void setTrueText(const std::wstring& text) { this->setFacetOf(ValueFormat::TrueText, text); }
    void unsetTrueText() { this->unsetFacetOf(ValueFormat::TrueText); }
    BaseAttribute<std::wstring> getFalseText() const { return this->getFacetOf(ValueFormat::FalseText); }
    void setFalseText(const std::wstring& text) { this->setFacetOf(ValueFormat::FalseText, text); }
    void unsetFalseText() { this->unsetFacetOf(ValueFormat::FalseText); }
    /// @}
};

/// All that a cell can have.
template <class Owner>
class CellProperties : public CharacterProperties<Owner>,
                       public BackgroundColorProperty<Owner>,
                       public HAlignProperty<Owner>,
                       public VAlignProperty<Owner>,
                       public BorderProperties<Owner>,
                       public MarginProperties<Owner>,
                       public ValueProperties<Owner> {};

} // namespace vellox::ppt

#endif
