/// @file
/// The rows of the class table in the terms of Python, for docstrings, errors and stubs. Nothing here needs
/// Python.

#ifndef BINDINGS_PYTHON_PYTERMS_H
#define BINDINGS_PYTHON_PYTERMS_H

#include <string>
#include <vector>

#include "vellox/host/binding/BoundClass.h"

namespace vellox::ppt::python {

/// A word as a type, such as "str" or "list[Node]".
std::string getTypeName(const hostbind::SignatureWord& word);
/// The type of what a property holds, such as "str | None".
std::string getTypeName(const hostbind::BoundProperty& property);
/// Names and types of parameters, such as "text: str, level: int".
std::string formatParameters(const hostbind::Signature& signature);
/// Such as "add(text: str) -> Paragraph".
std::string formatMethod(const hostbind::BoundMethod& method);
/// Such as "Paragraph(text: str)", one line for each constructor.
std::string formatConstructors(const hostbind::BoundClass& bound);
/// One signature for all overloads, in the form that Python's own functions have it: such as "($self, row, column, /)".
/// Parameters beyond those that all overloads have may be left out.
std::string formatTextSignature(const std::vector<const hostbind::BoundMethod*>& overloads);
/// The same for the making of an object, headed by the class's name and followed by what ends it in a docstring.
std::string formatTextSignature(const hostbind::BoundClass& bound);
/// All overloads with what they do, a paragraph each.
std::string describeOverloads(const std::vector<const hostbind::BoundMethod*>& overloads);
/// What a class is, and how its objects are made.
std::string describeClass(const hostbind::BoundClass& bound);

} // namespace vellox::ppt::python

#endif
