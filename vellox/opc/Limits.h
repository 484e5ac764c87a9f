/// @file
/// What a package can make the library do, at most. All limits lie far above any honest deck; they are what
/// stands between a hostile file and the machine's memory.

#ifndef VELLOX_OPC_LIMITS_H
#define VELLOX_OPC_LIMITS_H

#include <cstddef>
#include <cstdint>

namespace opc {

/// Entries of an archive or files of a folder, and rows of its list of content types.
constexpr std::uint64_t kMaxEntries = 100000;
/// Bytes of one XML part, inflated.
constexpr std::uint64_t kMaxXmlBytes = std::uint64_t(128) << 20;
/// How many times larger than its compressed form a part may be that is larger than any XML part.
constexpr std::uint64_t kMaxInflation = 200;
/// Elements within elements. Documents are copied, written and released recursively.
constexpr unsigned kMaxElementDepth = 256;
/// Elements, attributes, texts and comments of one part together.
constexpr std::uint64_t kMaxXmlNodes = 2000000;
/// Attributes of one element. Each is compared with all before it.
constexpr unsigned kMaxAttributes = 256;
/// Different names of elements and attributes in one part. A document searches them in short lists.
constexpr std::size_t kMaxXmlNames = 10000;
/// Namespaces declared in one part that is read with namespaces. Each prefix is searched among them all.
constexpr unsigned kMaxNamespaces = 100;
/// How often one part is read as a document: once for each that refers to it.
constexpr unsigned kMaxReadings = 1000;

// What is read of a package costs, and must not cost more than a budget (XmlBudget.h): about the bytes of
// memory that it takes, divided by three.

/// What any package may cost: less than 1 GB of memory.
constexpr std::uint64_t kXmlCostFloor = std::uint64_t(256) << 20;
/// What a package may cost for each byte of its container.
constexpr std::uint64_t kXmlCostPerByte = 256;
constexpr std::uint64_t kXmlCostCeiling = std::uint64_t(4) << 30;
/// @{ What one of them costs. The bytes of a document count, and the characters of attributes and texts once
/// more, since they are kept.
constexpr std::uint64_t kXmlDocumentCost = 8192;
constexpr std::uint64_t kXmlNodeCost = 96;
constexpr std::uint64_t kXmlByteCost = 2;
constexpr std::uint64_t kXmlAttributeCharacterCost = 8;
constexpr std::uint64_t kXmlTextCharacterCost = 4;
constexpr std::uint64_t kShapeCost = 512; ///< of a shape on a slide, or a layout in the list of a master
/// @}

} // namespace opc

#endif
