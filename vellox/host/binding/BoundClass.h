/// @file
/// The classes of vellox.ppt as a host language sees them, as data: names, signatures and functions. Nothing
/// here knows a host; the functions convert, call the facades, and do nothing else.
///
///     for (const BoundClass& bound : getBoundClasses())
///         initializeClass(*myHost.beginClass(bound), bound);

#ifndef VELLOX_HOST_BINDING_BOUNDCLASS_H
#define VELLOX_HOST_BINDING_BOUNDCLASS_H

#include <string>
#include <vector>

#include "vellox/Api.h"
#include "vellox/host/binding/HostResult.h"
#include "vellox/host/binding/Signature.h"

namespace vellox::ppt::hostbind {

struct BoundConstructor {
    /// @param arguments such as the signature says, numbers not yet converted
    using Maker = ObjectPtr (*)(const Arguments& arguments);

    Signature signature;
    Maker make;            ///< null for a class without objects of the library
    bool isHidden = false; ///< for the library alone
};

struct BoundProperty {
    using Getter = HostResult (*)(const PPTObject& self);
    using Setter = void (*)(PPTObject& self, const hvArray& value);

    const char* name;
    SignatureWord type;
    bool mayBeEmpty; ///< reading may give the empty array, and setting that unsets
    Getter get;
    Setter set; ///< null for a property that is only read
    const char* doc;

    /// Whether a value is of a kind that the property can be given: a text for a text, an object of its class
    /// for an object, and the empty array. What else there is, such as truth values and lists, the property
    /// judges itself, since it has errors of its own for them.
    VELLOX_API bool takes(const hvArray& value) const;
    /// The type in words, such as "char or empty".
    VELLOX_API std::string getTypeText() const;
};

struct BoundMethod {
    /// @param self null for a class-level method
    /// @param arguments such as the signature says, numbers not yet converted
    using Invoker = HostResult (*)(PPTObject* self, const Arguments& arguments);

    const char* name;
    Signature signature;
    SignatureWord result;
    Invoker invoke;
    const char* doc;
    bool isStatic = false;
};

struct BoundEvent {
    const char* name;
    const char* description;
    const char* payload; ///< the full name of the class of what listeners get
};

/// One class. Methods are in the order of their declaration; several of one name are overloads. A class also
/// has its superclass's overloads of a name, behind its own.
struct BoundClass {
    const char* name;                      ///< without its package
    std::vector<std::string> superclasses; ///< full names
    bool isAbstract;                       ///< the library alone makes objects of it
    const char* doc;
    /// Whether a facade is of this class or a subclass; null for a class without objects of the library.
    bool (*isInstance)(const PPTObject& object);
    std::vector<BoundConstructor> constructors;
    std::vector<BoundProperty> properties;
    std::vector<BoundMethod> methods;
    std::vector<BoundEvent> events;
    /// Makes another object like one of this class, which stands in no tree; null where nobody needs two.
    ObjectPtr (*copy)(const PPTObject& object) = nullptr;
    /// Whether what an object stands for is lost if it ends now; null for classes whose objects lose nothing.
    bool (*isUnfinished)(const PPTObject& object) = nullptr;

    VELLOX_API std::string getFullName() const;
    /// The class that this one derives from; null for the first.
    VELLOX_API const BoundClass* getSuperclass() const;
    /// All overloads of a name; behind them those of superclasses that have other signatures.
    VELLOX_API std::vector<const BoundMethod*> getOverloads(const std::string& methodName) const;
};

/// All classes, superclasses ahead of their subclasses.
VELLOX_API const std::vector<BoundClass>& getBoundClasses();

/// The class of a full name; null for one that isn't bound.
VELLOX_API const BoundClass* findBoundClass(const std::string& fullName);

} // namespace vellox::ppt::hostbind

#endif
