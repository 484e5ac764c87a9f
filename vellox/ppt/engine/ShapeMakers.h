/// @file
/// Skeletons of new shape elements: the element tree, the id and the position. The writers give the content
/// and put the result into the slide.
///
/// Every coordinate in a document is a whole number of EMU, and no extent is negative: the format demands
/// both, and readers refuse a file for it.

#ifndef VELLOX_PPT_ENGINE_SHAPEMAKERS_H
#define VELLOX_PPT_ENGINE_SHAPEMAKERS_H

#include <string>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

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

/// An image's size in pixels.
struct PixelSize {
    double width;
    double height;
};

/// @{ A new shape at the end of the slide's p:spTree, with the slide's next id and the name, or a UUID
/// without one. What the geometry doesn't set: 0, 0; 3234567 EMU each way for a table, 1234567 for others.
GraphicFrameElements makeFreeTable(TemplateSlide& slide, const BaseAttribute<std::wstring>& name,
                                   const ShapeGeometry& geometry, unsigned int columns);
PictureElements makeFreePicture(TemplateSlide& slide, const std::wstring& relationshipId,
                                const BaseAttribute<std::wstring>& name, const ShapeGeometry& geometry);
ShapeElements makeFreeTextBox(TemplateSlide& slide, const BaseAttribute<std::wstring>& name,
                              const ShapeGeometry& geometry);
/// @}

/// @{ A shape that takes over id, name and placeholder from an element; the caller puts it in that element's
/// place. A table fills the box of the element or of its layout, and is as large as a free one where none is
/// found. A picture keeps its proportions, is never enlarged, and sits in the centre of the box; it has no
/// place of its own where none is found.
GraphicFrameElements makeTableForPlaceholder(TemplateSlide& slide, xercesc::DOMElement* placeholder,
                                             xercesc::DOMElement* layoutShape, unsigned int columns);
GraphicFrameElements makeTableForTable(TemplateSlide& slide, xercesc::DOMElement* frame,
                                       xercesc::DOMElement* layoutShape, unsigned int columns);
PictureElements makePictureForPlaceholder(TemplateSlide& slide, const std::wstring& relationshipId,
                                          xercesc::DOMElement* placeholder, xercesc::DOMElement* layoutShape,
                                          PixelSize image, const ShapeGeometry& geometry);
PictureElements makePictureForPicture(TemplateSlide& slide, const std::wstring& relationshipId,
                                      xercesc::DOMElement* picture, PixelSize image,
                                      const ShapeGeometry& geometry);
/// @}

/// The elements of an existing p:sp.
ShapeElements readShapeElements(xercesc::DOMElement* shape);
/// The elements of an existing p:graphicFrame.
GraphicFrameElements readGraphicFrame(xercesc::DOMElement* frame);
/// Gives a text shape a place of its own, at the end of its p:spPr. Does nothing if the geometry sets none,
/// unless forced.
void setTextBoxPlacement(ShapeElements& elements, TemplateSlide& slide, const ShapeGeometry& geometry,
                         bool force);
/// Gives a text shape of the document a place of its own: what the geometry doesn't set is the layout's.
/// Does nothing if it sets none.
void placeExistingTextShape(xercesc::DOMElement* shape, TemplateSlide& slide,
                            xercesc::DOMElement* layoutShape, const ShapeGeometry& geometry);

} // namespace vellox::ppt

#endif
