/// @file
/// What a program outside the library may link against. The library is built with hidden visibility;
/// a class or function is public exactly when it bears VELLOX_API.

#ifndef VELLOX_API_H
#define VELLOX_API_H

#define VELLOX_API __attribute__((visibility("default")))

#endif
