#include "bindings/octave/OctObjects.h"

#include "bindings/octave/OctErrors.h"
#include "bindings/octave/OctObject.h"
#include "bindings/octave/OctResults.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/binding/Descriptions.h"
#include "vellox/host/binding/HostCall.h"

#include <algorithm>
#include <sstream>

namespace vellox::ppt::oct {

using namespace hostbind;

namespace {

using Values = octave_value_list;

/// The objects of an array, or one alone, each as a value.
struct Elements {
    dim_vector dimensions;
    std::vector<octave_value> values;
};

Elements getElements(const octave_value& value) {
    if (!value.is_classdef_object() || !value.classdef_object_value()->get_object_ref().is_array())
        return {dim_vector(1, 1), {value}};
    const Array<octave::cdef_object> objects = value.classdef_object_value()->get_object_ref().array_value();
    Elements elements = {objects.dims(), {}};
    for (octave_idx_type i = 0; i < objects.numel(); ++i)
        elements.values.push_back(octave::to_ov(objects(i)));
    return elements;
}

bool isSame(const octave_value& one, const octave_value& other) {
    return one.is_classdef_object() && other.is_classdef_object() &&
           one.classdef_object_value()->get_object_ref().is(other.classdef_object_value()->get_object_ref());
}

} // namespace

Values compare(const Values& values) {
    const Elements one = getElements(values(0));
    const Elements other = getElements(values(1));
    const bool isOne = one.values.size() == 1;
    const bool isOther = other.values.size() == 1;
    if (!isOne && !isOther && one.dimensions != other.dimensions)
        raiseError("Octave:nonconformant-args", "nonconformant arguments: arrays of " + one.dimensions.str() +
                                                    " and of " + other.dimensions.str());
    boolNDArray same(isOne ? other.dimensions : one.dimensions);
    for (octave_idx_type i = 0; i < same.numel(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        same(i) = isSame(one.values[isOne ? 0 : at], other.values[isOther ? 0 : at]);
    }
    return ovl(same);
}

Values isEqual(const Values& values) {
    const Elements first = getElements(values(0));
    for (octave_idx_type i = 1; i < values.length(); ++i) {
        const Elements other = getElements(values(i));
        if (first.dimensions != other.dimensions ||
            !std::equal(first.values.begin(), first.values.end(), other.values.begin(), isSame))
            return ovl(false);
    }
    return ovl(true);
}

Values isValid(const Values& values) {
    const Elements elements = getElements(values(0));
    boolNDArray valid(elements.dimensions);
    for (octave_idx_type i = 0; i < valid.numel(); ++i) {
        const OctSlot* slot = findSlot(elements.values[static_cast<std::size_t>(i)]);
        valid(i) = slot && slot->getProxy();
    }
    return ovl(valid);
}

namespace {

/// (object): what `delete` does.
Values letGo(const Values& values, int) {
    if (values.length() != 1)
        raiseError("Octave:invalid-fun-call", "delete takes one object, or an array of them");
    for (const octave_value& each : getElements(values(0)).values)
        if (OctSlot* slot = findSlot(each))
            slot->drop();
    return {};
}

} // namespace

void installDelete() {
    octave::cdef_manager& manager = getInterpreter().get_cdef_manager();
    octave::cdef_class root = manager.find_class(getBoundClasses().front().getFullName());
    root.install_method(manager.make_method(root, "delete", letGo));
}

// Showing

namespace {

std::string quote(const std::wstring& text) {
    return "\"" + toUtf8(text) + "\"";
}

/// Such as: vellox.ppt.TextBox "Remark": "The sensor at the outlet"
std::string describe(const octave_value& object) {
    const OctSlot* slot = findSlot(object);
    const ObjectPtr facade = slot ? slot->getProxy() : ObjectPtr();
    std::string text = object.class_name();
    if (!facade)
        return text + (slot && slot->getClass() ? ", which has ended" : ", which stands for nothing");
    if (BindingRegistry::isEnding(*facade)) // its fields are going already
        return text + ", tag " + quote(facade->getTag());
    const HostResult telling = getTelling(*slot->getClass(), *facade);
    const std::wstring start = getTextStart(*facade);
    if (const auto* words = std::get_if<std::wstring>(&telling))
        text += " " + quote(*words);
    else if (const auto* truth = std::get_if<bool>(&telling))
        text += *truth ? " true" : " false";
    else if (start.empty())
        text += ", tag " + quote(facade->getTag());
    return text + (start.empty() ? "" : ": " + quote(start));
}

struct Shower {
    std::string operator()(const Void&) const { return ""; }
    std::string operator()(const Empty&) const { return "[]"; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(const std::wstring& text) const { return toUtf8(text); }
    std::string operator()(const ObjectPtr& object) const {
        return object ? describe(toOctave(object)) : "[]";
    }
    std::string operator()(const ObjectArray& objects) const { return count(objects.size()); }
    std::string operator()(const ObjectCells& cells) const { return count(cells.objects.size()); }
    std::string operator()(const TextCells& cells) const { return count(cells.texts.size()); }
    template <class Number> std::string operator()(Number number) const {
        std::ostringstream text;
        text << number;
        return text.str();
    }

private:
    static std::string count(std::size_t number) {
        return number == 0 ? "none" : "a list of " + std::to_string(number);
    }
};

std::string listProperties(const OctSlot& slot, const PPTObject& facade) {
    std::string text;
    for (const BoundClass* bound = slot.getClass(); bound; bound = bound->getSuperclass())
        for (const BoundProperty& property : bound->properties)
            text += "      " + std::string(property.name) + " = " +
                    std::visit(Shower(), property.get(facade)) + "\n";
    return text;
}

} // namespace

Values show(const Values& values) {
    const Elements elements = getElements(values(0));
    if (elements.values.empty())
        return ovl("  no " + values(0).class_name() + " objects\n");
    HostCall call;
    std::string text;
    for (const octave_value& each : elements.values)
        text += "  " + describe(each) + "\n";
    const OctSlot* slot = elements.values.size() == 1 ? findSlot(elements.values.front()) : nullptr;
    const ObjectPtr facade = slot ? slot->getProxy() : ObjectPtr();
    if (facade && !BindingRegistry::isEnding(*facade))
        text += "\n" + listProperties(*slot, *facade);
    call.finish();
    return ovl(text);
}

// Making

Values join(const Values& values) {
    const bool isColumn = values(0).double_value() == 1;
    std::vector<octave_value> all;
    for (octave_idx_type i = 1; i < values.length(); ++i) {
        if (values(i).iscell()) {
            const Cell cells = values(i).cell_value();
            for (octave_idx_type c = 0; c < cells.numel(); ++c)
                all.push_back(cells(c));
        } else if (values(i).numel() > 0 || values(i).is_string()) {
            const Elements elements = getElements(values(i));
            all.insert(all.end(), elements.values.begin(), elements.values.end());
        }
    }
    const auto count = static_cast<octave_idx_type>(all.size());
    Cell joined(isColumn ? count : 1, isColumn ? 1 : count);
    for (octave_idx_type i = 0; i < count; ++i)
        joined(i) = all[static_cast<std::size_t>(i)];
    return ovl(joined);
}

Values copy(const Values& values) {
    const OctSlot* slot = findSlot(values(0));
    const ObjectPtr facade = requireFacade(values(0), getBoundClasses()[1], Use::Any);
    const BoundClass& bound = *slot->getClass();
    if (!bound.copy)
        raiseError("vellox:noCopy", bound.getFullName() + " objects can't be copied");
    HostCall call;
    const octave_value made = toOctave(bound.copy(*facade));
    call.finish();
    return ovl(made);
}

} // namespace vellox::ppt::oct
