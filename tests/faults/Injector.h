/// @file
/// System calls that fail on demand. A program that is linked with Injector.cpp reaches the C library's file
/// functions through it, and so do the libraries that it uses.

#ifndef VELLOX_TESTS_FAULTS_INJECTOR_H
#define VELLOX_TESTS_FAULTS_INJECTOR_H

#include <string>
#include <vector>

namespace vellox::test {

/// A call that was made: of which function, on which file.
struct Call {
    const char* function;
    std::string path;
};

/// What befalls a call.
struct Fault {
    enum class Kind {
        None,  // calls are counted only
        Error, // it does nothing and fails with the code
        Short, // of the bytes to be read or written, half are
        Kill   // the process ends ahead of it
    };
    Kind kind = Kind::None;
    int code = 0;
    unsigned call = 0; // which one of the calls from now on, from 0
};

/// Takes note of calls from now on, and lets one of them fail.
void arm(const Fault& fault);
/// @return the calls since then
std::vector<Call> disarm();
/// Whether the fault has struck: not every kind can befall every call.
bool hasStruck();

} // namespace vellox::test

#endif
