/// @file
/// The rows of the class table in words for users of Octave, for help texts and errors. Nothing here needs Octave.

#ifndef BINDINGS_OCTAVE_OCTTERMS_H
#define BINDINGS_OCTAVE_OCTTERMS_H

#include <string>
#include <vector>

#include "vellox/host/binding/BoundClass.h"

namespace vellox::ppt::oct {

/// The words of the table, classes without their package, such as "char" or "Paragraph".
std::string getTypeName(const hostbind::SignatureWord& word);
/// What a property holds, such as "char or empty".
std::string getTypeName(const hostbind::BoundProperty& property);
/// Such as "add (name: char, text: char)" or "add (text: char) gives Paragraph".
std::string formatMethod(const hostbind::BoundMethod& method);
/// All overloads with what they do, a paragraph each.
std::string describeOverloads(const std::vector<const hostbind::BoundMethod*>& overloads);
/// Such as "Paragraph (text: char)", a line for each constructor that is for users.
std::string formatConstructors(const hostbind::BoundClass& bound);
/// What a class is, how its objects are made, and what it has beyond its superclass.
std::string describeClass(const hostbind::BoundClass& bound);

} // namespace vellox::ppt::oct

#endif
