/// @file
/// Help for a name that doesn't exist: which of those that do may have been meant.

#ifndef VELLOX_FOUNDATION_NAMEHINT_H
#define VELLOX_FOUNDATION_NAMEHINT_H

#include <string>
#include <vector>

#include "vellox/foundation/IdentifiedException.h"

namespace vellox {

/// At most three names, the nearest first: those that a few slips of the hand make of the given one, such as two
/// letters exchanged, and those that hold it or are held by it. Upper and lower case make no difference.
VELLOX_API std::vector<std::wstring> findNearestNames(const std::wstring& name,
                                                      const std::vector<std::wstring>& names);

/// A hint: the nearest names, and in words these, or what names there are if none is near.
struct NameHint {
    std::vector<std::wstring> names;
    std::wstring text; ///< without a full stop; empty if there is nothing to tell

    /// The text behind a semicolon, to be added to another; empty if there is none.
    std::wstring getTail() const { return text.empty() ? text : L"; " + text; }
};
VELLOX_API NameHint makeNameHint(const std::wstring& name, const std::vector<std::wstring>& names);

/// What an error of an unknown name has beside its text.
class VELLOX_API IHintedError {
public:
    virtual ~IHintedError();
    virtual const NameHint& getHint() const = 0;
    /// The error in words, without the hint.
    virtual const char* getPlainText() const noexcept = 0;
};

/// The error of an identifier, with a hint. Handlers catch it as the error of its identifier.
template <class Id> class HintedException : public hostfx::except::Exception<Id>, public IHintedError {
public:
    using Base = hostfx::except::Exception<Id>;

    /// @param fullText what it says of itself; empty for the text of its identifier alone
    HintedException(const Id& id, NameHint hint, std::string fullText)
        : Base(id),
          hint_(std::move(hint)),
          text_(std::move(fullText)) {}

    const char* what() const noexcept override { return text_.empty() ? Base::what() : text_.c_str(); }
    const char* getPlainText() const noexcept override { return Base::what(); }
    const NameHint& getHint() const override { return hint_; }
    const boost::exception_detail::clone_base* clone() const override { return new HintedException(*this); }
    void rethrow() const override { throw HintedException(*this); }

private:
    NameHint hint_;
    std::string text_;
};

/// The text of an error with its hint behind it.
VELLOX_API std::string addHint(const char* text, const NameHint& hint);

/// Raises an identified error with a hint.
/// @param isInText whether the error's own text ends with it
template <class Id> [[noreturn]] void raiseWithHint(const Id& id, const NameHint& hint, bool isInText) {
    const bool isTold = isInText && !hint.text.empty();
    const HintedException<Id> error(
        id, hint, isTold ? addHint(hostfx::except::Exception<Id>(id).what(), hint) : std::string());
    reportUserError(error);
    throw error;
}

} // namespace vellox

#endif
