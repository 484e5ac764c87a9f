#include "bindings/octave/OctFigures.h"

#include "vellox/host/binding/Room.h"
#include "vellox/ppt/tree/Slide.h"

namespace vellox::ppt::oct {

namespace {

/// @param name of the shape that a figure is for; empty for the object itself
octave_value draw(const octave_value& value, const PPTObject& self, const std::string& name) {
    octave::interpreter& interpreter = getInterpreter();
    const bool isFigure = value.is_real_scalar() && value.is_double_type() &&
                          interpreter.feval("isfigure", ovl(value), 1)(0).bool_value();
    if (!isFigure)
        return value;
    const hostbind::Room room = hostbind::getRoom(self, fromUtf8(name));
    return interpreter.feval("__vellox_figure__", ovl(value, room.width, room.height), 1)(0);
}

/// Handles are numbers, and most shapes show a number as a text: in a field it is a figure where only a picture goes.
octave_value drawFields(const octave_value& value, const PPTObject& self) {
    octave_scalar_map fields = value.scalar_map_value();
    const string_vector names = fields.fieldnames();
    for (octave_idx_type i = 0; i < names.numel(); ++i)
        if (hostbind::isForPictures(self, fromUtf8(names(i))))
            fields.setfield(names(i), draw(fields.getfield(names(i)), self, names(i)));
    return octave_value(fields);
}

} // namespace

octave_value_list drawFigures(const PPTObject& self, const std::string& method, octave_value_list values) {
    const octave_idx_type count = values.length();
    const bool isSlide = dynamic_cast<const Slide*>(&self);
    if (method == "replace" && count > 0)
        values(count - 1) =
            draw(values(count - 1), self, count > 1 && values(0).is_string() ? values(0).string_value() : "");
    else if (method == "add" && count == 1 && isSlide)
        values(0) = draw(values(0), self, "");
    else if (method == "fill" && isSlide && count > 0 && values(0).isstruct() && values(0).numel() == 1)
        values(0) = drawFields(values(0), self);
    return values;
}

} // namespace vellox::ppt::oct
