/// @file
/// A bound class as a Python type.

#ifndef BINDINGS_PYTHON_PYCLASS_H
#define BINDINGS_PYTHON_PYCLASS_H

#include <deque>
#include <string>
#include <vector>

#include "bindings/python/PyRef.h"
#include "vellox/host/binding/HostClassSystem.h"

namespace vellox::ppt::python {

struct PyClass;

/// A property, as its functions get to know of it.
struct PyProperty {
    const PyClass* owner;
    const hostbind::BoundProperty* row;
};

/// A Python type and what it was made from. It lives until the process ends, since the type points into it.
struct PyClass {
    const hostbind::BoundClass& bound;
    PyTypeObject* type = nullptr;
    std::string fullName;
    std::string doc;
    std::string constructorsText;
    std::vector<const hostbind::Signature*> constructorSignatures;
    std::deque<PyProperty> properties;
    std::vector<PyGetSetDef> getSets;
    std::vector<PyMethodDef> methods; ///< those that aren't rows of the table

    explicit PyClass(const hostbind::BoundClass& boundClass);
    /// Whether this is the class of what all objects have.
    bool isRoot() const;
};

/// Collects what a class declares, and makes the type of it.
class PyClassBuilder : public hostbind::HostClass {
public:
    explicit PyClassBuilder(PyClass& pyClass) : class_(pyClass) {}

    void declareSuperclass(const std::string& fullName) override;
    void declareConstructor(const hostbind::BoundConstructor& constructor) override;
    void declareProperty(const hostbind::BoundProperty& property) override;
    void declareMethod(const hostbind::BoundMethod& method) override;
    void declareEvent(const hostbind::BoundEvent& event) override;

    void makeType();

private:
    /// The types that the type derives from, or the only one; null for none.
    PyRef makeBases() const;
    void addMethods();

    PyClass& class_;
    PyTypeObject* base_ = nullptr;
    std::vector<const char*> methodNames_;
    bool hasListeners_ = false;
};

} // namespace vellox::ppt::python

#endif
