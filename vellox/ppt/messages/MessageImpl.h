/// @file
/// The state behind Message and its kinds. Internal: users hold facades.

#ifndef VELLOX_PPT_MESSAGES_MESSAGEIMPL_H
#define VELLOX_PPT_MESSAGES_MESSAGEIMPL_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "vellox/ppt/messages/Message.h"
#include "vellox/ppt/object/PPTObjectImpl.h"

namespace vellox::ppt {

class MessageImpl : public PPTObjectImpl {
public:
    MessageImpl(std::wstring text, boost::shared_ptr<PPTObject> source)
        : text_(std::move(text)),
          source_(std::move(source)) {}

    const char* getFullyQualifiedHostTypeName() const override;
    boost::shared_ptr<PPTObject> makeHandle() override;
    virtual bool passesFilter(const MessageFilter& filter) const = 0;

    const std::wstring& getText() const { return text_; }
    const boost::shared_ptr<PPTObject>& getSource() const { return source_; }
    std::wstring formatAsText() const;
    std::wstring formatAsHTML() const;
    /// For a source that is about to end.
    void forgetSource() { source_.reset(); }

protected:
    template <class Kind> boost::shared_ptr<PPTObject> makeHandleOf() {
        return boost::shared_ptr<PPTObject>(new Kind(this));
    }
    bool passes(const MessageFilter& filter, bool kindPasses) const;

private:
    std::wstring text_;
    boost::shared_ptr<PPTObject> source_;
};

} // namespace vellox::ppt

#endif
