/// @file
/// What most objects of a kind never have, and what would make all of them large.

#ifndef VELLOX_FOUNDATION_LAZY_H
#define VELLOX_FOUNDATION_LAZY_H

#include <memory>

namespace vellox {

/// A value that takes the room of a pointer until somebody asks for it to change it. Copies are independent.
template <class T> class Lazy {
public:
    Lazy() = default;
    Lazy(const Lazy& other) : value_(other.value_ ? std::make_unique<T>(*other.value_) : nullptr) {}
    Lazy& operator=(Lazy other) noexcept {
        value_.swap(other.value_);
        return *this;
    }

    /// To be read: that of all who have none yet, or one's own. It isn't where a change will show.
    const T& get() const {
        static const T& untouched = *new const T;
        return value_ ? *value_ : untouched;
    }
    /// One's own, which stays where it is for as long as this does.
    T& require() {
        if (!value_)
            value_ = std::make_unique<T>();
        return *value_;
    }

private:
    std::unique_ptr<T> value_;
};

} // namespace vellox

#endif
