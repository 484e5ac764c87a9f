/// @file
/// What passes to the listeners.

#ifndef VELLOX_PPT_MESSAGES_MESSAGEFILTER_H
#define VELLOX_PPT_MESSAGES_MESSAGEFILTER_H

#include <string>

#include "vellox/Api.h"
#include "vellox/ppt/object/Attribute.h"
#include "vellox/ppt/object/PPTObject.h"

namespace vellox::ppt {

class MessageFilterImpl;

/// The judge of messages. A handle: the dispatcher's own filter is changed through any handle on it. A new
/// filter passes errors, warnings and progress, and stops debug messages.
class VELLOX_API MessageFilter : public PPTObject {
public:
    MessageFilter();

    /// @{ Decides alone while it is set: exactly "pass" lets everything through, anything else nothing.
    const BaseAttribute<std::wstring>& getGlobalFilter() const;
    void setGlobalFilter(const std::wstring& filter);
    void unsetGlobalFilter();
    /// @}
    /// @{ While it is set, messages that speak of another object are stopped.
    const BaseAttribute<PPTObject>& getSourceFilter() const;
    void setSourceFilter(const PPTObject& source);
    void unsetSourceFilter();
    /// @}
    /// @{ Whether messages of a kind pass. The library asks these flags before it even builds a message, so
    /// that a global filter can't bring out what a flag has stopped there.
    bool getErrorMessagesPass() const;
    void setErrorMessagesPass(bool pass);
    bool getWarningMessagesPass() const;
    void setWarningMessagesPass(bool pass);
    bool getProgressMessagesPass() const;
    void setProgressMessagesPass(bool pass);
    bool getDebugMessagesPass() const;
    void setDebugMessagesPass(bool pass);
    /// @}

private:
    friend class MessageFilterImpl;
    explicit MessageFilter(MessageFilterImpl* impl);
    MessageFilterImpl* pimpl();
    const MessageFilterImpl* pimpl() const;
};

} // namespace vellox::ppt

#endif
