/// @file
/// The table styles that office programs know without a definition, by their published names and identifiers.

#ifndef VELLOX_PPT_RULES_TABLESTYLES_H
#define VELLOX_PPT_RULES_TABLESTYLES_H

#include <string>
#include <vector>

namespace vellox::ppt {

/// Styles of one family differ in their colours.
enum class TableStyleFamily {
    NoGrid,
    Grid,
    Themed1,
    Themed2,
    Light1,
    Light2,
    Light3,
    Medium1,
    Medium2,
    Medium3,
    Medium4,
    Dark1,
    Dark2
};

struct BuiltInTableStyle {
    std::wstring name;
    std::wstring id;
    TableStyleFamily family;
    unsigned int accent; ///< 1 to 6; 0 for the one of dark and light
};

/// All of them, family by family.
const std::vector<BuiltInTableStyle>& getBuiltInTableStyles();
/// @{ Null if there is none. Identifiers may be in any case.
const BuiltInTableStyle* findBuiltInTableStyle(const std::wstring& name);
const BuiltInTableStyle* findBuiltInTableStyleById(const std::wstring& id);
/// @}
/// Whether two identifiers of styles are the same, in any case.
bool areSameTableStyleIds(const std::wstring& left, const std::wstring& right);

/// That of "Medium Style 2 - Accent 1", which new tables get.
inline constexpr wchar_t kUsualTableStyleId[] = L"{5C22544A-7EE6-4342-B048-85BDC9FD1C3A}";

} // namespace vellox::ppt

#endif
