/// @file
/// A deck that a strict reader takes, and a hundred ways to spoil it.

#ifndef VELLOX_TESTS_SUPPORT_MUTATIONS_H
#define VELLOX_TESTS_SUPPORT_MUTATIONS_H

#include <string>
#include <vector>

#include "tests/support/Files.h"

namespace vellox::test {

/// Two slides on the default template: text with a link, a picture, a connector, an animation, an alternative,
/// a table with merged cells, and a section of both.
Parts makeSoundDeck();

/// One kind of damage: in some part whose name fits, one place that fits is replaced.
struct Mutation {
    const char* code;        // of the finding that it leads to
    const char* part;        // a pattern for the part's name
    const char* place;       // a pattern for what is replaced
    const char* replacement; // "$1" stands for the first group
};

const std::vector<Mutation>& getMutations();

/// Spoils one place. The seed decides which of those that fit.
/// @throws std::runtime_error if there is none
Parts mutate(const Parts& parts, const Mutation& mutation, unsigned seed);

} // namespace vellox::test

#endif
