/// @file
/// What a package can make the library do, at most. All limits lie far above any honest deck; they are what
/// stands between a hostile file and the machine's memory.

#ifndef VELLOX_OPC_LIMITS_H
#define VELLOX_OPC_LIMITS_H

#include <cstdint>

namespace opc {

/// Entries of an archive or files of a folder.
constexpr std::uint64_t kMaxEntries = 100000;
/// Bytes of one XML part, inflated.
constexpr std::uint64_t kMaxXmlBytes = std::uint64_t(128) << 20;
/// How many times larger than its compressed form a part of more than kInflationFloor bytes may be.
constexpr std::uint64_t kMaxInflation = 200;
constexpr std::uint64_t kInflationFloor = std::uint64_t(8) << 20;
/// Elements within elements. Documents are copied, written and released recursively.
constexpr unsigned kMaxElementDepth = 256;
/// Elements and attributes of one part together.
constexpr std::uint64_t kMaxXmlNodes = 2000000;

} // namespace opc

#endif
