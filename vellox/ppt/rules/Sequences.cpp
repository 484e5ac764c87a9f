#include "vellox/ppt/rules/Sequences.h"

#include "vellox/ppt/xml/ChildOrder.h"

#include <initializer_list>

namespace vellox::ppt {

namespace {

using Names = std::vector<std::u16string_view>;

Names join(std::initializer_list<Names> lists) {
    Names joined;
    for (const Names& list : lists)
        joined.insert(joined.end(), list.begin(), list.end());
    return joined;
}

constexpr long kLeastInt = -2147483647 - 1, kGreatestInt = 2147483647;

std::vector<ElementForm> makeForms() {
    const Names fills = {u"a:noFill",   u"a:solidFill", u"a:gradFill",
                         u"a:blipFill", u"a:pattFill",  u"a:grpFill"};
    const Names effects = {u"a:effectLst", u"a:effectDag"};
    const Names runChildren =
        join({{u"a:ln"},
              fills,
              effects,
              {u"a:highlight", u"a:uLnTx", u"a:uLn", u"a:uFillTx", u"a:uFill", u"a:latin", u"a:ea", u"a:cs",
               u"a:sym", u"a:hlinkClick", u"a:hlinkMouseOver", u"a:rtl", u"a:extLst"}});
    const std::vector<ElementForm::Range> runRanges = {
        {u"sz", 100, 400000}, {u"kern", 0, 400000}, {u"spc", -400000, 400000}};
    return {
        {u"a:bodyPr",
         {u"a:prstTxWarp", u"a:noAutofit", u"a:normAutofit", u"a:spAutoFit", u"a:scene3d", u"a:sp3d",
          u"a:flatTx", u"a:extLst"},
         {{u"lIns", kLeastInt, kGreatestInt},
          {u"tIns", kLeastInt, kGreatestInt},
          {u"rIns", kLeastInt, kGreatestInt},
          {u"bIns", kLeastInt, kGreatestInt},
          {u"numCol", 1, 16}},
         {}},
        {u"a:endParaRPr", runChildren, runRanges, {}},
        {u"a:pPr",
         {u"a:lnSpc", u"a:spcBef", u"a:spcAft", u"a:buClrTx", u"a:buClr", u"a:buSzTx", u"a:buSzPct",
          u"a:buSzPts", u"a:buFontTx", u"a:buFont", u"a:buNone", u"a:buAutoNum", u"a:buChar", u"a:buBlip",
          u"a:tabLst", u"a:defRPr", u"a:extLst"},
         {{u"lvl", 0, 8}, {u"marL", 0, 51206400}, {u"marR", 0, 51206400}, {u"indent", -51206400, 51206400}},
         {}},
        {u"a:rPr", runChildren, runRanges, {{u"a:hlinkClick", u"r:id"}}},
        {u"a:tbl", {u"a:tblPr", u"a:tblGrid", u"a:tr"}, {}, {}},
        {u"a:tblPr", join({fills, effects, {u"a:tableStyle", u"a:tableStyleId", u"a:extLst"}}), {}, {}},
        {u"a:tcPr",
         join({{u"a:lnL", u"a:lnR", u"a:lnT", u"a:lnB", u"a:lnTlToBr", u"a:lnBlToTr", u"a:cell3D"},
               fills,
               {u"a:headers", u"a:extLst"}}),
         {{u"marL", kLeastInt, kGreatestInt},
          {u"marR", kLeastInt, kGreatestInt},
          {u"marT", kLeastInt, kGreatestInt},
          {u"marB", kLeastInt, kGreatestInt}},
         {}},
        {u"p:sp", {u"p:nvSpPr", u"p:spPr", u"p:style", u"p:txBody", u"p:extLst"}, {}, {}},
        {u"p:spPr",
         join({{u"a:xfrm", u"a:custGeom", u"a:prstGeom"},
               fills,
               {u"a:ln"},
               effects,
               {u"a:scene3d", u"a:sp3d", u"a:extLst"}}),
         {},
         {}},
        // Shapes stay in their order, which is that in which they lie on one another.
        {u"p:spTree", {u"p:nvGrpSpPr", u"p:grpSpPr", kAnyOther, u"p:extLst"}, {}, {}},
        {u"p:txBody", {u"a:bodyPr", u"a:lstStyle", u"a:p"}, {}, {}},
    };
}

} // namespace

const ElementForm* findElementForm(std::u16string_view element) {
    static const std::vector<ElementForm>& forms = *new const std::vector<ElementForm>(makeForms());
    for (const ElementForm& form : forms)
        if (form.element == element)
            return &form;
    return nullptr;
}

} // namespace vellox::ppt
