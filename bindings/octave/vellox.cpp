// The one function of the oct-file. The class files call it, with the word for an operation and the numbers of rows of the
// class table.

#include "bindings/octave/OctCall.h"
#include "bindings/octave/OctClassSystem.h"
#include "bindings/octave/OctErrors.h"
#include "bindings/octave/OctObject.h"
#include "bindings/octave/OctObjects.h"
#include "bindings/octave/OctResults.h"
#include "bindings/octave/OctTerms.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/binding/HostCall.h"

namespace vellox::ppt::oct {

namespace {

using namespace hostbind;

using Values = octave_value_list;

/// What a class file hands to the constructor of a superclass, so that only one of them makes an object.
constexpr char kMadeBySubclass[] = "\001";

Values getRest(const Values& values, octave_idx_type start) {
    return values.slice(start, values.length() - start);
}

OctClass& getClass(const octave_value& number) {
    return OctClassSystem::get().getClass(static_cast<std::size_t>(number.double_value()));
}

const BoundProperty& getProperty(const OctClass& owner, const octave_value& number) {
    const auto row = static_cast<std::size_t>(number.double_value());
    if (row >= owner.bound.properties.size())
        raiseError("vellox:internal", "no such property: the class files are of another version of vellox");
    return owner.bound.properties[row];
}

/// (class, object, arguments...)
Values make(const Values& values) {
    const OctClass& made = getClass(values(0));
    const Values given = getRest(values, 2);
    if (given.length() == 1 && given(0).is_string() && given(0).string_value() == kMadeBySubclass)
        return {};
    const bool isForUsers = !made.constructors.empty() && !made.bound.constructors.front().isHidden;
    if (!isForUsers)
        raiseError("vellox:noObject",
                   made.bound.getFullName() + ": the library alone makes objects of this class");
    const OctCall arguments(given, Reading{getDigits(made.bound)});
    const std::size_t chosen = arguments.select(made.constructors, made.bound.getFullName(),
                                                [&] { return formatConstructors(made.bound); });
    HostCall call;
    const ObjectPtr object = made.bound.constructors[chosen].make(arguments.getArguments());
    OctSlot& slot = OctSlot::put(values(1).classdef_object_value()->get_object());
    slot.hold(made.bound, object);
    BindingRegistry::announceForConstructor(object, slot);
    call.finish();
    return {};
}

octave_value read(const BoundProperty& property, const PPTObject& facade) {
    HostCall call;
    const octave_value value = toOctave(property.get(facade), property.type.getClassName());
    call.finish();
    return value;
}

/// (class, property, object)
Values get(const Values& values) {
    const OctClass& owner = getClass(values(0));
    const ObjectPtr facade = requireFacade(values(2), owner.bound, Use::ReadOfRoot);
    return ovl(read(getProperty(owner, values(1)), *facade));
}

/// (class, property, object, value)
Values set(const Values& values) {
    const OctClass& owner = getClass(values(0));
    const BoundProperty& property = getProperty(owner, values(1));
    const ObjectPtr facade = requireFacade(values(2), owner.bound, Use::Any);
    const octave_value& value = values(3);
    // An assignment to a property of what a property holds ends with Octave giving back what it got there.
    const bool holdsObjects = !property.type.getClassName().empty();
    if (holdsObjects && holdSameObjects(value, read(property, *facade)))
        return {};
    const std::string name = owner.bound.getFullName() + "." + property.name;
    if (!property.set)
        raiseError("vellox:onlyRead", name + " is only read");
    const OctValue view(value, Reading{getDigits(property)});
    if (!property.takes(view))
        raiseError("Octave:invalid-input-type",
                   name + " takes " + getTypeName(property) + ", not " + view.getClassName());
    HostCall call;
    property.set(*facade, view);
    call.finish();
    return {};
}

octave_value invoke(OctClass& owner, const Overloads& overloads, const octave_value& self,
                    const Values& given) {
    const char* name = overloads.methods.front()->name;
    const ObjectPtr facade =
        overloads.methods.front()->isStatic ? ObjectPtr() : requireFacade(self, owner.bound, Use::Any);
    const OctCall arguments(given);
    const std::size_t chosen =
        arguments.select(overloads.signatures, std::string(owner.bound.name) + "." + name,
                         [&] { return describeOverloads(overloads.methods); });
    const BoundMethod& method = *overloads.methods[chosen];
    HostCall call;
    const octave_value result =
        toOctave(method.invoke(facade.get(), arguments.getArguments()), method.result.getClassName());
    call.finish();
    return result;
}

/// (class, method, object, arguments...)
Values callMethod(const Values& values) {
    OctClass& owner = getClass(values(0));
    const Overloads& overloads = owner.getOverloads(static_cast<std::size_t>(values(1).double_value()));
    const octave_value result = invoke(owner, overloads, values(2), getRest(values, 3));
    return result.is_defined() ? ovl(result) : Values();
}

/// The same for a method that may give nothing: what it gives stands in a cell.
Values callForCell(const Values& values) {
    const Values result = callMethod(values);
    return ovl(result.empty() ? Cell() : Cell(result(0)));
}

/// (class, method, arguments...)
Values callStatic(const Values& values) {
    OctClass& owner = getClass(values(0));
    const Overloads& overloads = owner.getOverloads(static_cast<std::size_t>(values(1).double_value()));
    return ovl(invoke(owner, overloads, octave_value(), getRest(values, 2)));
}

Values listen(const Values& values) {
    OctClassSystem::get().addListener(values(0), values(1));
    return {};
}

Values unlisten(const Values& values) {
    OctClassSystem::get().removeListener(values(0), values(1));
    return {};
}

Values end(const Values&) {
    OctClassSystem::get().end();
    return {};
}

struct Operation {
    const char* name;
    int nArguments; ///< at least
    Values (*run)(const Values& values);
};

constexpr Operation kOperations[] = {
    {"get", 3, get},       {"set", 4, set},           {"call", 3, callMethod},   {"cells", 3, callForCell},
    {"make", 2, make},     {"same", 2, compare},      {"static", 2, callStatic}, {"isequal", 2, isEqual},
    {"valid", 1, isValid}, {"delete", 1, letGo},      {"show", 1, show},         {"join", 1, join},
    {"listen", 2, listen}, {"unlisten", 2, unlisten}, {"copy", 1, copy},         {"end", 0, end},
};

Values dispatch(const Values& values) {
    const std::string name = values.length() > 0 && values(0).is_string() ? values(0).string_value() : "";
    for (const Operation& operation : kOperations)
        if (name == operation.name && values.length() > operation.nArguments)
            return operation.run(getRest(values, 1));
    raiseError("Octave:invalid-fun-call", "__vellox__ is called by the classes of vellox.ppt alone");
}

} // namespace

} // namespace vellox::ppt::oct

// What Octave looks up by name; it says nothing of visibility itself.
extern "C" __attribute__((visibility("default"))) octave_function* G__vellox__(const octave::dynamic_library&,
                                                                               bool);

DEFUN_DLD(__vellox__, args, , "What the classes of vellox.ppt call.") {
    using namespace vellox::ppt::oct;
    return guarded([&] {
        OctClassSystem::begin();
        return dispatch(args);
    });
}
