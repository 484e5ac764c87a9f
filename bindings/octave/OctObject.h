/// @file
/// The Octave object that stands for an object of the library.

#ifndef BINDINGS_OCTAVE_OCTOBJECT_H
#define BINDINGS_OCTAVE_OCTOBJECT_H

#include "bindings/octave/Octave.h"
#include "vellox/host/binding/BoundClass.h"
#include "vellox/host/services/Wrappable.h"

namespace vellox::ppt::oct {

using hostbind::BoundClass;
using hostbind::ObjectPtr;

/// What an Octave object holds in its hidden property: a handle on an object of the library, until that ends. Octave
/// ends it with the object. It knows the Octave object without keeping it.
class OctSlot : public octave_base_value, public objreg::HostInterface {
public:
    static constexpr char kProperty[] = "vellox_slot_";

    OctSlot() = default;
    ~OctSlot() override;
    OctSlot(const OctSlot&) = delete;
    OctSlot& operator=(const OctSlot&) = delete;

    /// Puts a new slot into an Octave object.
    static OctSlot& put(const octave::cdef_object& object);

    /// The Octave object that holds this; an undefined value for one that is ending.
    octave_value getOwner() const;
    /// The class of what is held; null before anything is.
    const BoundClass* getClass() const { return class_; }

    void hold(const BoundClass& bound, ObjectPtr proxy);
    /// Unties the pair and lets go of the handle.
    void drop();

    ObjectPtr getProxy() const override { return proxy_; }
    void retract() noexcept override;

    bool is_defined() const override { return true; }

private:
    const octave::cdef_object_rep* owner_ = nullptr;
    const BoundClass* class_ = nullptr;
    ObjectPtr proxy_;

    DECLARE_OV_TYPEID_FUNCTIONS_AND_DATA
};

/// @{ The slot of an object of one of the bound classes, or of a user's class that derives from one; null for any other
/// value, and for an object that was never made.
OctSlot* findSlot(const octave::cdef_object& object);
OctSlot* findSlot(const octave_value& value);
/// @}

/// Whether a value is a bound object, made or not, or an array of them.
bool isBoundObject(const octave_value& value);

/// What may be done with an object that is ending. Its fields are going already.
enum class Use { Any, ReadOfRoot };

/// The facade of an Octave object, which a bound member of a class is about to use.
/// @throws octave::execution_exception for an object that holds nothing
ObjectPtr requireFacade(const octave_value& self, const BoundClass& owner, Use use);

/// The Octave object of an object of the library, of its own class: the one that there is or a new one. A null pointer
/// stands for a Null.
octave_value toOctave(const ObjectPtr& object);

/// A new Octave object of a class, without its constructor.
octave::cdef_object allocateObject(const BoundClass& bound);

} // namespace vellox::ppt::oct

#endif
