#include "bindings/python/PyClass.h"

#include "bindings/python/PyCall.h"
#include "bindings/python/PyClassSystem.h"
#include "bindings/python/PyInstance.h"
#include "bindings/python/PyListeners.h"
#include "bindings/python/PyMethod.h"
#include "bindings/python/PyPrimitives.h"
#include "bindings/python/PyRepr.h"
#include "bindings/python/PyResults.h"
#include "bindings/python/PyTerms.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/binding/HostCall.h"

#include <structmember.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace vellox::ppt::python {

using namespace hostbind;

// PyClass

PyClass::PyClass(const BoundClass& boundClass)
    : bound(boundClass),
      fullName(boundClass.getFullName()),
      doc(formatTextSignature(boundClass) + describeClass(boundClass)),
      constructorsText(formatConstructors(boundClass)) {}

bool PyClass::isRoot() const {
    return std::strcmp(bound.name, "Object") == 0;
}

// Type slots: the life of an object

namespace {

PyObject* newObject(PyTypeObject* type, PyObject*, PyObject*) {
    return guarded<PyObject*>(nullptr, [&] { return allocateInstance(type).release(); });
}

void deallocate(PyObject* self) {
    clearInstance(self);
    freeInstance(self);
}

/// Whether objects of a class are made of bytes.
bool takesBytes(const BoundClass& bound) {
    const auto isBytes = [](const Parameter& parameter) {
        return parameter.word.getKind() == SignatureWord::Kind::Bytes;
    };
    return std::any_of(bound.constructors.begin(), bound.constructors.end(),
                       [&](const BoundConstructor& each) {
                           return std::any_of(each.signature.begin(), each.signature.end(), isBytes);
                       });
}

ObjectPtr construct(const PyClass& pyClass, PyObject* arguments) {
    const bool isForUsers =
        !pyClass.bound.constructors.empty() && !pyClass.bound.constructors.front().isHidden;
    if (!isForUsers)
        throw PythonError(PyExc_TypeError,
                          pyClass.fullName + ": the library alone makes objects of this class");
    PyObject** values = PySequence_Fast_ITEMS(arguments);
    const auto count = static_cast<std::size_t>(PyTuple_GET_SIZE(arguments));
    Reading reading;
    reading.rowsAreTables = true;
    reading.imagesAreBytes = takesBytes(pyClass.bound);
    reading.digits = getDigits(pyClass.bound);
    const PyCall call(values, count, reading);
    const std::size_t chosen =
        call.select(pyClass.constructorSignatures, pyClass.fullName, pyClass.constructorsText);
    const BoundConstructor& constructor = pyClass.bound.constructors[chosen];
    if (!constructor.make)
        return {};
    const Given given(nullptr, pyClass.bound.name, nullptr, values, count);
    return given.run([&] { return constructor.make(call.getArguments()); });
}

int initObject(PyObject* self, PyObject* arguments, PyObject* keywords) {
    return guarded<int>(-1, [&] {
        const PyClass& pyClass = PyClassSystem::get().getClassOf(Py_TYPE(self));
        if (keywords && PyDict_GET_SIZE(keywords) > 0)
            throw PythonError(PyExc_TypeError, pyClass.fullName + " takes no keyword arguments");
        HostCall call;
        const ObjectPtr made = construct(pyClass, arguments);
        if (made) {
            slotOf(self).hold(pyClass, made); // an object that is made once more lets go of the former one
            BindingRegistry::announceForConstructor(made, slotOf(self));
        }
        call.finish();
        return 0;
    });
}

// Properties

PyObject* getProperty(PyObject* self, void* closure) {
    return guarded<PyObject*>(nullptr, [&] {
        const auto& property = *static_cast<const PyProperty*>(closure);
        const ObjectPtr facade = requireFacade(self, *property.owner, Use::ReadOfRoot);
        HostCall call;
        PyRef value = toPython(property.row->get(*facade));
        call.finish();
        return value.release();
    });
}

/// @param value null for a property that is to be deleted, which empties it as None does
int setProperty(PyObject* self, PyObject* value, void* closure) {
    return guarded<int>(-1, [&] {
        const auto& property = *static_cast<const PyProperty*>(closure);
        const ObjectPtr facade = requireFacade(self, *property.owner, Use::Any);
        PyObject* given = value ? value : Py_None;
        Reading reading;
        reading.digits = getDigits(*property.row);
        const PyValue view(given, reading);
        if (!property.row->takes(view))
            throw PythonError(PyExc_TypeError, property.owner->fullName + "." + property.row->name +
                                                   " takes " + getTypeName(*property.row) + ", not " +
                                                   view.getClassName() + " " + describeValues(&given, 1));
        HostCall call;
        const Given context(facade.get(), property.owner->bound.name, property.row->name, &given, 1);
        context.run([&] { property.row->set(*facade, view); });
        call.finish();
        return 0;
    });
}

} // namespace

