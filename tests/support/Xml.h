/// @file
/// XML compared by meaning.

#ifndef VELLOX_TESTS_SUPPORT_XML_H
#define VELLOX_TESTS_SUPPORT_XML_H

#include <string>
#include <vector>
#include <xercesc/dom/DOMElement.hpp>

namespace vellox::test {

/// XML in one spelling: attributes sorted, no namespace declarations, no indentation, no declaration.
std::string canonical(const std::string& xml);
std::string canonical(const xercesc::DOMElement& element);

/// All elements of a name in a document, in document order, each in that spelling.
std::vector<std::string> findAll(const std::string& xml, const std::string& name);

/// The one element of a name; if there is another number of them, a text that says so.
std::string findOne(const std::string& xml, const std::string& name);

/// An attribute of all elements of a name, in document order; empty where it is missing.
std::vector<std::string> valuesOf(const std::string& xml, const std::string& name,
                                  const std::string& attribute);

/// The texts in all elements of a name, in document order.
std::vector<std::string> textsOf(const std::string& xml, const std::string& name);

} // namespace vellox::test

#endif
