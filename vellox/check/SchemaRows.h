/// @file
/// What the format allows, as rows of text: which children an element may have and in what sequence, which
/// attributes, and which values these may take.
///
///     CT_Slide: cSld=CT_CommonSlideData EG_ChildSlide? timing=CT_SlideTiming? ; AG_ChildSlide show=boolean
///     EG_Background: (bgPr=CT_BackgroundProperties | bgRef=a:CT_StyleMatrixReference)
///     AG_Blob: ; r:embed=r:ST_RelationshipId r:link=r:ST_RelationshipId
///     ST_TextFontSize: int 100..400000
///     ST_TextAlignType: {l ctr r just}
///     ST_Coordinate: ST_CoordinateUnqualified | s:ST_UniversalMeasure
///     sld = CT_Slide
///
/// - A row begins at the start of a line; a line that begins with a blank goes on with it.
/// - CT_ is a type of elements: what stands in it, a semicolon, its attributes. "name=Type" is an element or
///   an attribute, and "!" behind an attribute's type says that it must be there.
/// - Children follow one another; "|" within brackets means one of them. "?", "*", "+", "{2,}" and "{0,3}"
///   say how often; "any" is an element of any kind, "anyKnown" one that has a row of its own or is of a
///   namespace without tables; a name alone is an element that has a row of its own.
/// - EG_ and AG_ are groups of children and attributes, inserted by name.
/// - ST_ is a kind of value: a kind from below or another row, with a range of numbers or lengths; a list of
///   words; or one of several kinds. "percent" is a whole number and "%", "decimalPercent" may have a
///   fraction, "measure" is a number and a unit.
/// - "sld = CT_Slide" says what an element is that can stand alone, or for "any".
/// - A prefix leads to another table; without one, a name belongs to the table's own namespace.

#ifndef VELLOX_CHECK_SCHEMAROWS_H
#define VELLOX_CHECK_SCHEMAROWS_H

namespace vellox::check {

extern const char kPresentationTypes[];
extern const char kPresentationValues[];
extern const char kDrawingTypes[];
extern const char kDrawingGroups[];
extern const char kDrawingValues[];
extern const char kChartTypes[];
extern const char kChartValues[];
extern const char kPictureTypes[];
extern const char kSharedValues[];
extern const char kRelationshipValues[];

} // namespace vellox::check

#endif
