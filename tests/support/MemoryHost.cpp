#include "tests/support/MemoryHost.h"

#include "vellox/foundation/Conversions.h"
#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/services/Utf8.h"

#include <boost/make_shared.hpp>
#include <stdexcept>

namespace vellox::test {

using namespace ppt::hostbind;

MemoryObject::~MemoryObject() {
    BindingRegistry::remove(proxy_, *this);
}

void MemoryObject::retract() noexcept {
    BindingRegistry::abandon(*proxy_);
    proxy_.reset();
}

MemoryHost::MemoryHost() {
    setHostClassSystem(this);
}

MemoryHost::~MemoryHost() {
    setHostClassSystem(nullptr);
}

void MemoryHost::addPackage(const HostPackageInfo& package) {
    packages.insert(package.getFullName());
    package.addContents(*this);
}

void MemoryHost::addClass(const BoundClass& bound) {
    classes.push_back(bound.getFullName());
}

objreg::HostInterface& MemoryHost::makeInstance(const BoundClass& bound, const ObjectPtr& object) {
    announced.push_back(boost::make_shared<MemoryObject>(bound, object));
    return *announced.back();
}

bool MemoryHost::isValid(const objreg::HostInterface& hostObject) const {
    return hostObject.getProxy() != nullptr;
}

void MemoryHost::fireEvent(objreg::HostInterface& hostObject, const BoundEvent& event,
                           const ppt::MessageEventData& payload) {
    log += std::string(event.name) + " ";
    for (const auto& listener : static_cast<MemoryObject&>(hostObject).listeners)
        listener(payload);
}

void MemoryHost::translateException() {}

namespace {

struct Call {
    std::vector<const hvArray*> pointers;
    Arguments arguments;

    explicit Call(const std::vector<Value>& values) : arguments{nullptr, values.size()} {
        for (const Value& value : values)
            pointers.push_back(value.get());
        arguments.values = pointers.data();
    }
};

const BoundProperty& findProperty(const BoundClass& bound, const std::string& name) {
    for (const BoundClass* owner = &bound; owner; owner = owner->getSuperclass())
        for (const BoundProperty& property : owner->properties)
            if (property.name == name)
                return property;
    throw std::logic_error("no property " + name);
}

} // namespace

ObjectRef MemoryHost::construct(const std::string& className, const std::vector<Value>& arguments) {
    const BoundClass& bound = *findBoundClass("vellox.ppt." + className);
    std::vector<const Signature*> signatures;
    for (const BoundConstructor& constructor : bound.constructors)
        signatures.push_back(&constructor.signature);
    const Call call(arguments);
    const int found = findOverload(signatures, call.arguments);
    if (found < 0)
        throw std::invalid_argument("no constructor fits");
    const ObjectPtr made = bound.constructors[static_cast<std::size_t>(found)].make(call.arguments);
    const ObjectRef object = boost::make_shared<MemoryObject>(bound, made);
    BindingRegistry::announceForConstructor(made, *object);
    return object;
}

HostResult MemoryHost::call(const ObjectRef& object, const std::string& method,
                            const std::vector<Value>& arguments) {
    const std::vector<const BoundMethod*> overloads = object->bound.getOverloads(method);
    std::vector<const Signature*> signatures;
    for (const BoundMethod* overload : overloads)
        signatures.push_back(&overload->signature);
    const Call call(arguments);
    const int found = findOverload(signatures, call.arguments);
    if (found < 0)
        throw std::invalid_argument("no overload fits");
    return overloads[static_cast<std::size_t>(found)]->invoke(object->getProxy().get(), call.arguments);
}

HostResult MemoryHost::get(const ObjectRef& object, const std::string& property) {
    return findProperty(object->bound, property).get(*object->getProxy());
}

void MemoryHost::set(const ObjectRef& object, const std::string& property, const Value& value) {
    const BoundProperty& found = findProperty(object->bound, property);
    if (!found.set || !found.takes(*value))
        throw std::invalid_argument("the property doesn't take this");
    found.set(*object->getProxy(), *value);
}

ObjectRef MemoryHost::objectOf(const HostResult& result) {
    objreg::HostInterface& object = BindingRegistry::announce(std::get<ObjectPtr>(result));
    // A script that made the object itself holds it already.
    return ObjectRef(boost::shared_ptr<void>(), static_cast<MemoryObject*>(&object));
}

namespace {

struct Shown {
    MemoryHost& host;

    std::string operator()(const Void&) const { return "void"; }
    std::string operator()(const Empty&) const { return "empty"; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(unsigned int value) const { return std::to_string(value); }
    std::string operator()(double value) const { return toUtf8(num2str(value)); }
    std::string operator()(const std::wstring& text) const { return toUtf8(text); }
    std::string operator()(const ObjectPtr& object) const {
        return object ? host.objectOf(object)->bound.name : "Null";
    }
    std::string operator()(const ObjectArray& objects) const { return showAll(objects); }
    std::string operator()(const ObjectCells& cells) const { return showAll(cells.objects); }
    std::string operator()(const TextCells& cells) const { return showAll(cells.texts); }

    template <class Items> std::string showAll(const Items& items) const {
        std::string text;
        for (const auto& item : items)
            text += (text.empty() ? "" : " ") + (*this)(item);
        return "[" + text + "]";
    }
};

} // namespace

std::string MemoryHost::show(const HostResult& result) {
    return std::visit(Shown{*this}, result);
}

Value MemoryHost::valueOf(const ObjectRef& object) {
    return makeObject({object});
}

} // namespace vellox::test
