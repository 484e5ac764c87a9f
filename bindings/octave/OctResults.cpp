#include "bindings/octave/OctResults.h"

#include "bindings/octave/OctObject.h"

#include <list>

namespace vellox::ppt::oct {

using namespace hostbind;

namespace {

/// An array of objects each of which is of its own class. Octave's own arrays refuse to hand an assignment through to an
/// element of another class than the array's.
class NodeArray : public octave::cdef_object_array {
public:
    explicit NodeArray(const Array<octave::cdef_object>& objects) : cdef_object_array(objects) {}
    NodeArray& operator=(const NodeArray&) = delete;

    octave::cdef_object_rep* clone() const override { return new NodeArray(*this); }

    octave_value subsasgn(const std::string& type, const std::list<octave_value_list>& idx,
                          const octave_value& value) override {
        if (type.size() < 2 || type.front() != '(')
            return cdef_object_array::subsasgn(type, idx, value);
        std::size_t skip = 0;
        octave_value_list element = subsref("(", {idx.front()}, 1, skip, octave::cdef_class(), false);
        std::list<octave_value_list> rest(idx);
        rest.pop_front();
        element(0).subsasgn(type.substr(1), rest, value);
        m_count++;
        return octave::to_ov(octave::cdef_object(this));
    }

private:
    NodeArray(const NodeArray& other) : NodeArray(other.array_value()) { set_class(other.get_class()); }
};

octave::cdef_object toObject(const ObjectPtr& object) {
    return toOctave(object).classdef_object_value()->get_object();
}

octave_value makeArray(const ObjectArray& objects, const std::string& className) {
    if (objects.size() == 1)
        return toOctave(objects.front());
    const auto count = static_cast<octave_idx_type>(objects.size());
    Array<octave::cdef_object> elements(dim_vector(count == 0 ? 0 : 1, count));
    for (octave_idx_type i = 0; i < count; ++i)
        elements(i) = toObject(objects[static_cast<std::size_t>(i)]);
    octave::cdef_object array(new NodeArray(elements));
    array.set_class(getInterpreter().get_cdef_manager().find_class(className));
    return octave::to_ov(array);
}

struct Converter {
    const std::string& className;

    octave_value operator()(const Void&) const { return octave_value(); }
    octave_value operator()(const Empty&) const { return octave_value(Matrix()); }
    octave_value operator()(bool value) const { return octave_value(value); }
    octave_value operator()(unsigned int value) const { return octave_value(octave_uint32(value)); }
    octave_value operator()(double value) const { return octave_value(value); }
    octave_value operator()(const std::wstring& text) const { return toOctave(text); }
    octave_value operator()(const ObjectPtr& object) const { return toOctave(object); }
    octave_value operator()(const ObjectArray& objects) const { return makeArray(objects, className); }
    octave_value operator()(const ObjectCells& cells) const {
        Cell made(1, static_cast<octave_idx_type>(cells.objects.size()));
        for (octave_idx_type i = 0; i < made.numel(); ++i)
            made(i) = toOctave(cells.objects[static_cast<std::size_t>(i)]);
        return octave_value(made);
    }
    octave_value operator()(const TextCells& cells) const {
        const auto nColumns = static_cast<octave_idx_type>(cells.nColumns);
        const auto nRows = nColumns == 0 ? 0 : static_cast<octave_idx_type>(cells.texts.size()) / nColumns;
        Cell made(nRows, nColumns);
        for (octave_idx_type i = 0; i < nRows * nColumns; ++i)
            made(i / nColumns, i % nColumns) = toOctave(cells.texts[static_cast<std::size_t>(i)]);
        return octave_value(made);
    }
};

/// The slots of the objects in a value, in their places; null for what is no object.
std::vector<const OctSlot*> getSlots(const octave_value& value) {
    std::vector<const OctSlot*> slots;
    if (value.iscell()) {
        const Cell cells = value.cell_value();
        for (octave_idx_type i = 0; i < cells.numel(); ++i)
            slots.push_back(findSlot(cells(i)));
    } else if (value.is_classdef_object()) {
        const octave::cdef_object object = value.classdef_object_value()->get_object();
        if (!object.is_array())
            return {findSlot(object)};
        const Array<octave::cdef_object> elements = object.array_value();
        for (octave_idx_type i = 0; i < elements.numel(); ++i)
            slots.push_back(findSlot(elements(i)));
    } else {
        slots.push_back(nullptr);
    }
    return slots;
}

} // namespace

octave_value toOctave(const HostResult& result, const std::string& className) {
    return std::visit(Converter{className}, result);
}

bool holdSameObjects(const octave_value& one, const octave_value& other) {
    const std::vector<const OctSlot*> slots = getSlots(one);
    for (const OctSlot* slot : slots)
        if (!slot)
            return false;
    return slots == getSlots(other);
}

} // namespace vellox::ppt::oct
