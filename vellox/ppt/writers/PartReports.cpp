#include "vellox/ppt/writers/PartReports.h"

#include "vellox/check/MarkupCheck.h"
#include "vellox/foundation/Identifiers.h"
#include "vellox/opc/Package.h"
#include "vellox/ppt/messages/Announce.h"

namespace vellox::ppt {

namespace {

check::RelationshipKinds findKinds(const opc::Part& part) {
    check::RelationshipKinds kinds;
    for (const opc::Relationship& row : part.getRelationships())
        kinds.emplace(row.getID(), row.getType().substr(row.getType().rfind(L'/') + 1));
    return kinds;
}

} // namespace

void reportOnPart(const opc::Part& part, std::string_view markup, check::MarkupCheck& check,
                  const PPTNodeImpl& node) {
    if (!part.getContentType().isXml())
        return;
    const std::wstring name = part.getName().toString();
    for (const Finding& finding : check.check(markup, {name}, [&] { return findKinds(part); })) {
        const std::wstring text = finding.shape.empty() ? finding.text : finding.shape + L": " + finding.text;
        if (finding.severity == Severity::Error)
            report(ppt_finding::unsoundPart(name, text), node);
        else if (finding.severity == Severity::Warning)
            report(ppt_finding::doubtfulPart(name, text), node);
    }
}

} // namespace vellox::ppt
