/// @file
/// What records of a description may set on what they describe: the properties that the library's class table has.

#ifndef CLI_PROPERTIES_H
#define CLI_PROPERTIES_H

#include <string>
#include <vector>

#include "cli/Contents.h"
#include "cli/Data.h"

namespace vellox::cli {

enum class Described { Deck, Slide, Text, Picture, Table, Row, Column, Cell };

/// Their names in descriptions: those of the class table with a small letter first, and two short ones, "alt" and "style".
const std::vector<std::string>& getPropertyNames(Described what);

/// Whether a record may set a property of a name.
bool isProperty(Described what, const std::string& name);

/// @throws DataFailure for a value that the property can't be given
void checkProperty(Described what, const std::string& name, const Data& value, const DataPlace& place);

/// Sets the properties that a record of the right form has, and leaves out what else is in it.
/// @throws DataFailure for a value that the library refuses
void setProperties(ppt::PPTObject& object, Described what, const Data& record, const DataPlace& place,
                   const TextOf& textOf);

} // namespace vellox::cli

#endif
