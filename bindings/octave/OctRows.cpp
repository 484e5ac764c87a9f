#include "bindings/octave/OctRows.h"

#include "bindings/octave/OctCall.h"
#include "bindings/octave/OctErrors.h"
#include "bindings/octave/OctFigures.h"
#include "bindings/octave/OctObject.h"
#include "bindings/octave/OctResults.h"
#include "bindings/octave/OctTerms.h"
#include "vellox/host/binding/HostCall.h"

#include <functional>
#include <set>

namespace vellox::ppt::oct {

using namespace hostbind;

// What rows do

namespace {

octave_value read(const BoundProperty& property, const PPTObject& facade) {
    HostCall call;
    const octave_value value = toOctave(property.get(facade), property.type.getClassName());
    call.finish();
    return value;
}

} // namespace

octave_value readProperty(const BoundClass& owner, const BoundProperty& property, const octave_value& self) {
    return read(property, *requireFacade(self, owner, Use::ReadOfRoot));
}

void writeProperty(const BoundClass& owner, const BoundProperty& property, const octave_value& self,
                   const octave_value& value) {
    const ObjectPtr facade = requireFacade(self, owner, Use::Any);
    // An assignment to a property of what a property holds ends with Octave giving back what it got there.
    const bool holdsObjects = !property.type.getClassName().empty();
    if (holdsObjects && holdSameObjects(value, read(property, *facade)))
        return;
    if (!property.set)
        raiseError("vellox:onlyRead", owner.getFullName() + "." + property.name + " is only read");
    const OctValue view(value, Reading{getDigits(property)});
    if (!property.takes(view))
        raiseError("Octave:invalid-input-type", owner.getFullName() + "." + property.name + " takes " +
                                                    getTypeName(property) + ", not " + view.getClassName());
    HostCall call;
    property.set(*facade, view);
    call.finish();
}

namespace {

/// Names and values one after another, where a struct of them is wanted, as one.
octave_value_list foldFields(const Overloads& overloads, const octave_value_list& given) {
    const octave_idx_type nUnnamed = countUnnamed(given, overloads.keywords);
    const octave_idx_type start = overloads.fieldsAt;
    const bool arePairs =
        start >= 0 && nUnnamed > start + 1 && (nUnnamed - start) % 2 == 0 && given(start).is_string();
    if (!arePairs)
        return given;
    octave_scalar_map fields;
    for (octave_idx_type i = start; i < nUnnamed; i += 2)
        fields.setfield(given(i).xstring_value("the name of a field is a text"), given(i + 1));
    octave_value_list folded = given.slice(0, start);
    folded.append(octave_value(fields));
    return folded.append(given.slice(nUnnamed, given.length() - nUnnamed));
}

} // namespace

octave_value callMethod(const BoundClass& owner, const Overloads& overloads, const octave_value& self,
                        const octave_value_list& given) {
    const BoundMethod& first = *overloads.methods.front();
    const ObjectPtr facade = first.isStatic ? ObjectPtr() : requireFacade(self, owner, Use::Any);
    const octave_value_list values =
        facade ? drawFigures(*facade, first.name, foldFields(overloads, given)) : given;
    const OctCall arguments(values, Reading{Digits::OfItems, overloads.takesFields}, overloads.keywords);
    const std::size_t chosen = arguments.select(overloads.signatures, [&] {
        return Expected{std::string(owner.name) + "." + first.name, describeOverloads(overloads.methods)};
    });
    const BoundMethod& method = *overloads.methods[chosen];
    const std::vector<const hvArray*> ordered = arguments.orderFor(method.signature);
    HostCall call;
    const octave_value result =
        toOctave(method.invoke(facade.get(), {ordered.data(), ordered.size()}), method.result.getClassName());
    call.finish();
    return result;
}

// The short way

namespace {

using Values = octave_value_list;

/// A function of Octave that is a row.
class RowFunction : public octave_builtin {
public:
    using Body = std::function<Values(const Values& values)>;

    /// @param nNeeded how many arguments it can't do without
    RowFunction(const std::string& word, octave_idx_type nNeeded, Body body)
        : octave_builtin(static_cast<fcn>(nullptr), word),
          nNeeded_(nNeeded),
          body_(std::move(body)) {}
    RowFunction(const RowFunction&) = delete;
    RowFunction& operator=(const RowFunction&) = delete;

    /// Octave takes an empty value for no function.
    dim_vector dims() const override { return dim_vector(1, 1); }
    using octave_builtin::call;
    Values call(octave::tree_evaluator& evaluator, int nResults, const Values& values) override {
        return execute(evaluator, nResults, values);
    }
    Values execute(octave::tree_evaluator&, int, const Values& values) override {
        if (values.length() < nNeeded_)
            raiseError("Octave:invalid-fun-call", name() + " wants more arguments");
        return enter([&] { return body_(values); });
    }

private:
    octave_idx_type nNeeded_;
    Body body_;
};

octave_value makeFunction(const std::string& name, octave_idx_type nNeeded, RowFunction::Body body) {
    return octave_value(new RowFunction(name, nNeeded, std::move(body)));
}

void shortenProperty(const BoundClass& bound, const BoundProperty& property, octave::cdef_property present) {
    const auto get = [&bound, &property](const Values& values) {
        return ovl(readProperty(bound, property, values(0)));
    };
    const auto set = [&bound, &property](const Values& values) {
        writeProperty(bound, property, values(0), values(1));
        return Values();
    };
    present.put("GetMethod", makeFunction(std::string("get.") + property.name, 1, get));
    if (!present.get("SetMethod").isempty())
        present.put("SetMethod", makeFunction(std::string("set.") + property.name, 2, set));
}

void shortenMethod(const BoundClass& bound, const Overloads& overloads, octave::cdef_method present) {
    const auto call = [&bound, &overloads](const Values& values) {
        const octave_value result =
            callMethod(bound, overloads, values(0), values.slice(1, values.length() - 1));
        return result.is_defined() ? ovl(result) : Values();
    };
    present.set_function(makeFunction(overloads.methods.front()->name, 1, call));
}

} // namespace

void shortenWay(const BoundClass& bound) {
    OctClass& known = OctClassSystem::get().findClass(bound);
    if (known.hasShortWay)
        return;
    known.hasShortWay = true;
    octave::cdef_class octaveClass = getInterpreter().get_cdef_manager().find_class(bound.getFullName());
    for (const BoundProperty& property : bound.properties)
        shortenProperty(bound, property, octaveClass.find_property(property.name));
    std::set<std::string> seen;
    for (std::size_t row = 0; row < bound.methods.size(); ++row)
        if (!bound.methods[row].isStatic && seen.insert(bound.methods[row].name).second)
            shortenMethod(bound, known.getOverloads(row), octaveClass.find_method(bound.methods[row].name));
    if (bound.getSuperclass())
        shortenWay(*bound.getSuperclass());
}

} // namespace vellox::ppt::oct
