/// @file
/// The table styles that programs have built in, as definitions: a:tblStyle (ECMA-376 Part 1, 20.1.4.2.26).

#ifndef VELLOX_PPT_WRITERS_TABLESTYLEMARKUP_H
#define VELLOX_PPT_WRITERS_TABLESTYLEMARKUP_H

#include "vellox/opc/MarkupBuffer.h"
#include "vellox/ppt/rules/TableStyles.h"

namespace vellox::ppt {

void appendDefinition(const BuiltInTableStyle& style, opc::MarkupBuffer& out);

} // namespace vellox::ppt

#endif
