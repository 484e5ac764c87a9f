/// @file
/// Libraries that few programs need.

#ifndef VELLOX_HOST_SERVICES_LATELIBRARY_H
#define VELLOX_HOST_SERVICES_LATELIBRARY_H

namespace vellox::host {

/// A library that is loaded when it is first of use: it and those that it brings along would cost each program up to a
/// millisecond at its start. No linker tells of it, so packages have to name what it is in. It stays to the end of the
/// process, as its own libraries keep what they register.
class LateLibrary {
public:
    /// @param fileName as linkers know it: "libtiff.so.6"
    explicit LateLibrary(const char* fileName);

    /// A function of any type; null if there is none.
    class Found {
    public:
        template <class Function> operator Function*() const { return reinterpret_cast<Function*>(address_); }

    private:
        friend class LateLibrary;
        explicit Found(void* address) : address_(address) {}

        void* address_;
    };
    Found find(const char* name);
    /// Whether all that was asked for is there.
    bool isWhole() const { return isWhole_; }

private:
    void* library_;
    bool isWhole_;
};

} // namespace vellox::host

#endif
