/// @file
/// The Python object that stands for an object of the library.

#ifndef BINDINGS_PYTHON_PYINSTANCE_H
#define BINDINGS_PYTHON_PYINSTANCE_H

#include "bindings/python/PyRef.h"
#include "vellox/host/binding/HostResult.h"
#include "vellox/host/services/Wrappable.h"

namespace vellox::ppt::python {

using hostbind::ObjectPtr;

struct PyClass;

/// What a Python object holds: a handle on an object of the library, once it is made and until that ends.
class PySlot : public objreg::HostInterface {
public:
    explicit PySlot(PyObject* owner) : owner_(owner) {}
    ~PySlot() override;
    PySlot(const PySlot&) = delete;
    PySlot& operator=(const PySlot&) = delete;

    /// The Python object that this is part of.
    PyObject* getOwner() const { return owner_; }
    /// The class of what is held, which the Python object's own class derives from; null before anything is.
    const PyClass* getClass() const { return class_; }

    void hold(const PyClass& pyClass, ObjectPtr proxy);
    /// Unties the pair and lets go of the handle.
    void drop();

    /// @{ Whether the user knows that what is held stays unfinished, since an error was in the way.
    void setGivenUp() { isGivenUp_ = true; }
    bool isGivenUp() const { return isGivenUp_; }
    /// @}

    ObjectPtr getProxy() const override { return proxy_; }
    PPTObject* getFacade() const { return proxy_.get(); }
    void retract() noexcept override;

private:
    PyObject* owner_;
    const PyClass* class_ = nullptr;
    ObjectPtr proxy_;
    bool isGivenUp_ = false;
};

/// The layout of the Python objects: first what Python itself looks into.
struct PyInstanceHead {
    PyObject_HEAD
    PyObject* weakReferences;
};
struct PyInstance {
    PyInstanceHead head;
    PySlot slot;
};

/// Whether a Python object is of one of the bound classes, or a subclass of a user's.
bool isInstance(PyObject* object);
/// The slot of such an object.
inline PySlot& slotOf(PyObject* object) {
    return reinterpret_cast<PyInstance*>(object)->slot;
}
/// The slot of an object that may be passed to the library; null for one that holds nothing, or something that
/// is ending.
PySlot* findSlot(PyObject* object);

/// A new Python object of a type, with an empty slot.
PyRef allocateInstance(PyTypeObject* type);
/// @{ The end of a Python object: what it holds, and then its memory.
void clearInstance(PyObject* self);
void freeInstance(PyObject* self);
/// @}

/// What may be done with an object that is ending. Its fields are going already.
enum class Use { Any, ReadOfRoot };

/// The facade of a Python object, which a bound member of a class is about to use.
/// It is held for the time of the call: a listener may make the Python object let go of it.
/// @throws PythonError for an object that holds nothing, or that is of another class
ObjectPtr requireFacade(PyObject* self, const PyClass& owner, Use use);

/// The Python object of an object of the library, of its own class: the one that there is or a new one. A null
/// pointer stands for a Null.
PyRef toPython(const ObjectPtr& object);

} // namespace vellox::ppt::python

#endif
