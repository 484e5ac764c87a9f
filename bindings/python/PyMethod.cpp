#include "bindings/python/PyMethod.h"

#include "bindings/python/PyCall.h"
#include "bindings/python/PyClassSystem.h"
#include "bindings/python/PyInstance.h"
#include "bindings/python/PyResults.h"
#include "bindings/python/PyTerms.h"
#include "vellox/host/binding/HostCall.h"

#include <structmember.h>

#include <cstddef>

namespace vellox::ppt::python {

using namespace hostbind;

namespace {

/// What a call needs, put together when the type is made. It lives until the process ends.
struct Overloads {
    const PyClass& owner;
    std::string name;
    std::string qualifiedName;
    std::string doc;
    std::string textSignature;
    std::vector<const BoundMethod*> methods;
    std::vector<const Signature*> signatures;
    bool takesKeywords = false;
    bool takesFields = false;

    Overloads(const PyClass& ownerClass, const char* methodName)
        : owner(ownerClass),
          name(methodName),
          qualifiedName(std::string(owner.bound.name) + "." + name),
          methods(owner.bound.getOverloads(methodName)) {
        doc = describeOverloads(methods);
        textSignature = formatTextSignature(methods);
        for (const BoundMethod* method : methods) {
            signatures.push_back(&method->signature);
            for (const Parameter& parameter : method->signature) {
                takesKeywords = takesKeywords || parameter.isKeyword;
                takesFields = takesFields || parameter.word.getKind() == SignatureWord::Kind::Fields;
            }
        }
    }
    bool isStatic() const { return methods.front()->isStatic; }
};

struct MethodObject {
    PyObject_HEAD
    vectorcallfunc call;
    const Overloads* overloads;
};

const Overloads& overloadsOf(PyObject* method) {
    return *reinterpret_cast<MethodObject*>(method)->overloads;
}

/// The facade that a method is called on; null for a static method.
ObjectPtr takeSelf(const Overloads& overloads, PyObject* const*& objects, std::size_t& count) {
    if (overloads.isStatic())
        return {};
    if (count == 0 || !isInstance(*objects))
        throw PythonError(PyExc_TypeError, overloads.qualifiedName + " wants an object of its class first");
    --count;
    return requireFacade(*objects++, overloads.owner, Use::Any);
}

PyObject* callMethod(PyObject* callable, PyObject* const* objects, std::size_t flags, PyObject* keywords) {
    return guarded<PyObject*>(nullptr, [&] {
        const Overloads& overloads = overloadsOf(callable);
        const auto named = static_cast<std::size_t>(keywords ? PyTuple_GET_SIZE(keywords) : 0);
        if (named > 0 && !overloads.takesKeywords)
            throw PythonError(PyExc_TypeError, overloads.qualifiedName + " takes no keyword arguments");
        auto count = static_cast<std::size_t>(PyVectorcall_NARGS(flags));
        const ObjectPtr self = takeSelf(overloads, objects, count);
        count += named;
        Reading reading;
        reading.fields = overloads.takesFields;
        const PyCall arguments(objects, count, reading, keywords);
        const std::size_t chosen =
            arguments.select(overloads.signatures, overloads.qualifiedName, overloads.doc);
        const Given given(self.get(), overloads.owner.bound.name, overloads.name.c_str(), objects, count);
        HostCall call;
        PyRef result = given.run([&] {
            const std::vector<const hvArray*> ordered = arguments.orderFor(*overloads.signatures[chosen]);
            return toPython(overloads.methods[chosen]->invoke(self.get(), {ordered.data(), ordered.size()}));
        });
        call.finish();
        return result.release();
    });
}

PyObject* bindMethod(PyObject* method, PyObject* object, PyObject*) {
    if (!object || object == Py_None)
        return PyRef::share(method).release();
    return PyMethod_New(method, object);
}

PyObject* representMethod(PyObject* method) {
    return PyUnicode_FromFormat("<method '%s'>", overloadsOf(method).qualifiedName.c_str());
}

/// @{ Attributes that tools which show help ask for.
template <std::string Overloads::*kText> PyObject* getText(PyObject* method, void*) {
    return PyUnicode_FromString((overloadsOf(method).*kText).c_str());
}
PyObject* getOwner(PyObject* method, void*) {
    return PyRef::share(reinterpret_cast<PyObject*>(overloadsOf(method).owner.type)).release();
}
/// @}

PyTypeObject* getMethodType() {
    static PyMemberDef members[] = {
        {"__vectorcalloffset__", T_PYSSIZET, offsetof(MethodObject, call), READONLY, nullptr}, {}};
    static PyGetSetDef getSets[] = {
        {"__doc__", getText<&Overloads::doc>, nullptr, nullptr, nullptr},
        {"__text_signature__", getText<&Overloads::textSignature>, nullptr, nullptr, nullptr},
        {"__name__", getText<&Overloads::name>, nullptr, nullptr, nullptr},
        {"__qualname__", getText<&Overloads::qualifiedName>, nullptr, nullptr, nullptr},
        {"__objclass__", getOwner, nullptr, nullptr, nullptr},
        {}};
    static PyType_Slot slots[] = {{Py_tp_call, reinterpret_cast<void*>(PyVectorcall_Call)},
                                  {Py_tp_descr_get, reinterpret_cast<void*>(bindMethod)},
                                  {Py_tp_repr, reinterpret_cast<void*>(representMethod)},
                                  {Py_tp_members, members},
                                  {Py_tp_getset, getSets},
                                  {0, nullptr}};
    static PyType_Spec spec = {"vellox.ppt.method", sizeof(MethodObject), 0,
                               Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL |
                                   Py_TPFLAGS_METHOD_DESCRIPTOR | Py_TPFLAGS_DISALLOW_INSTANTIATION,
                               slots};
    static PyObject* type = checked(PyType_FromSpec(&spec)).release();
    return reinterpret_cast<PyTypeObject*>(type);
}

} // namespace

PyRef makeMethod(const PyClass& owner, const char* name) {
    const auto* overloads = new Overloads(owner, name);
    PyTypeObject* type = getMethodType();
    PyRef method = checked(type->tp_alloc(type, 0));
    auto* object = reinterpret_cast<MethodObject*>(method.get());
    object->call = callMethod;
    object->overloads = overloads;
    return overloads->isStatic() ? checked(PyStaticMethod_New(method.get())) : method;
}

} // namespace vellox::ppt::python
