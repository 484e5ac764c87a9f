/// @file
/// Errors that a user is to read. Each identifier of Identifiers.h has an exception class of its own, so
/// that a handler can catch one by type or all of them by a base:
///
///     try {
///         deck.add(L"No such layout");
///     } catch (const hostfx::except::Exception<vellox::ppt_error::invalidLayoutName>& error) {
///         // error.getErrorID() == "vellox:ppt_error:invalidLayoutName"
///     } catch (const hostfx::except::IMsgIDException& error) {
///         std::cerr << error.what() << "\n"; // in words, in UTF-8
///     }

#ifndef VELLOX_FOUNDATION_IDENTIFIEDEXCEPTION_H
#define VELLOX_FOUNDATION_IDENTIFIEDEXCEPTION_H

#include <boost/exception/exception.hpp>
#include <exception>
#include <string>

#include "vellox/Api.h"
#include "vellox/foundation/MsgID.h"

namespace hostfx::except {

/// The root of the errors: a text for the user.
class VELLOX_API IException {
public:
    virtual ~IException();
    /// The error in words, in UTF-8.
    virtual const char* what() const noexcept = 0;
};

/// An error with an identifier, as a host reports it.
class VELLOX_API IUserException : public IException {
public:
    ~IUserException() override;
    /// Catalog and identifier with a colon between, such as "vellox:ppt_error:badSlideSubscript".
    virtual const std::string& getErrorID() const = 0;
};

/// An error that is a message with arguments.
class VELLOX_API IMsgIDException : public IUserException {
public:
    ~IMsgIDException() override;
    virtual const vellox::MsgID& getMsgID() const = 0;
};

/// The text of an error, and the identifier that goes with it; shared by all instances of the template.
class VELLOX_API IdentifiedText {
public:
    explicit IdentifiedText(const vellox::MsgID& id);
    const std::string& getErrorID() const { return errorID_; }
    /// Looked up when first asked for. A text that can't even be looked up is the identifier.
    const char* getText(const vellox::MsgID& id) const noexcept;

private:
    std::string errorID_;
    mutable std::string text_;
};

/// The error of one identifier. Copies are independent of the original and of what raised it.
template <class Id, class Base = std::exception>
class VELLOX_API Exception : public IMsgIDException,
                             public boost::exception,
                             public boost::exception_detail::clone_base,
                             public Base {
public:
    explicit Exception(const Id& id) : id_(id), text_(id) {}
    Exception(const Exception&) = default;
    ~Exception() noexcept override = default;

    const vellox::MsgID& getMsgID() const override { return id_; }
    const std::string& getErrorID() const override { return text_.getErrorID(); }
    const char* what() const noexcept override { return text_.getText(id_); }

    const boost::exception_detail::clone_base* clone() const override { return new Exception(*this); }
    void rethrow() const override { throw Exception(*this); }

private:
    Id id_;
    IdentifiedText text_;
};

} // namespace hostfx::except

namespace vellox {

/// Hands an error to the host before it is thrown.
VELLOX_API void reportUserError(const hostfx::except::IUserException& error);

/// The one way to raise an identified error: make it, tell the host, throw it.
template <class Id> [[noreturn]] void raise(const Id& id) {
    const hostfx::except::Exception<Id, std::exception> error(id);
    reportUserError(error);
    throw error;
}

/// Gives a warning to the host, in words.
VELLOX_API void reportWarning(const MsgID& id);
/// The same from the end of an object, where nothing may be thrown.
VELLOX_API void reportWarningAtEnd(const MsgID& id) noexcept;

} // namespace vellox

#endif