// PyClassBuilder

void PyClassBuilder::declareSuperclass(const std::string& fullName) {
    // Python has no need of what other hosts have their objects derive from.
    if (findBoundClass(fullName))
        base_ = PyClassSystem::get().findType(fullName);
}

void PyClassBuilder::declareConstructor(const BoundConstructor& constructor) {
    class_.constructorSignatures.push_back(&constructor.signature);
}

void PyClassBuilder::declareProperty(const BoundProperty& property) {
    PyProperty& added = class_.properties.emplace_back(PyProperty{&class_, &property});
    class_.getSets.push_back(
        {property.name, getProperty, property.set ? setProperty : nullptr, property.doc, &added});
}

void PyClassBuilder::declareMethod(const BoundMethod& method) {
    const auto isSame = [&](const char* name) { return std::strcmp(name, method.name) == 0; };
    if (std::none_of(methodNames_.begin(), methodNames_.end(), isSame))
        methodNames_.push_back(method.name);
}

void PyClassBuilder::declareEvent(const BoundEvent&) {
    hasListeners_ = true;
}

namespace {

/// What the layer in Python adds to a class: a class of the same name, as a further base. Null if it adds nothing.
PyRef findConveniences(const char* name) {
    const PyRef layer = checked(PyImport_ImportModule("vellox._conveniences"));
    if (!PyObject_HasAttrString(layer.get(), name))
        return {};
    return checked(PyObject_GetAttrString(layer.get(), name));
}

} // namespace

PyRef PyClassBuilder::makeBases() const {
    const PyRef base = PyRef::share(reinterpret_cast<PyObject*>(base_));
    const PyRef conveniences = findConveniences(class_.bound.name);
    if (base && conveniences)
        return checked(PyTuple_Pack(2, base.get(), conveniences.get()));
    return base ? base : conveniences;
}

void PyClassBuilder::makeType() {
    static PyMemberDef members[] = {
        {"__weaklistoffset__", T_PYSSIZET, offsetof(PyInstanceHead, weakReferences), READONLY, nullptr}, {}};
    std::vector<PyType_Slot> slots;
    if (hasListeners_)
        slots = getListeningSlots();
    else
        slots.push_back({Py_tp_dealloc, reinterpret_cast<void*>(deallocate)});
    if (!base_)
        slots.insert(slots.end(), {{Py_tp_new, reinterpret_cast<void*>(newObject)},
                                   {Py_tp_init, reinterpret_cast<void*>(initObject)},
                                   {Py_tp_repr, reinterpret_cast<void*>(represent)},
                                   {Py_tp_members, members}});
    if (hasListeners_)
        class_.methods = getListeningMethods();
    if (class_.isRoot())
        class_.methods = getPrimitives();
    class_.methods.push_back({});
    class_.getSets.push_back({});
    slots.insert(slots.end(), {{Py_tp_doc, const_cast<char*>(class_.doc.c_str())},
                               {Py_tp_getset, class_.getSets.data()},
                               {Py_tp_methods, class_.methods.data()},
                               {0, nullptr}});
    const std::size_t size = hasListeners_ ? sizeof(PyListeningInstance) : sizeof(PyInstance);
    const unsigned int flags =
        Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE | (hasListeners_ ? Py_TPFLAGS_HAVE_GC : 0);
    PyType_Spec spec = {class_.fullName.c_str(), static_cast<int>(size), 0, flags, slots.data()};
    PyObject* type = PyType_FromSpecWithBases(&spec, makeBases().get());
    class_.type = reinterpret_cast<PyTypeObject*>(checked(type).release());
    addMethods();
}

void PyClassBuilder::addMethods() {
    for (const char* name : methodNames_) {
        const PyRef method = makeMethod(class_, name);
        if (PyObject_SetAttrString(reinterpret_cast<PyObject*>(class_.type), name, method.get()) < 0)
            throw PythonError();
    }
}

} // namespace vellox::ppt::python
