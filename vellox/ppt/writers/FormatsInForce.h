/// @file
/// Which formats count at one place of a tree.

#ifndef VELLOX_PPT_WRITERS_FORMATSINFORCE_H
#define VELLOX_PPT_WRITERS_FORMATSINFORCE_H

#include <array>
#include <cstddef>

#include "vellox/ppt/formats/FormatImpl.h"
#include "vellox/ppt/formats/Formats.h"

namespace vellox::ppt {

class PPTNodeImpl;
struct TableContext;

/// For each kind of format the element's own, or that of the nearest element above it that has one. Writers make
/// it on the way down, each for the children of its element:
///
///     what is in force at a table --layOver(column)--layOver(row)--> at a row, in that column
///
/// The formats aren't held. Whoever keeps this where listeners may run, who can change styles, asks whether it is
/// current before it is used again.
class FormatsInForce {
public:
    /// None.
    FormatsInForce() = default;
    /// At a node, found on the way up from it. None for a null pointer.
    /// @param table the table that is being written, whose column rows on the way take in; may be null
    static FormatsInForce at(const PPTNodeImpl* node, const TableContext* table);

    /// Null if there is none of the kind.
    const Format* find(FormatType type) const { return formats_[static_cast<std::size_t>(type)]; }
    bool isEmpty() const { return isEmpty_; }
    /// Whether all styles are what they were.
    bool isCurrent() const { return changes_ == countFormatChanges(); }
    /// Formats that are nearer take the places of those of their kinds.
    void layOver(const Formats& nearer);

private:
    std::array<const Format*, kFormatTypeCount> formats_{}; // by the number of the kind
    bool isEmpty_ = true;
    unsigned long long changes_ = countFormatChanges();
};

} // namespace vellox::ppt

#endif
