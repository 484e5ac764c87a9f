// The one function of the oct-file. The class files call it, with the word for an operation and the numbers of rows of the
// class table.

#include "bindings/octave/OctCall.h"
#include "bindings/octave/OctClassSystem.h"
#include "bindings/octave/OctErrors.h"
#include "bindings/octave/OctObject.h"
#include "bindings/octave/OctObjects.h"
#include "bindings/octave/OctRows.h"
#include "bindings/octave/OctTerms.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/binding/HostCall.h"

namespace vellox::ppt::oct {

namespace {

using namespace hostbind;

using Values = octave_value_list;

/// What a class file hands to the constructor of a superclass, so that only one of them makes an object.
constexpr char kMadeBySubclass[] = "\001vellox: made by a subclass";

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
    const std::size_t chosen = arguments.select(made.constructors, [&] {
        return Expected{made.bound.getFullName(), formatConstructors(made.bound)};
    });
    const BoundConstructor& constructor = made.bound.constructors[chosen];
    const std::vector<const hvArray*> ordered = arguments.orderFor(constructor.signature);
    HostCall call;
    const ObjectPtr object = constructor.make({ordered.data(), ordered.size()});
    OctSlot& slot = OctSlot::put(values(1).classdef_object_value()->get_object());
    slot.hold(made.bound, object);
    shortenWay(made.bound);
    BindingRegistry::announceForConstructor(object, slot);
    call.finish();
    return {};
}

/// (class, property, object)
Values get(const Values& values) {
    const OctClass& owner = getClass(values(0));
    return ovl(readProperty(owner.bound, getProperty(owner, values(1)), values(2)));
}

/// (class, property, object, value)
Values set(const Values& values) {
    const OctClass& owner = getClass(values(0));
    writeProperty(owner.bound, getProperty(owner, values(1)), values(2), values(3));
    return {};
}

const Overloads& getOverloads(OctClass& owner, const octave_value& number) {
    return owner.getOverloads(static_cast<std::size_t>(number.double_value()));
}

/// (class, method, object, arguments...)
Values call(const Values& values) {
    OctClass& owner = getClass(values(0));
    const octave_value result =
        callMethod(owner.bound, getOverloads(owner, values(1)), values(2), getRest(values, 3));
    return result.is_defined() ? ovl(result) : Values();
}

/// The same for a method that may give nothing: what it gives stands in a cell.
Values callForCell(const Values& values) {
    const Values result = call(values);
    return ovl(result.empty() ? Cell() : Cell(result(0)));
}

/// (class, method, arguments...)
Values callStatic(const Values& values) {
    OctClass& owner = getClass(values(0));
    return ovl(callMethod(owner.bound, getOverloads(owner, values(1)), octave_value(), getRest(values, 2)));
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
    {"get", 3, get},           {"set", 4, set},      {"call", 3, call},         {"cells", 3, callForCell},
    {"make", 2, make},         {"same", 2, compare}, {"static", 2, callStatic}, {"isequal", 2, isEqual},
    {"valid", 1, isValid},     {"show", 1, show},    {"join", 1, join},         {"listen", 2, listen},
    {"unlisten", 2, unlisten}, {"copy", 1, copy},    {"end", 0, end},
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
    OctClassSystem::begin();
    return enter([&] { return dispatch(args); });
}
