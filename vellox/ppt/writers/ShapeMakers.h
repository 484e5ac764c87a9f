/// @file
/// Skeletons of new shape elements: the element tree, the id and the position. The writers give the content
/// and put the result into the slide.
///
/// Every coordinate in a document is a whole number of EMU, and no extent is negative: the format demands
/// both, and readers refuse a file for it.

#ifndef VELLOX_PPT_WRITERS_SHAPEMAKERS_H
#define VELLOX_PPT_WRITERS_SHAPEMAKERS_H

#include <optional>
#include <string>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class SlideDocument;

/// @{ The elements of a shape, so that writers needn't search for them. Null where absent.
struct GraphicFrameElements {
    xercesc::DOMElement *frame = nullptr, *nvGraphicFramePr = nullptr, *cNvGraphicFramePr = nullptr,
                        *graphicFrameLocks = nullptr, *graphic = nullptr, *graphicData = nullptr,
                        *tbl = nullptr, *tblGrid = nullptr;
};

struct PictureElements {
    xercesc::DOMElement *pic = nullptr, *nvPicPr = nullptr, *blipFill = nullptr, *blip = nullptr,
                        *cNvPicPr = nullptr, *picLocks = nullptr, *stretch = nullptr, *spPr = nullptr,
                        *xfrm = nullptr, *off = nullptr, *ext = nullptr, *prstGeom = nullptr;
};

struct ShapeElements {
    xercesc::DOMElement *sp = nullptr, *nvSpPr = nullptr, *cNvPr = nullptr, *cNvSpPr = nullptr,
                        *nvPr = nullptr, *spPr = nullptr, *xfrm = nullptr, *off = nullptr, *ext = nullptr,
                        *txBody = nullptr, *bodyPr = nullptr, *lstStyle = nullptr;
};
/// @}

/// @{ A new shape at the end of the slide's p:spTree, with the slide's next id and the name, or a UUID
/// without one. What the geometry doesn't set: 0, 0; 3234567 EMU each way for a table, 1234567 for others.
GraphicFrameElements makeFreeTable(SlideDocument& slide, const BaseAttribute<std::wstring>& name,
                                   const ShapeGeometry& geometry, unsigned int columns);
PictureElements makeFreePicture(SlideDocument& slide, const std::wstring& relationshipId,
                                const BaseAttribute<std::wstring>& name, const ShapeGeometry& geometry);
ShapeElements makeFreeTextBox(SlideDocument& slide, const BaseAttribute<std::wstring>& name,
                              const ShapeGeometry& geometry);
/// @}

/// @{ A shape that takes over id, name and placeholder from an element; the caller puts it in that element's
/// place. A table is as large as a free one where no place is given, and a picture has no place of its own.
GraphicFrameElements makeTableInPlace(SlideDocument& slide, xercesc::DOMElement* former,
                                      const PlaceText* place, unsigned int columns);
PictureElements makePictureInPlace(SlideDocument& slide, const std::wstring& relationshipId,
                                   xercesc::DOMElement* former, const std::optional<Box>& box);
/// @}
/// The numbers of a place; 0 for what is none.
Box readBox(const PlaceText& place);
/// Where a free shape with this geometry stands.
Box readBox(const ShapeGeometry& geometry);
/// Writes a box, in whole numbers.
void writeBox(xercesc::DOMElement* off, xercesc::DOMElement* ext, const Box& box);

/// The elements of an existing p:sp.
ShapeElements readShapeElements(xercesc::DOMElement* shape);
/// The elements of an existing p:graphicFrame.
GraphicFrameElements readGraphicFrame(xercesc::DOMElement* frame);
/// Gives a text shape a place of its own, at the end of its p:spPr. Does nothing if the geometry sets none,
/// unless forced.
void setTextBoxPlacement(ShapeElements& elements, const ShapeGeometry& geometry, bool force);
/// Gives a text shape of the document a place of its own: what the geometry doesn't set is the given place's.
/// Does nothing if it sets none.
void placeExistingTextShape(xercesc::DOMElement* shape, const PlaceText* place,
                            const ShapeGeometry& geometry);

} // namespace vellox::ppt

#endif
