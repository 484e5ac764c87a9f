/// @file
/// How the library itself tells what happens. Messages: ask the flag of the kind first, and build text and message
/// only if it is up. Findings: report them.

#ifndef VELLOX_PPT_MESSAGES_ANNOUNCE_H
#define VELLOX_PPT_MESSAGES_ANNOUNCE_H

#include "vellox/foundation/MsgID.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox::ppt {

class PPTNodeImpl;

/// Where on its way up a report came through; null where it didn't.
struct ReportPlace {
    const PPTNodeImpl* shape = nullptr; ///< the innermost that stands on a slide or in a group
    const PPTNodeImpl* slide = nullptr;
};

/// Reports that what was asked for isn't in the deck, or is other than asked. The finding, one of those in FindingKinds.h,
/// goes up from the node that it is about to the presentation that holds that, which keeps it; without one it is lost.
/// A listener may end what is held by nobody else. To be called before anything is changed, where that can be.
/// @throws notAsAsked if the presentation is strict and this an error
void report(const MsgID& finding, const PPTNodeImpl& node);

/// Whether a report about a node would be kept: hints for it need not be looked for otherwise.
bool isHeard(const PPTNodeImpl& node);

/// Reports that an object, or one level of it, has been made. To be called once its own fields are set.
void announceCreated(PPTObjectImpl& object);

/// Reports that an object, or one level of it, ends. To be called at the start of its destructor.
void announceDestroyed(PPTObjectImpl& object) noexcept;

/// @{ Whether messages of a kind are wanted at all.
bool wantsProgress();
bool wantsWarnings();
bool wantsErrors();
/// @}

} // namespace vellox::ppt

#endif
