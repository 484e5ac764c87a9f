// Made by scripts/make-schema-tables; SchemaRows.h tells how to read it.
#include "vellox/check/SchemaRows.h"

// clang-format off
namespace vellox::check {

const char kRelationshipValues[] = R"rows(
ST_RelationshipId: string
)rows";

} // namespace vellox::check
