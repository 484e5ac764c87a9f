#include "vellox/ppt/writers/TableStylesPart.h"

#include "vellox/opc/Utf8Serializer.h"
#include "vellox/opc/XercesString.h"
#include "vellox/ppt/package/PackageNames.h"
#include "vellox/ppt/rules/TableStyles.h"
#include "vellox/ppt/writers/PPTPartWriter.h"
#include "vellox/ppt/writers/TableStyleMarkup.h"

#include <algorithm>

namespace vellox::ppt {

namespace {

bool isDefined(const ReadTemplate& source, const std::wstring& id) {
    return std::any_of(source.tableStyles.begin(), source.tableStyles.end(),
                       [&](const auto& style) { return areSameTableStyleIds(style->styleId, id); });
}

void extendPart(const ReadTemplate& source, const opc::MarkupBuffer& definitions, PPTPartWriter& partWriter) {
    const OwnedDocument styles = copyDocument(source.tableStylesDocument);
    declarePrefixes(styles->getDocumentElement());
    const opc::Contents contents{{styles->getDocumentElement(), definitions}};
    opc::MarkupBuffer out;
    opc::Utf8Serializer::appendDocument(*styles.get(), contents, out);
    partWriter.writeMarkup(source.tableStylesPartName, out.get());
}

void makePart(const ReadTemplate& source, const opc::MarkupBuffer& definitions, PPTPartWriter& partWriter) {
    std::wstring name = L"/ppt/tableStyles.xml";
    for (unsigned int i = 2; partWriter.hasPart(name); ++i)
        name = L"/ppt/tableStyles" + std::to_wstring(i) + L".xml";
    opc::MarkupBuffer out;
    out.append(R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
               "\n"
               R"(<a:tblStyleLst xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" def=")");
    out.appendValue(opc::XercesString(kUsualTableStyleId));
    out.append(R"(">)");
    out.append(definitions.get());
    out.append("</a:tblStyleLst>");
    partWriter.createPart(name, contenttype::kTableStyles);
    partWriter.writeMarkup(name, out.get());
    partWriter.addRelationship(source.presentationPartName, relationship::kTableStyles, name);
}

} // namespace

void defineTableStyles(const ReadTemplate& source, const std::set<std::wstring>& ids,
                       PPTPartWriter& partWriter) {
    opc::MarkupBuffer definitions;
    for (const std::wstring& id : ids) {
        const BuiltInTableStyle* style = isDefined(source, id) ? nullptr : findBuiltInTableStyleById(id);
        if (style)
            appendDefinition(*style, definitions);
    }
    if (definitions.isEmpty())
        return;
    if (source.tableStylesDocument)
        extendPart(source, definitions, partWriter);
    else
        makePart(source, definitions, partWriter);
}

} // namespace vellox::ppt
