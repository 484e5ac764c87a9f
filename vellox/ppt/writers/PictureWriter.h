/// @file
/// Pictures: p:pic (ECMA-376 Part 1, 19.3.1.37), free or in the place of another shape.

#ifndef VELLOX_PPT_WRITERS_PICTUREWRITER_H
#define VELLOX_PPT_WRITERS_PICTUREWRITER_H

#include <optional>

#include "vellox/ppt/rules/Facts.h"
#include "vellox/ppt/template/TemplateRecords.h"
#include "vellox/ppt/writers/ShapeWriter.h"

namespace vellox::ppt {

class PictureImpl;

class PictureWriter : public ShapeWriter {
public:
    PictureWriter(const PictureImpl& picture, PPTWriter& writer, xercesc::DOMNode* parentNode);
    void write() override;

private:
    void reportMissingPath() const;
    PictureFacts readFacts() const;
    ShapeGeometry sizeFree(const PictureFacts& facts) const;
    std::optional<Box> fit(const PictureFacts& facts) const;
    [[noreturn]] void refuseMissing() const;
    void reportUnknownType() const;

    const PictureImpl& picture_;
};

} // namespace vellox::ppt

#endif
