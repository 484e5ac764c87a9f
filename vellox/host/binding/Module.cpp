#include "vellox/host/binding/Module.h"

#include "vellox/host/binding/BindingRegistry.h"
#include "vellox/host/binding/HostClassSystem.h"
#include "vellox/host/binding/Packages.h"
#include "vellox/ppt/messages/MessageDispatcher.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace {

using namespace vellox::ppt;
using namespace vellox::ppt::hostbind;

constexpr const void* kNoFunctions[] = {nullptr};
constexpr HostFcnTable kFunctionTable = {kNoFunctions, {0x76656c6c, 0x00010000}, {0, 0, 0}};

bool isInitialized = false;
bool isTerminated = false;
MessageDispatcher::ListenerToken listenerOfHost = 0;

/// Hands a message on to the listeners on the host's side. Without a host object of the dispatcher nobody can
/// be listening there.
void fireMessageEvent(const MessageEventData& event) {
    HostClassSystem* host = getHostClassSystem();
    objreg::HostInterface* dispatcher =
        implOf<PPTObjectImpl>(MessageDispatcher::getTheDispatcher())->getHostInterface();
    if (host && dispatcher && host->isValid(*dispatcher))
        host->fireEvent(*dispatcher, findBoundClass("vellox.ppt.MessageDispatcher")->events.front(), event);
}

} // namespace

const char* const vellox_ppt_version = VELLOX_MODULE_VERSION;
const char* const vellox_ppt_build_date = __DATE__;

void HostInitialize_vellox_ppt() {
    HostClassSystem* host = getHostClassSystem();
    if (isInitialized || !host)
        return;
    registerPackages(*host);
    listenerOfHost = MessageDispatcher::getTheDispatcher().addListener(fireMessageEvent);
    isInitialized = true;
    host->keepLoaded();
}

void HostTerminate_vellox_ppt() {
    if (isTerminated)
        return;
    MessageDispatcher dispatcher = MessageDispatcher::getTheDispatcher();
    // A filter that holds an object would keep it past the module's end.
    dispatcher.getMessageFilter().unsetSourceFilter();
    dispatcher.removeListener(listenerOfHost);
    isTerminated = true;
}

const HostFcnTable* QueryHostFcnTable_vellox_ppt() {
    return &kFunctionTable;
}
