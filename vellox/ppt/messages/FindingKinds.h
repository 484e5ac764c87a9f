/// @file
/// What each kind of finding about a deck is worth. The kinds and their arguments are the classes of ppt_finding in
/// Identifiers.h, the words stand in the message catalog.

#ifndef VELLOX_PPT_MESSAGES_FINDINGKINDS_H
#define VELLOX_PPT_MESSAGES_FINDINGKINDS_H

#include "vellox/ppt/messages/Finding.h"

namespace vellox::ppt {

struct FindingKind {
    const char* code; ///< the identifier
    Severity severity;
};

/// In the order of Identifiers.h.
constexpr FindingKind kFindingKinds[] = {
    {"unknownName", Severity::Error},
    {"ambiguousName", Severity::Warning},
    {"contentRefused", Severity::Error},
    {"listExpected", Severity::Error},
    {"notReplaced", Severity::Error},
    {"shapeInGroup", Severity::Error},
    {"slideAfterClose", Severity::Error},
    {"slideNotWritten", Severity::Error},
    {"layoutCopiedInPart", Severity::Warning},
    {"pictureWithoutFile", Severity::Error},
    {"unreadablePicture", Severity::Error},
    {"unknownImageType", Severity::Warning},
    {"invalidTableStyle", Severity::Error},
    {"emptyTable", Severity::Error},
    {"coveredCell", Severity::Warning},
    {"noTextBody", Severity::Error},
    {"noShapeProperties", Severity::Error},
    {"emptyLinkTarget", Severity::Error},
    {"pageFieldNotShown", Severity::Error},
    {"fontNotInstalled", Severity::Warning},
    {"charactersDropped", Severity::Warning},
    {"valueLimited", Severity::Warning},
    {"cannotChangeOutputPath", Severity::Warning},
    {"cannotChangeTemplatePath", Severity::Warning},
    {"macrosLeftOut", Severity::Warning},
    {"signaturesRemoved", Severity::Warning},
    {"deviceFileName", Severity::Warning},
    {"unsoundPart", Severity::Error},
    {"doubtfulPart", Severity::Warning},
    {"cannotChangeProfile", Severity::Warning},
    {"emptyPlaceholder", Severity::Info},
    {"textTooLong", Severity::Warning},
    {"tableTooLong", Severity::Warning},
    {"tokenWithoutValue", Severity::Error},
    {"valueWithoutToken", Severity::Warning},
    {"tokenRefusesValue", Severity::Error},
    {"moreFindings", Severity::Info},
};

} // namespace vellox::ppt

#endif
