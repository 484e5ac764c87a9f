/// @file
/// Pictures: p:pic (ECMA-376 Part 1, 19.3.1.37), free or in the place of another shape.

#ifndef VELLOX_PPT_WRITERS_PICTUREWRITER_H
#define VELLOX_PPT_WRITERS_PICTUREWRITER_H

#include <optional>
#include <string>

#include "vellox/ppt/rules/Facts.h"
#include "vellox/ppt/template/TemplateRecords.h"
#include "vellox/ppt/writers/PicturePlacement.h"
#include "vellox/ppt/writers/ShapeWriter.h"

namespace vellox::ppt {

class PictureImpl;

class PictureWriter : public ShapeWriter {
public:
    PictureWriter(const PictureImpl& picture, PPTWriter& writer, xercesc::DOMNode* parentNode);
    void write() override;

private:
    void keep(xercesc::DOMElement* former);
    void dress(xercesc::DOMElement* shape) const;
    void readImage();
    std::wstring addImage() const;
    void readSvg();
    void writeSvg(const PictureElements& made);
    [[noreturn]] void refuseSvg(const std::string& reason) const;
    ShapeGeometry sizeFree() const;
    std::optional<PicturePlacement> fitFree(const ShapeGeometry& geometry) const;
    std::optional<PicturePlacement> fitInPlace() const;
    PicturePlacement fitInBox(const Box& box, const PictureFacts& facts) const;
    void writeLink(xercesc::DOMElement* shape) const;
    [[noreturn]] void refuseMissing() const;
    void reportUnknownType() const;

    const PictureImpl& picture_;
    PictureFacts facts_{0, 0, {}, {}}; // of the image as it is to be seen
    unsigned int orientation_ = 1;
    bool isDrawn_ = false; // an SVG that a drawing goes with
};

} // namespace vellox::ppt

#endif
