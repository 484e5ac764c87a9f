/// @file
/// Messages: what a long build reports about itself. They are separate from errors, which are thrown.

#ifndef VELLOX_PPT_MESSAGES_MESSAGE_H
#define VELLOX_PPT_MESSAGES_MESSAGE_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/Api.h"
#include "vellox/ppt/object/PPTObject.h"

namespace vellox {
class MsgID;
}

namespace vellox::ppt {

class MessageFilter;
class MessageImpl;

/// A text, and the object that it speaks of if there is one. Only its four kinds can be made. A message keeps
/// its source alive; that of an object's end loses its source when the listeners have heard it.
class VELLOX_API Message : public PPTObject {
public:
    const std::wstring& getText() const;
    /// An empty pointer if there is none.
    boost::shared_ptr<PPTObject> getSource() const;
    /// The source's tag, a blank, and the text; the text alone without a source.
    std::wstring formatAsText() const;
    /// The same between "<p>" and "</p>". Nothing is escaped.
    std::wstring formatAsHTML() const;
    /// Whether a filter lets this message through: a source filter that names another object stops it; else a
    /// global filter decides alone; else the flag of the message's kind does.
    bool passesFilter(const MessageFilter& filter) const;

protected:
    friend class MessageImpl;
    explicit Message(MessageImpl* impl);
    MessageImpl* pimpl();
    const MessageImpl* pimpl() const;
};

/// What happens inside, such as the making and the end of objects.
class VELLOX_API DebugMessage : public Message {
public:
    explicit DebugMessage(const std::wstring& text);
    DebugMessage(const std::wstring& text, const PPTObject& source);
    /// @{ With the catalog's text, in the language of the global locale.
    explicit DebugMessage(const MsgID& id);
    DebugMessage(const MsgID& id, const PPTObject& source);
    /// @}

private:
    friend class MessageImpl;
    explicit DebugMessage(MessageImpl* impl) : Message(impl) {}
};

/// What is being done.
class VELLOX_API ProgressMessage : public Message {
public:
    explicit ProgressMessage(const std::wstring& text);
    ProgressMessage(const std::wstring& text, const PPTObject& source);
    explicit ProgressMessage(const MsgID& id);
    ProgressMessage(const MsgID& id, const PPTObject& source);

private:
    friend class MessageImpl;
    explicit ProgressMessage(MessageImpl* impl) : Message(impl) {}
};

/// What was not done as asked.
class VELLOX_API WarningMessage : public Message {
public:
    explicit WarningMessage(const std::wstring& text);
    WarningMessage(const std::wstring& text, const PPTObject& source);
    explicit WarningMessage(const MsgID& id);
    WarningMessage(const MsgID& id, const PPTObject& source);

private:
    friend class MessageImpl;
    explicit WarningMessage(MessageImpl* impl) : Message(impl) {}
};

/// What went wrong without stopping the work.
class VELLOX_API ErrorMessage : public Message {
public:
    explicit ErrorMessage(const std::wstring& text);
    ErrorMessage(const std::wstring& text, const PPTObject& source);
    explicit ErrorMessage(const MsgID& id);
    ErrorMessage(const MsgID& id, const PPTObject& source);

private:
    friend class MessageImpl;
    explicit ErrorMessage(MessageImpl* impl) : Message(impl) {}
};

} // namespace vellox::ppt

#endif
