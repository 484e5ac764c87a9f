/// @file
/// Formats of table cells that have several facets: lines, margins, and how values are shown.
///
/// A facet is a text that may be set or not. What counts for a cell is found for each facet by itself: the nearest of
/// the entry, the row, the column, the table that has it.

#ifndef VELLOX_PPT_FORMATS_CELLFORMATS_H
#define VELLOX_PPT_FORMATS_CELLFORMATS_H

#include <string>

#include "vellox/Api.h"
#include "vellox/ppt/formats/Format.h"
#include "vellox/ppt/object/Attribute.h"

namespace vellox::ppt {

class CellBordersImpl;
class CellMarginsImpl;
class FacetFormatImpl;
class ValueFormatImpl;

/// What they share. The facets are numbered by the classes.
class VELLOX_API FacetFormat : public Format {
public:
    BaseAttribute<std::wstring> getFacet(unsigned int facet) const;
    /// @throws invalidPropertyValue for what the facet can't be; it stays as it is then
    void setFacet(unsigned int facet, const std::wstring& text);
    void unsetFacet(unsigned int facet);
    /// Whether no facet is set.
    bool isEmpty() const;

protected:
    explicit FacetFormat(FacetFormatImpl* impl);
    FacetFormatImpl* pimpl();
    const FacetFormatImpl* pimpl() const;
};

/// Lines around what has the format, a cell, a row, a column or a table, and between the cells of it.
///
/// A line is a width, a kind and a colour, in any order, each of which may be left out: L"1.5pt dash #17384a". Kinds are
/// "solid", "dotted", "dash", "dashLong", "dotDash", "dotDotDash" and "double". What is left out is "1pt", "solid" and
/// "black". "none" takes away the line that a table's style has there.
class VELLOX_API CellBorders : public FacetFormat {
public:
    enum Facet : unsigned int { Left, Right, Top, Bottom, InsideH, InsideV };

    CellBorders();
    /// An independent copy.
    boost::shared_ptr<CellBorders> clone() const;

protected:
    friend struct ObjectAccess;
    explicit CellBorders(CellBordersImpl* impl);
};

/// The distances of a cell's text from its edges: lengths, which aren't negative. What isn't set is 0.1 inch at the
/// left and the right, and 0.05 inch above and below.
class VELLOX_API CellMargins : public FacetFormat {
public:
    enum Facet : unsigned int { Left, Right, Top, Bottom };

    CellMargins();
    /// An independent copy.
    boost::shared_ptr<CellMargins> clone() const;

protected:
    friend struct ObjectAccess;
    explicit CellMargins(CellMarginsImpl* impl);
};

/// How values are shown: the form of numbers and dates, and the texts of what is missing and of truth values.
class VELLOX_API ValueFormat : public FacetFormat {
public:
    enum Facet : unsigned int { NumberFormat, MissingText, TrueText, FalseText };

    ValueFormat();
    /// An independent copy.
    boost::shared_ptr<ValueFormat> clone() const;

protected:
    friend struct ObjectAccess;
    explicit ValueFormat(ValueFormatImpl* impl);
};

} // namespace vellox::ppt

#endif
