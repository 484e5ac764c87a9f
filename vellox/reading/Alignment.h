/// @file
/// Which entries of two lists belong together. Internal.

#ifndef VELLOX_READING_ALIGNMENT_H
#define VELLOX_READING_ALIGNMENT_H

#include <string>
#include <utility>
#include <vector>

namespace vellox::reading {

/// The pairs of equal entries, (index in the first list, index in the second), both growing. What begins and
/// ends alike is paired, and between that the entries that stand once in each list, as far as they kept their
/// order, with what is alike around them. The work grows with the lists, times a logarithm; where entries
/// repeat a lot there may be longer sequences.
std::vector<std::pair<std::size_t, std::size_t>> align(const std::vector<std::wstring>& former,
                                                       const std::vector<std::wstring>& present);

} // namespace vellox::reading

#endif
