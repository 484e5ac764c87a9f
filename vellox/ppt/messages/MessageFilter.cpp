#include "vellox/ppt/messages/MessageFilter.h"

#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox::ppt {

class MessageFilterImpl : public PPTObjectImpl {
public:
    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.MessageFilter"; }
    boost::shared_ptr<PPTObject> makeHandle() override {
        return boost::shared_ptr<PPTObject>(new MessageFilter(this));
    }

    BaseAttribute<std::wstring> globalFilter;
    BaseAttribute<PPTObject> sourceFilter;
    bool errorMessagesPass = true;
    bool warningMessagesPass = true;
    bool progressMessagesPass = true;
    bool debugMessagesPass = false;
};

MessageFilter::MessageFilter() : MessageFilter(new MessageFilterImpl) {}
MessageFilter::MessageFilter(MessageFilterImpl* impl) : PPTObject(impl) {}

MessageFilterImpl* MessageFilter::pimpl() {
    return implOf<MessageFilterImpl>(*this);
}

const MessageFilterImpl* MessageFilter::pimpl() const {
    return implOf<MessageFilterImpl>(*this);
}

const BaseAttribute<std::wstring>& MessageFilter::getGlobalFilter() const {
    return pimpl()->globalFilter;
}

void MessageFilter::setGlobalFilter(const std::wstring& filter) {
    pimpl()->globalFilter.set(filter);
}

void MessageFilter::unsetGlobalFilter() {
    pimpl()->globalFilter.unset();
}

const BaseAttribute<PPTObject>& MessageFilter::getSourceFilter() const {
    return pimpl()->sourceFilter;
}

void MessageFilter::setSourceFilter(const PPTObject& source) {
    pimpl()->sourceFilter.set(source);
}

void MessageFilter::unsetSourceFilter() {
    pimpl()->sourceFilter.unset();
}

bool MessageFilter::getErrorMessagesPass() const {
    return pimpl()->errorMessagesPass;
}

void MessageFilter::setErrorMessagesPass(bool pass) {
    pimpl()->errorMessagesPass = pass;
}

bool MessageFilter::getWarningMessagesPass() const {
    return pimpl()->warningMessagesPass;
}

void MessageFilter::setWarningMessagesPass(bool pass) {
    pimpl()->warningMessagesPass = pass;
}

bool MessageFilter::getProgressMessagesPass() const {
    return pimpl()->progressMessagesPass;
}

void MessageFilter::setProgressMessagesPass(bool pass) {
    pimpl()->progressMessagesPass = pass;
}

bool MessageFilter::getDebugMessagesPass() const {
    return pimpl()->debugMessagesPass;
}

void MessageFilter::setDebugMessagesPass(bool pass) {
    pimpl()->debugMessagesPass = pass;
}

} // namespace vellox::ppt
