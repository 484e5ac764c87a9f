// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kPictureTypes[] = R"rows(
CT_PictureNonVisual: cNvPr=a:CT_NonVisualDrawingProps cNvPicPr=a:CT_NonVisualPictureProperties
CT_Picture: nvPicPr=CT_PictureNonVisual blipFill=a:CT_BlipFillProperties spPr=a:CT_ShapeProperties
pic = CT_Picture
)rows";

} // namespace vellox::check
