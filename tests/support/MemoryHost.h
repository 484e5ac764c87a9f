/// @file
/// A host in memory, with objects that are reached by the names of their properties and methods.

#ifndef VELLOX_TESTS_SUPPORT_MEMORYHOST_H
#define VELLOX_TESTS_SUPPORT_MEMORYHOST_H

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tests/support/MemoryValue.h"
#include "vellox/host/binding/HostClassSystem.h"

namespace vellox::test {

/// An object of the host. It ends when the host drops it.
class MemoryObject : public objreg::HostInterface {
public:
    MemoryObject(const ppt::hostbind::BoundClass& boundClass, const ppt::hostbind::ObjectPtr& object)
        : bound(boundClass),
          proxy_(object) {}
    ~MemoryObject() override;
    MemoryObject(const MemoryObject&) = delete;

    ppt::hostbind::ObjectPtr getProxy() const override { return proxy_; }
    void retract() noexcept override;

    const ppt::hostbind::BoundClass& bound;
    std::vector<std::function<void(const ppt::MessageEventData&)>> listeners;

private:
    ppt::hostbind::ObjectPtr proxy_;
};

using ObjectRef = boost::shared_ptr<MemoryObject>;

/// The host, in force while it lives.
class MemoryHost : public ppt::hostbind::HostClassSystem {
public:
    MemoryHost();
    ~MemoryHost() override;

    bool hasPackage(const std::string& fullName) const override { return packages.count(fullName) > 0; }
    void addPackage(const ppt::hostbind::HostPackageInfo& package) override;
    void addClass(const ppt::hostbind::BoundClass& bound) override;
    void keepLoaded() override { log += "keepLoaded "; }
    objreg::HostInterface& makeInstance(const ppt::hostbind::BoundClass& bound,
                                        const ppt::hostbind::ObjectPtr& object) override;
    bool isValid(const objreg::HostInterface& hostObject) const override;
    void fireEvent(objreg::HostInterface& hostObject, const ppt::hostbind::BoundEvent& event,
                   const ppt::MessageEventData& payload) override;
    void translateException() override;

    /// @{ What a script of the host does. Values are made by MemoryValue.h.
    ObjectRef construct(const std::string& className, const std::vector<Value>& arguments = {});
    ppt::hostbind::HostResult call(const ObjectRef& object, const std::string& method,
                                   const std::vector<Value>& arguments = {});
    ppt::hostbind::HostResult get(const ObjectRef& object, const std::string& property);
    void set(const ObjectRef& object, const std::string& property, const Value& value);
    /// The host object that a result stands for; not held by what is returned.
    ObjectRef objectOf(const ppt::hostbind::HostResult& result);
    /// A text, a number, "true", "empty", the class of an object, or "[a b]" for several of these.
    std::string show(const ppt::hostbind::HostResult& result);
    /// A host value of one object.
    static Value valueOf(const ObjectRef& object);
    /// @}

    std::set<std::string> packages;
    std::vector<std::string> classes;
    std::string log;
    std::vector<ObjectRef> announced; ///< what makeInstance made; clearing it drops these objects
};

} // namespace vellox::test

#endif
