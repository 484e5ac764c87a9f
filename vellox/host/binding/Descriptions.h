/// @file
/// What a host shows of an object in a line: what tells it from others, and the start of its text.

#ifndef VELLOX_HOST_BINDING_DESCRIPTIONS_H
#define VELLOX_HOST_BINDING_DESCRIPTIONS_H

#include <string>

#include "vellox/Api.h"
#include "vellox/host/binding/BoundClass.h"

namespace vellox::ppt::hostbind {

/// The name of a node, the file of a presentation, the value of a format, the text of a message: a truth value or a text.
/// Void for an object that nothing of this tells from others.
VELLOX_API HostResult getTelling(const BoundClass& bound, const PPTObject& object);

/// The start of the text of a node and what is below it; empty for other objects, and for presentations.
VELLOX_API std::wstring getTextStart(const PPTObject& object);

/// Whether the object that a host drops is an open presentation, whose slides nobody can write any more.
/// @param object the only handle but one, which is the host object's own
VELLOX_API bool isLost(const BoundClass& bound, const ObjectPtr& object);

} // namespace vellox::ppt::hostbind

#endif
