#include "vellox/ppt/rules/TableStyles.h"

#include <algorithm>
#include <boost/algorithm/string/predicate.hpp>
#include <locale>

namespace vellox::ppt {

namespace {

using F = TableStyleFamily;

// Without an accent, and with each from 1 to 6. Null where the family has no such style.
struct Row {
    F family;
    const wchar_t* name;
    const wchar_t* ids[7];
};

constexpr Row kRows[] = {
    {F::NoGrid, L"No Style, No Grid", {L"{2D5ABB26-0587-4C30-8999-92F81FD0307C}"}},
    {F::Grid, L"No Style, Table Grid", {L"{5940675A-B579-460E-94D1-54222C63F5DA}"}},
    {F::Themed1,
     L"Themed Style 1",
     {nullptr, L"{3C2FFA5D-87B4-456A-9821-1D502468CF0F}", L"{284E427A-3D55-4303-BF80-6455036E1DE7}",
      L"{69C7853C-536D-4A76-A0AE-DD22124D55A5}", L"{775DCB02-9BB8-47FD-8907-85C794F793BA}",
      L"{35758FB7-9AC5-4552-8A53-C91805E547FA}", L"{08FB837D-C827-4EFA-A057-4D05807E0F7C}"}},
    {F::Themed2,
     L"Themed Style 2",
     {nullptr, L"{D113A9D2-9D6B-4929-AA2D-F23B5EE8CBE7}", L"{18603FDC-E32A-4AB5-989C-0864C3EAD2B8}",
      L"{306799F8-075E-4A3A-A7F6-7FBC6576F1A4}", L"{E269D01E-BC32-4049-B463-5C60D7B0CCD2}",
      L"{327F97BB-C833-4FB7-BDE5-3F7075034690}", L"{638B1855-1B75-4FBE-930C-398BA8C253C6}"}},
    {F::Light1,
     L"Light Style 1",
     {L"{9D7B26C5-4107-4FEC-AEDC-1716B250A1EF}", L"{3B4B98B0-60AC-42C2-AFA5-B58CD77FA1E5}",
      L"{0E3FDE45-AF77-4B5C-9715-49D594BDF05E}", L"{C083E6E3-FA7D-4D7B-A595-EF9225AFEA82}",
      L"{D27102A9-8310-4765-A935-A1911B00CA55}", L"{5FD0F851-EC5A-4D38-B0AD-8093EC10F338}",
      L"{68D230F3-CF80-4859-8CE7-A43EE81993B5}"}},
    {F::Light2,
     L"Light Style 2",
     {L"{7E9639D4-E3E2-4D34-9284-5A2195B3D0D7}", L"{69012ECD-51FC-41F1-AA8D-1B2483CD663E}",
      L"{72833802-FEF1-4C79-8D5D-14CF1EAF98D9}", L"{F2DE63D5-997A-4646-A377-4702673A728D}",
      L"{17292A2E-F333-43FB-9621-5CBBE7FDCDCB}", L"{5A111915-BE36-4E01-A7E5-04B1672EAD32}",
      L"{912C8C85-51F0-491E-9774-3900AFEF0FD7}"}},
    {F::Light3,
     L"Light Style 3",
     {L"{616DA210-FB5B-4158-B5E0-FEB733F419BA}", L"{BC89EF96-8CEA-46FF-86C4-4CE0E7609802}",
      L"{5DA37D80-6434-44D0-A028-1B22A696006F}", L"{8799B23B-EC83-4686-B30A-512413B5E67A}",
      L"{ED083AE6-46FA-4A59-8FB0-9F97EB10719F}", L"{BDBED569-4797-4DF1-A0F4-6AAB3CD982D8}",
      L"{E8B1032C-EA38-4F05-BA0D-38AFFFC7BED3}"}},
    {F::Medium1,
     L"Medium Style 1",
     {L"{793D81CF-94F2-401A-BA57-92F5A7B2D0C5}", L"{B301B821-A1FF-4177-AEE7-76D212191A09}",
      L"{9DCAF9ED-07DC-4A11-8D7F-57B35C25682E}", L"{1FECB4D8-DB02-4DC6-A0A2-4F2EBAE1DC90}",
      L"{1E171933-4619-4E11-9A3F-F7608DF75F80}", L"{FABFCF23-3B69-468F-B69F-88F6DE6A72F2}",
      L"{10A1B5D5-9B99-4C35-A422-299274C87663}"}},
    {F::Medium2,
     L"Medium Style 2",
     {L"{073A0DAA-6AF3-43AB-8588-CEC1D06C72B9}", kUsualTableStyleId,
      L"{21E4AEA4-8DFA-4A89-87EB-49C32662AFE0}", L"{F5AB1C69-6EDB-4FF4-983F-18BD219EF322}",
      L"{00A15C55-8517-42AA-B614-E9B94910E393}", L"{7DF18680-E054-41AD-8BC1-D1AEF772440D}",
      L"{93296810-A885-4BE3-A3E7-6D5BEEA58F35}"}},
    {F::Medium3,
     L"Medium Style 3",
     {L"{8EC20E35-A176-4012-BC5E-935CFFF8708E}", L"{6E25E649-3F16-4E02-A733-19D2CDBF48F0}",
      L"{85BE263C-DBD7-4A20-BB59-AAB30ACAA65A}", L"{EB344D84-9AFB-497E-A393-DC336BA19D2E}",
      L"{EB9631B5-78F2-41C9-869B-9F39066F8104}", L"{74C1A8A3-306A-4EB7-A6B1-4F7E0EB9C5D6}",
      L"{2A488322-F2BA-4B5B-9748-0D474271808F}"}},
    {F::Medium4,
     L"Medium Style 4",
     {L"{D7AC3CCA-C797-4891-BE02-D94E43425B78}", L"{69CF1AB2-1976-4502-BF36-3FF5EA218861}",
      L"{8A107856-5554-42FB-B03E-39F5DBC370BA}", L"{0505E3EF-67EA-436B-97B2-0124C06EBD24}",
      L"{C4B1156A-380E-4F78-BDF5-A606A8083BF9}", L"{22838BEF-8BB2-4498-84A7-C5851F593DF1}",
      L"{16D9F66E-5EB9-4882-86FB-DCBF35E3C3E4}"}},
    {F::Dark1,
     L"Dark Style 1",
     {L"{E8034E78-7F5D-4C2E-B375-FC64B27BC917}", L"{125E5076-3810-47DD-B79F-674D7AD40C01}",
      L"{37CE84F3-28C3-443E-9E96-99CF82512B78}", L"{D03447BB-5D67-496B-8E87-E561075AD55C}",
      L"{E929F9F4-4A8F-4326-A1B4-22849713DDAB}", L"{8FD4443E-F989-4FC4-A0C8-D5A2AF1F390B}",
      L"{AF606853-7671-496A-8E4F-DF71F8EC918B}"}},
    {F::Dark2,
     L"Dark Style 2",
     {L"{5202B0CA-FC54-4496-8BCA-5EF66A818D29}", L"{0660B408-B3CF-4A94-85FC-2B1E0A45F4A2}", nullptr,
      L"{91EBBBCC-DAD2-459C-BE2E-F6DE35CF9A28}", nullptr, L"{46F890A9-2807-4EBB-B81D-B2AA78EC7F39}"}},
};

// Those of the second dark family are of two accents each.
std::wstring makeName(const Row& row, unsigned int accent) {
    std::wstring name = row.name;
    if (accent > 0)
        name += L" - Accent " + std::to_wstring(accent);
    if (accent > 0 && row.family == F::Dark2)
        name += L"/Accent " + std::to_wstring(accent + 1);
    return name;
}

std::vector<BuiltInTableStyle> makeStyles() {
    std::vector<BuiltInTableStyle> styles;
    for (const Row& row : kRows)
        for (unsigned int accent = 0; accent < std::size(row.ids); ++accent)
            if (row.ids[accent])
                styles.push_back({makeName(row, accent), row.ids[accent], row.family, accent});
    return styles;
}

template <class Is> const BuiltInTableStyle* findIf(Is is) {
    const auto& styles = getBuiltInTableStyles();
    const auto found = std::find_if(styles.begin(), styles.end(), is);
    return found == styles.end() ? nullptr : &*found;
}

} // namespace

const std::vector<BuiltInTableStyle>& getBuiltInTableStyles() {
    static const std::vector<BuiltInTableStyle>& styles =
        *new const std::vector<BuiltInTableStyle>(makeStyles());
    return styles;
}

const BuiltInTableStyle* findBuiltInTableStyle(const std::wstring& name) {
    return findIf([&](const BuiltInTableStyle& style) { return style.name == name; });
}

const BuiltInTableStyle* findBuiltInTableStyleById(const std::wstring& id) {
    return findIf([&](const BuiltInTableStyle& style) { return areSameTableStyleIds(style.id, id); });
}

bool areSameTableStyleIds(const std::wstring& left, const std::wstring& right) {
    return boost::algorithm::iequals(left, right, std::locale::classic());
}

} // namespace vellox::ppt
