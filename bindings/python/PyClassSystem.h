/// @file
/// Python as a host: its types, its objects, its listeners.

#ifndef BINDINGS_PYTHON_PYCLASSSYSTEM_H
#define BINDINGS_PYTHON_PYCLASSSYSTEM_H

#include <algorithm>
#include <deque>
#include <unordered_map>
#include <utility>

#include "bindings/python/PyClass.h"
#include "bindings/python/PyErrors.h"
#include "vellox/host/binding/HostClassSystem.h"

namespace vellox::ppt::python {

/// There is one, which is never ended: Python objects outlive all static objects.
class PyClassSystem : public hostbind::HostClassSystem {
public:
    static PyClassSystem& get();

    /// Adds all types to the module.
    void addTypes(PyObject* module) const;
    /// The type of all objects; also that of what stands for nothing.
    PyTypeObject* getRootType() const { return classes_.front().type; }
    PyTypeObject* findType(const std::string& fullName) const;
    /// The bound class of a type, or of what a user's type derives from.
    const PyClass& getClassOf(PyTypeObject* type) const;
    /// The object that makeInstance() made, if it was called since this was called last. It has no holder yet.
    PyRef takeMade() { return std::exchange(made_, PyRef()); }

    /// Keeps an object that has listeners though no user holds it; none lets go of it.
    void keepListening(const PyRef& object) { listening_ = object; }
    /// From here on no listener is called: the interpreter is ending.
    void end();
    bool isEnding() const { return isEnding_; }

    bool hasPackage(const std::string& fullName) const override;
    void addPackage(const hostbind::HostPackageInfo& package) override;
    void addClass(const hostbind::BoundClass& bound) override;
    void keepLoaded() override;
    objreg::HostInterface& makeInstance(const hostbind::BoundClass& bound,
                                        const hostbind::ObjectPtr& object) override;
    bool isValid(const objreg::HostInterface& hostObject) const override;
    void fireEvent(objreg::HostInterface& hostObject, const hostbind::BoundEvent& event,
                   const MessageEventData& payload) override;
    void translateException() override;

private:
    std::deque<PyClass> classes_;
    std::unordered_map<PyTypeObject*, const PyClass*> byType_;
    PyRef made_;
    PyRef listening_;
    bool isEnding_ = false;
};

} // namespace vellox::ppt::python

#endif
