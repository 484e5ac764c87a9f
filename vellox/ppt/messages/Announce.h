/// @file
/// How the library itself sends messages: ask the flag of the kind first, and build text and message only if
/// it is up.

#ifndef VELLOX_PPT_MESSAGES_ANNOUNCE_H
#define VELLOX_PPT_MESSAGES_ANNOUNCE_H

#include "vellox/foundation/MsgID.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox::ppt {

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
