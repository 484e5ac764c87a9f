/// @file
/// What all objects have in Octave besides what the class table says. Each function is an operation of the oct-file.

#ifndef BINDINGS_OCTAVE_OCTOBJECTS_H
#define BINDINGS_OCTAVE_OCTOBJECTS_H

#include "bindings/octave/Octave.h"

namespace vellox::ppt::oct {

/// (one, other): whether they are the same object, element by element.
octave_value_list compare(const octave_value_list& values);
/// (one, others...): whether all are the same object, or arrays of the same objects.
octave_value_list isEqual(const octave_value_list& values);
/// (object): whether it stands for an object of the library, element by element.
octave_value_list isValid(const octave_value_list& values);
/// Gives all objects a method `delete`, which lets go of what they stand for. Octave also calls it for each object whose
/// last variable goes: a function in a class file would be slow, and run in the midst of other functions' ends.
void installDelete();
/// (object): what is shown of it, as text.
octave_value_list show(const octave_value_list& values);
/// (dimension, values...): a cell array of them, and of what stands in them.
octave_value_list join(const octave_value_list& values);
/// (object): another one like it.
octave_value_list copy(const octave_value_list& values);

} // namespace vellox::ppt::oct

#endif
