/// @file
/// Rows of the class table, as Octave reaches them: through the class files, and past these.

#ifndef BINDINGS_OCTAVE_OCTROWS_H
#define BINDINGS_OCTAVE_OCTROWS_H

#include "bindings/octave/OctClassSystem.h"

namespace vellox::ppt::oct {

/// @{ What a row does for an object of its class.
/// @throws what the library throws, and octave::execution_exception
octave_value readProperty(const hostbind::BoundClass& owner, const hostbind::BoundProperty& property,
                          const octave_value& self);
void writeProperty(const hostbind::BoundClass& owner, const hostbind::BoundProperty& property,
                   const octave_value& self, const octave_value& value);
/// @param self anything for a method of the class
/// @return an undefined value for no result
octave_value callMethod(const hostbind::BoundClass& owner, const Overloads& overloads,
                        const octave_value& self, const octave_value_list& given);
/// @}

/// Lets Octave call the rows of a class, and of its superclasses, without the functions of the class file in between,
/// whose own calls cost more than what they call. Does nothing for a class that has this already.
void shortenWay(const hostbind::BoundClass& bound);

} // namespace vellox::ppt::oct

#endif
