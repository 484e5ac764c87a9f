#include "bindings/octave/OctClassSystem.h"

#include "bindings/octave/OctErrors.h"
#include "bindings/octave/OctObject.h"
#include "bindings/octave/OctObjects.h"
#include "bindings/octave/OctRows.h"
#include "vellox/host/binding/HostCall.h"
#include "vellox/host/binding/Module.h"
#include "vellox/ppt/messages/MessageDispatcher.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <utility>

namespace vellox::ppt::oct {

using namespace hostbind;

// OctClass

OctClass::OctClass(const BoundClass& boundClass) : bound(boundClass), methods(boundClass.methods.size()) {
    for (const BoundConstructor& constructor : bound.constructors)
        constructors.push_back(&constructor.signature);
}

namespace {

int findFields(const Signature& signature) {
    for (std::size_t i = 0; i < signature.size(); ++i)
        if (signature[i].word.getKind() == SignatureWord::Kind::Fields)
            return static_cast<int>(i);
    return -1;
}

void addSignature(Overloads& overloads, const Signature& signature) {
    const int place = findFields(signature);
    overloads.fieldsAt = overloads.signatures.empty() || overloads.fieldsAt == place ? place : -1;
    overloads.takesFields = overloads.takesFields || place >= 0;
    overloads.signatures.push_back(&signature);
    for (const Parameter& parameter : signature)
        if (parameter.isKeyword)
            overloads.keywords.push_back(parameter.name);
}

} // namespace

const Overloads& OctClass::getOverloads(std::size_t row) {
    if (row >= methods.size())
        raiseError("vellox:internal", "no such method: the class files are of another version of vellox");
    Overloads& overloads = methods[row];
    if (overloads.methods.empty()) {
        overloads.methods = bound.getOverloads(bound.methods[row].name);
        for (const BoundMethod* method : overloads.methods)
            addSignature(overloads, method->signature);
    }
    return overloads;
}

// OctClassSystem

OctClassSystem& OctClassSystem::get() {
    static OctClassSystem& host = *new OctClassSystem;
    return host;
}

void OctClassSystem::begin() {
    static bool isBegun = false;
    if (isBegun)
        return;
    isBegun = true;
    setWarningService();
    setHostClassSystem(&get());
    HostInitialize_vellox_ppt();
    getInterpreter().feval("atexit", ovl("__vellox_exit__"));
    installDelete();
}

void OctClassSystem::end() {
    isEnding_ = true;
    listening_.clear();
    waiting_.clear();
    HostTerminate_vellox_ppt();
}

bool OctClassSystem::hasPackage(const std::string& fullName) const {
    // Octave finds packages as folders on its path.
    return fullName == kPackage || fullName == "vellox";
}

void OctClassSystem::addPackage(const HostPackageInfo& package) {
    package.addContents(*this);
}

void OctClassSystem::addClass(const BoundClass& bound) {
    classes_.emplace_back(bound);
}

void OctClassSystem::keepLoaded() {
    getInterpreter().mlock();
}

OctClass& OctClassSystem::getClass(std::size_t number) {
    if (number >= classes_.size())
        raiseError("vellox:internal", "no such class: the class files are of another version of vellox");
    return classes_[number];
}

OctClass& OctClassSystem::findClass(const BoundClass& bound) {
    // Both are in the order of the table.
    return classes_[static_cast<std::size_t>(&bound - getBoundClasses().data())];
}

objreg::HostInterface& OctClassSystem::makeInstance(const BoundClass& bound, const ObjectPtr& object) {
    const octave::cdef_object made = allocateObject(bound);
    made_ = octave::to_ov(made);
    OctSlot& slot = OctSlot::put(made);
    slot.hold(bound, object);
    shortenWay(bound);
    return slot;
}

bool OctClassSystem::isValid(const objreg::HostInterface& hostObject) const {
    return !isEnding_ && hostObject.getProxy();
}

void OctClassSystem::letEnd(ObjectPtr object) {
    if (!listening_.empty())
        waiting_.push_back(std::move(object));
}

void OctClassSystem::endWaiting() {
    while (!waiting_.empty()) { // listeners may make others wait
        const std::vector<ObjectPtr> ending = std::exchange(waiting_, {});
        static_cast<void>(ending);
    }
}

// Listeners

void OctClassSystem::addListener(const octave_value& object, const octave_value& listener) {
    if (!listener.is_function_handle())
        raiseError("Octave:invalid-input-type",
                   "a listener is a function handle, not a " + listener.class_name());
    listening_.push_back({object, listener, ++listenerCount_});
}

void OctClassSystem::removeListener(const octave_value& object, const octave_value& listener) {
    const OctSlot* slot = findSlot(object);
    const auto isIt = [&](const Listening& each) {
        return findSlot(each.object) == slot &&
               getInterpreter().feval("isequal", ovl(each.listener, listener), 1)(0).bool_value();
    };
    const auto found = std::find_if(listening_.begin(), listening_.end(), isIt);
    if (found == listening_.end())
        return;
    const Listening removed = *found; // what ends with it may add or remove others
    listening_.erase(found);
}

void OctClassSystem::callListeners(const octave_value& object, const MessageEventData& payload) {
    const OctSlot* slot = findSlot(object);
    const std::vector<Listening> turns = listening_;
    octave_value event;
    for (const Listening& turn : turns) {
        // One that another has taken off in between isn't called.
        const auto isSame = [&](const Listening& each) { return each.number == turn.number; };
        if (findSlot(turn.object) != slot || std::none_of(listening_.begin(), listening_.end(), isSame))
            continue;
        if (event.is_undefined())
            event = toOctave(boost::make_shared<MessageEventData>(payload));
        getInterpreter().feval(turn.listener, ovl(event), 0);
    }
}

void OctClassSystem::fireEvent(objreg::HostInterface& hostObject, const BoundEvent&,
                               const MessageEventData& payload) {
    const octave_value object = static_cast<OctSlot&>(hostObject).getOwner();
    if (object.is_defined() && !listening_.empty())
        callHostListeners(payload, [&] { callListeners(object, payload); });
}

void OctClassSystem::translateException() {
    translateToOctave();
}

} // namespace vellox::ppt::oct
