/// @file
/// The state behind the formats of cells. Internal: users hold facades.

#ifndef VELLOX_PPT_FORMATS_CELLFORMATSIMPL_H
#define VELLOX_PPT_FORMATS_CELLFORMATSIMPL_H

#include <array>
#include <optional>
#include <string>

#include <xercesc/util/XercesDefs.hpp>

#include "vellox/ppt/formats/CellFormats.h"
#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/formats/NumberForm.h"

namespace vellox::ppt {

class FacetFormatImpl : public FormatImpl {
public:
    using Text = BaseAttribute<std::wstring>;

    const Text& getFacet(unsigned int facet) const { return texts_.at(facet); }
    void setFacet(unsigned int facet, const std::wstring& text);
    void unsetFacet(unsigned int facet);
    bool isEmpty() const;

protected:
    /// Keeps what the text stands for.
    /// @return the text in its own spelling
    /// @throws invalidPropertyValue
    virtual std::wstring read(unsigned int facet, const std::wstring& text) = 0;
    virtual void forget(unsigned int facet) = 0;

private:
    std::array<Text, 6> texts_; // as many as any of them has
};

struct BorderLine {
    bool isThere = true;
    int widthEmu = 0;
    const XMLCh* dash = nullptr;     ///< of a:prstDash
    const XMLCh* compound = nullptr; ///< one line or two
    std::wstring color;              ///< six hexadecimal digits
};

class CellBordersImpl : public FacetFormatImpl {
public:
    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.CellBorders"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<CellBorders>(this); }
    FormatType getFormatType() const override { return FormatType::CellBorders; }
    virtual boost::shared_ptr<CellBorders> clone() const;
    const std::optional<BorderLine>& getLine(unsigned int facet) const { return lines_.at(facet); }

protected:
    std::wstring read(unsigned int facet, const std::wstring& text) override;
    void forget(unsigned int facet) override { lines_.at(facet).reset(); }

private:
    std::array<std::optional<BorderLine>, 6> lines_;
};

class CellMarginsImpl : public FacetFormatImpl {
public:
    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.CellMargins"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<CellMargins>(this); }
    FormatType getFormatType() const override { return FormatType::CellMargins; }
    virtual boost::shared_ptr<CellMargins> clone() const;
    /// In EMU.
    const std::optional<int>& getMargin(unsigned int facet) const { return margins_.at(facet); }

protected:
    std::wstring read(unsigned int facet, const std::wstring& text) override;
    void forget(unsigned int facet) override { margins_.at(facet).reset(); }

private:
    std::array<std::optional<int>, 4> margins_;
};

class ValueFormatImpl : public FacetFormatImpl {
public:
    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.ValueFormat"; }
    boost::shared_ptr<Format> makeInterface() override { return ObjectAccess::makeFacade<ValueFormat>(this); }
    FormatType getFormatType() const override { return FormatType::ValueFormat; }
    virtual boost::shared_ptr<ValueFormat> clone() const;
    const std::optional<NumberForm>& getForm() const { return form_; }

protected:
    std::wstring read(unsigned int facet, const std::wstring& text) override;
    void forget(unsigned int facet) override;

private:
    std::optional<NumberForm> form_;
};

} // namespace vellox::ppt

#endif
