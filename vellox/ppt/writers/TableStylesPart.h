/// @file
/// The part that defines table styles (ECMA-376 Part 1, 20.1.4.2).

#ifndef VELLOX_PPT_WRITERS_TABLESTYLESPART_H
#define VELLOX_PPT_WRITERS_TABLESTYLESPART_H

#include <set>
#include <string>

#include "vellox/ppt/template/TemplateRecords.h"

namespace vellox::ppt {

class PPTPartWriter;

/// Adds what the template's part doesn't define of these styles, as far as programs have them built in: not all readers
/// do. The part is made if there is none. What is neither stays as it is.
/// @throws opc::Exception
void defineTableStyles(const ReadTemplate& source, const std::set<std::wstring>& ids,
                       PPTPartWriter& partWriter);

} // namespace vellox::ppt

#endif
