#include "bindings/octave/OctFigures.h"

#include "vellox/host/binding/Room.h"
#include "vellox/ppt/tree/Slide.h"

namespace vellox::ppt::oct {

octave_value_list drawFigures(const PPTObject& self, const std::string& method, octave_value_list values) {
    const octave_idx_type count = values.length();
    const bool takesPicture = (method == "replace" && count > 0) ||
                              (method == "add" && count == 1 && dynamic_cast<const Slide*>(&self));
    if (!takesPicture || !values(count - 1).is_real_scalar() || !values(count - 1).is_double_type())
        return values;
    octave::interpreter& interpreter = getInterpreter();
    octave_value& last = values(count - 1);
    if (!interpreter.feval("isfigure", ovl(last), 1)(0).bool_value())
        return values;
    const std::wstring name = count > 1 && values(0).is_string() ? fromUtf8(values(0).string_value()) : L"";
    const hostbind::Room room = method == "add" ? hostbind::Room() : hostbind::getRoom(self, name);
    last = interpreter.feval("__vellox_figure__", ovl(last, room.width, room.height), 1)(0);
    return values;
}

} // namespace vellox::ppt::oct
