/// @file
/// Host values in memory, for tests without a host.

#ifndef VELLOX_TESTS_SUPPORT_MEMORYVALUE_H
#define VELLOX_TESTS_SUPPORT_MEMORYVALUE_H

#include <boost/shared_ptr.hpp>
#include <deque>
#include <string>
#include <vector>

#include "vellox/host/values/hvArray.h"

namespace vellox::test {

using Value = boost::shared_ptr<hvArray>;
using Dimensions = std::vector<std::size_t>;

Value makeChar(const std::wstring& text, Dimensions dimensions = {});
Value makeLogical(const std::vector<bool>& elements, Dimensions dimensions = {});
/// @param classCode HvDoubleClass, HvSingleClass or one of the integer classes
Value makeNumeric(const std::vector<double>& elements, Dimensions dimensions = {},
                  int classCode = HvDoubleClass);
Value makeCell(const std::vector<Value>& elements, Dimensions dimensions = {});
Value makeObject(const std::vector<boost::shared_ptr<objreg::HostInterface>>& elements,
                 Dimensions dimensions = {});
/// A value of a class that the library has no use for.
Value makeStruct();

} // namespace vellox::test

#endif
