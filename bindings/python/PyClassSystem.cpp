#include "bindings/python/PyClassSystem.h"

#include "bindings/python/PyInstance.h"
#include "bindings/python/PyListeners.h"
#include "vellox/host/binding/HostCall.h"

namespace vellox::ppt::python {

using namespace hostbind;

PyClassSystem& PyClassSystem::get() {
    static PyClassSystem& host = *new PyClassSystem;
    return host;
}

// Types

bool PyClassSystem::hasPackage(const std::string& fullName) const {
    // The package of the classes is the module that is being imported, and its parent was imported ahead of it.
    return fullName == kPackage || fullName == "vellox";
}

void PyClassSystem::addPackage(const HostPackageInfo& package) {
    package.addContents(*this);
}

void PyClassSystem::addClass(const BoundClass& bound) {
    PyClass& added = classes_.emplace_back(bound);
    PyClassBuilder builder(added);
    initializeClass(builder, bound);
    builder.makeType();
    byType_[added.type] = &added;
}

void PyClassSystem::keepLoaded() {
    // Python never unloads a module's file.
}

void PyClassSystem::addTypes(PyObject* module) const {
    for (const PyClass& each : classes_)
        if (PyModule_AddObjectRef(module, each.bound.name, reinterpret_cast<PyObject*>(each.type)) < 0)
            throw PythonError();
}

PyTypeObject* PyClassSystem::findType(const std::string& fullName) const {
    for (const PyClass& each : classes_)
        if (each.fullName == fullName)
            return each.type;
    return nullptr;
}

const PyClass& PyClassSystem::getClassOf(PyTypeObject* type) const {
    for (; type; type = type->tp_base) {
        const auto found = byType_.find(type);
        if (found != byType_.end())
            return *found->second;
    }
    return classes_.front();
}

// Objects

objreg::HostInterface& PyClassSystem::makeInstance(const BoundClass& bound, const ObjectPtr& object) {
    const auto found = std::find_if(classes_.begin(), classes_.end(),
                                    [&](const PyClass& each) { return &each.bound == &bound; });
    made_ = allocateInstance(found->type);
    PySlot& slot = slotOf(made_.get());
    slot.hold(*found, object);
    return slot;
}

bool PyClassSystem::isValid(const objreg::HostInterface& hostObject) const {
    return !isEnding_ && static_cast<const PySlot&>(hostObject).getFacade();
}

// Listeners

void PyClassSystem::fireEvent(objreg::HostInterface& hostObject, const BoundEvent&,
                              const MessageEventData& payload) {
    PyObject* owner = static_cast<PySlot&>(hostObject).getOwner();
    callHostListeners(payload, [&] { callListeners(owner, payload); });
}

void PyClassSystem::translateException() {
    translateToPython();
}

void PyClassSystem::end() {
    isEnding_ = true;
    listening_ = PyRef();
}

} // namespace vellox::ppt::python
