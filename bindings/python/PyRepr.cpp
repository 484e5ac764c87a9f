#include "bindings/python/PyRepr.h"

#include "bindings/python/PyClass.h"
#include "bindings/python/PyErrors.h"
#include "bindings/python/PyInstance.h"
#include "bindings/python/PyResults.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/binding/Descriptions.h"

namespace vellox::ppt::python {

using namespace hostbind;

namespace {

PyObject* describe(PyObject* self, const PySlot& slot) {
    const PyRef telling = toPython(getTelling(slot.getClass()->bound, *slot.getFacade()));
    const std::wstring start = getTextStart(*slot.getFacade());
    const char* type = Py_TYPE(self)->tp_name;
    const bool isNamed = telling.get() != Py_None;
    if (isNamed && !start.empty())
        return PyUnicode_FromFormat("<%s %R: %R>", type, telling.get(), toPython(start).get());
    if (isNamed)
        return PyUnicode_FromFormat("<%s %R>", type, telling.get());
    if (!start.empty())
        return PyUnicode_FromFormat("<%s: %R>", type, toPython(start).get());
    return PyUnicode_FromFormat("<%s, tag %R>", type, toPython(slot.getFacade()->getTag()).get());
}

} // namespace

PyObject* represent(PyObject* self) {
    return guarded<PyObject*>(nullptr, [&] {
        const PySlot& slot = slotOf(self);
        const ObjectPtr facade = slot.getProxy();
        if (!facade)
            return PyUnicode_FromFormat("<%s>", Py_TYPE(self)->tp_name);
        if (BindingRegistry::isEnding(*facade)) // its fields are going already
            return PyUnicode_FromFormat("<%s, tag %R>", Py_TYPE(self)->tp_name,
                                        toPython(facade->getTag()).get());
        return describe(self, slot);
    });
}

} // namespace vellox::ppt::python
