#include "vellox/ppt/messages/Message.h"

#include "vellox/foundation/MessageCatalog.h"
#include "vellox/ppt/messages/MessageFilter.h"
#include "vellox/ppt/messages/MessageImpl.h"

#include <boost/make_shared.hpp>
#include <locale>

namespace vellox::ppt {

// MessageImpl

const char* MessageImpl::getFullyQualifiedHostTypeName() const {
    return "vellox.ppt.Message";
}

boost::shared_ptr<PPTObject> MessageImpl::makeHandle() {
    return boost::shared_ptr<PPTObject>(new Message(this));
}

std::wstring MessageImpl::formatAsText() const {
    return source_ ? source_->getTag() + L" " + text_ : text_;
}

std::wstring MessageImpl::formatAsHTML() const {
    return L"<p>" + formatAsText() + L"</p>";
}

bool MessageImpl::passes(const MessageFilter& filter, bool kindPasses) const {
    const BaseAttribute<PPTObject>& wanted = filter.getSourceFilter();
    if (wanted.isSet() && source_ && *source_ != wanted.get())
        return false;
    const BaseAttribute<std::wstring>& global = filter.getGlobalFilter();
    return global.isSet() ? global.get() == L"pass" : kindPasses;
}

namespace {

// The four kinds differ in their name and in the flag of the filter that lets them pass.
class DebugMessageImpl : public MessageImpl {
public:
    using MessageImpl::MessageImpl;
    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.DebugMessage"; }
    boost::shared_ptr<PPTObject> makeHandle() override { return makeHandleOf<DebugMessage>(); }
    bool passesFilter(const MessageFilter& filter) const override {
        return passes(filter, filter.getDebugMessagesPass());
    }
};

class ProgressMessageImpl : public MessageImpl {
public:
    using MessageImpl::MessageImpl;
    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.ProgressMessage"; }
    boost::shared_ptr<PPTObject> makeHandle() override { return makeHandleOf<ProgressMessage>(); }
    bool passesFilter(const MessageFilter& filter) const override {
        return passes(filter, filter.getProgressMessagesPass());
    }
};

class WarningMessageImpl : public MessageImpl {
public:
    using MessageImpl::MessageImpl;
    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.WarningMessage"; }
    boost::shared_ptr<PPTObject> makeHandle() override { return makeHandleOf<WarningMessage>(); }
    bool passesFilter(const MessageFilter& filter) const override {
        return passes(filter, filter.getWarningMessagesPass());
    }
};

class ErrorMessageImpl : public MessageImpl {
public:
    using MessageImpl::MessageImpl;
    const char* getFullyQualifiedHostTypeName() const override { return "vellox.ppt.ErrorMessage"; }
    boost::shared_ptr<PPTObject> makeHandle() override { return makeHandleOf<ErrorMessage>(); }
    bool passesFilter(const MessageFilter& filter) const override {
        return passes(filter, filter.getErrorMessagesPass());
    }
};

template <class Impl> Impl* make(const std::wstring& text) {
    return new Impl(text, {});
}

template <class Impl> Impl* make(const std::wstring& text, const PPTObject& source) {
    return new Impl(text, boost::make_shared<PPTObject>(source));
}

std::wstring lookUp(const MsgID& id) {
    return MessageCatalog::get_message(id, std::locale());
}

} // namespace

// Message

Message::Message(MessageImpl* impl) : PPTObject(impl) {}

MessageImpl* Message::pimpl() {
    return implOf<MessageImpl>(*this);
}

const MessageImpl* Message::pimpl() const {
    return implOf<MessageImpl>(*this);
}

const std::wstring& Message::getText() const {
    return pimpl()->getText();
}

boost::shared_ptr<PPTObject> Message::getSource() const {
    return pimpl()->getSource();
}

std::wstring Message::formatAsText() const {
    return pimpl()->formatAsText();
}

std::wstring Message::formatAsHTML() const {
    return pimpl()->formatAsHTML();
}

bool Message::passesFilter(const MessageFilter& filter) const {
    return pimpl()->passesFilter(filter);
}

// The kinds

DebugMessage::DebugMessage(const std::wstring& text) : Message(make<DebugMessageImpl>(text)) {}
DebugMessage::DebugMessage(const std::wstring& text, const PPTObject& source)
    : Message(make<DebugMessageImpl>(text, source)) {}
DebugMessage::DebugMessage(const MsgID& id) : DebugMessage(lookUp(id)) {}
DebugMessage::DebugMessage(const MsgID& id, const PPTObject& source) : DebugMessage(lookUp(id), source) {}

ProgressMessage::ProgressMessage(const std::wstring& text) : Message(make<ProgressMessageImpl>(text)) {}
ProgressMessage::ProgressMessage(const std::wstring& text, const PPTObject& source)
    : Message(make<ProgressMessageImpl>(text, source)) {}
ProgressMessage::ProgressMessage(const MsgID& id) : ProgressMessage(lookUp(id)) {}
ProgressMessage::ProgressMessage(const MsgID& id, const PPTObject& source)
    : ProgressMessage(lookUp(id), source) {}

WarningMessage::WarningMessage(const std::wstring& text) : Message(make<WarningMessageImpl>(text)) {}
WarningMessage::WarningMessage(const std::wstring& text, const PPTObject& source)
    : Message(make<WarningMessageImpl>(text, source)) {}
WarningMessage::WarningMessage(const MsgID& id) : WarningMessage(lookUp(id)) {}
WarningMessage::WarningMessage(const MsgID& id, const PPTObject& source)
    : WarningMessage(lookUp(id), source) {}

ErrorMessage::ErrorMessage(const std::wstring& text) : Message(make<ErrorMessageImpl>(text)) {}
ErrorMessage::ErrorMessage(const std::wstring& text, const PPTObject& source)
    : Message(make<ErrorMessageImpl>(text, source)) {}
ErrorMessage::ErrorMessage(const MsgID& id) : ErrorMessage(lookUp(id)) {}
ErrorMessage::ErrorMessage(const MsgID& id, const PPTObject& source) : ErrorMessage(lookUp(id), source) {}

} // namespace vellox::ppt
