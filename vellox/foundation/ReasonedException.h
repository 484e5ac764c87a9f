/// @file
/// Identified errors that say what the system said.

#ifndef VELLOX_FOUNDATION_REASONEDEXCEPTION_H
#define VELLOX_FOUNDATION_REASONEDEXCEPTION_H

#include <string>

#include "vellox/foundation/IdentifiedException.h"

namespace vellox {

/// The error of an identifier whose arguments have no room for the reason: the text ends with it.
template <class Id> class ReasonedException : public hostfx::except::Exception<Id> {
public:
    using Base = hostfx::except::Exception<Id>;

    ReasonedException(const Id& id, const std::string& reason)
        : Base(id),
          text_(std::string(Base::what()) + " (" + reason + ")") {}

    const char* what() const noexcept override { return text_.c_str(); }
    const boost::exception_detail::clone_base* clone() const override { return new ReasonedException(*this); }
    void rethrow() const override { throw ReasonedException(*this); }

private:
    std::string text_;
};

/// Raises an identified error with a reason, in UTF-8. Handlers catch it as the error of its identifier.
template <class Id> [[noreturn]] void raiseWithReason(const Id& id, const std::string& reason) {
    const ReasonedException<Id> error(id, reason);
    reportUserError(error);
    throw error;
}

} // namespace vellox

#endif
