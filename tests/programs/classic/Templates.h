/// @file
/// The templates that the comparison of classic decks works on: each has what some real ones have and others
/// haven't.

#ifndef VELLOX_TESTS_PROGRAMS_CLASSIC_TEMPLATES_H
#define VELLOX_TESTS_PROGRAMS_CLASSIC_TEMPLATES_H

#include <string>
#include <vector>

#include "tests/support/Files.h"

namespace vellox::test {

struct Template {
    std::wstring name;
    Parts parts;
    std::wstring extension = L"pptx";
};

std::vector<Template> makeTemplates();

} // namespace vellox::test

#endif
