/// @file
/// Octave as a host: its classes, its objects, its listeners.

#ifndef BINDINGS_OCTAVE_OCTCLASSSYSTEM_H
#define BINDINGS_OCTAVE_OCTCLASSSYSTEM_H

#include <string>
#include <vector>

#include "bindings/octave/OctErrors.h"
#include "bindings/octave/Octave.h"
#include "vellox/host/binding/HostClassSystem.h"

namespace vellox::ppt::oct {

/// All overloads of a name in a class.
struct Overloads {
    std::vector<const hostbind::BoundMethod*> methods;
    std::vector<const hostbind::Signature*> signatures;
    std::vector<std::string> keywords; ///< the names of parameters that are given by name
    bool takesFields = false;          ///< in one of the overloads
    int fieldsAt = -1;                 ///< where all of them take fields
};

/// A bound class, as the numbers in its class file speak of it.
struct OctClass {
    const hostbind::BoundClass& bound;
    std::vector<const hostbind::Signature*> constructors;
    std::vector<Overloads> methods; ///< by the row of each name's first overload
    bool hasShortWay = false;       ///< see shortenWay()

    explicit OctClass(const hostbind::BoundClass& boundClass);
    const Overloads& getOverloads(std::size_t row);
};

/// There is one, which is never ended: Octave's objects outlive all static objects.
class OctClassSystem : public hostbind::HostClassSystem {
public:
    static OctClassSystem& get();
    /// Puts Octave in force at the first call. From there on the oct-file stays loaded.
    static void begin();
    /// Octave is about to end: from here on no listener is called, and the library is on its own.
    void end();
    bool isEnding() const { return isEnding_; }

    /// @throws octave::execution_exception for a number that no class has
    OctClass& getClass(std::size_t number);
    OctClass& findClass(const hostbind::BoundClass& bound);
    /// Lets go of the object that makeInstance() made, once somebody else holds it.
    void releaseMade() { made_ = octave_value(); }

    /// Lets go of an object of the library: at once, or while there are listeners, who hear of its end, at the next call
    /// from a class file. Octave lets go of objects in the midst of changing variables, which no function may then see.
    void letEnd(hostbind::ObjectPtr object);
    /// Lets end what waits for it.
    void endWaiting();

    /// @{ The listeners of an object, which is kept while it has some.
    void addListener(const octave_value& object, const octave_value& listener);
    void removeListener(const octave_value& object, const octave_value& listener);
    /// @}

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
    struct Listening {
        octave_value object;
        octave_value listener;
        unsigned long number;
    };

    void callListeners(const octave_value& object, const MessageEventData& payload);

    std::vector<OctClass> classes_;
    octave_value made_;
    std::vector<hostbind::ObjectPtr> waiting_;
    std::vector<Listening> listening_;
    unsigned long listenerCount_ = 0;
    bool isEnding_ = false;
};

/// Runs what Octave calls: the way in for everything.
template <class Function> auto enter(Function function) {
    return guarded([&] {
        OctClassSystem::get().endWaiting();
        return function();
    });
}

} // namespace vellox::ppt::oct

#endif
