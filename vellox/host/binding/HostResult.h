/// @file
/// What a bound getter or method gives a host, in neutral form. An adapter turns it into a value of its host.

#ifndef VELLOX_HOST_BINDING_HOSTRESULT_H
#define VELLOX_HOST_BINDING_HOSTRESULT_H

#include <boost/shared_ptr.hpp>
#include <string>
#include <variant>
#include <vector>

#include "vellox/ppt/object/PPTObject.h"

namespace vellox::ppt::hostbind {

/// No result at all.
struct Void {};
/// The host's empty array: a value that isn't set.
struct Empty {};

/// An object of the library that a host is to see under its own class, whatever the class of this handle.
using ObjectPtr = boost::shared_ptr<PPTObject>;
/// A host object array whose elements are of their own classes.
using ObjectArray = std::vector<ObjectPtr>;
/// A host cell array of objects, of one row.
struct ObjectCells {
    ObjectArray objects;
};
/// A host cell array of texts of so many columns, row after row.
struct TextCells {
    std::size_t nColumns;
    std::vector<std::wstring> texts;
};

using HostResult = std::variant<Void, Empty, bool, unsigned int, double, std::wstring, ObjectPtr, ObjectArray,
                                ObjectCells, TextCells>;

} // namespace vellox::ppt::hostbind

#endif
