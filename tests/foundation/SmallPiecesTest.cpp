#include "vellox/foundation/SmallPieces.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <list>
#include <memory>
#include <random>
#include <vector>

using namespace vellox;

namespace {

struct Piece {
    unsigned char* start;
    std::size_t size;
    unsigned char mark;

    bool isWhole() const {
        return std::all_of(start, start + size, [this](unsigned char byte) { return byte == mark; });
    }
};

// Taken and returned in any order, pieces of all sizes are whole until they are returned, and lie as objects must.
TEST(SmallPieces, KeepWhatIsWrittenToThem) {
    std::mt19937 random(1);
    std::vector<Piece> pieces;
    for (unsigned round = 0; round < 20000; ++round) {
        const bool isTaking = pieces.empty() || random() % 5 < (round < 10000 ? 4 : 1);
        if (isTaking) {
            const std::size_t size = 1 + random() % 300;
            const auto mark = static_cast<unsigned char>(random());
            auto* const start = static_cast<unsigned char*>(takePiece(size));
            ASSERT_EQ(reinterpret_cast<std::uintptr_t>(start) % alignof(void*), 0u);
            std::fill_n(start, size, mark);
            pieces.push_back({start, size, mark});
        } else {
            std::swap(pieces[random() % pieces.size()], pieces.back());
            ASSERT_TRUE(pieces.back().isWhole());
            returnPiece(pieces.back().start, pieces.back().size);
            pieces.pop_back();
        }
    }
    for (const Piece& piece : pieces) {
        EXPECT_TRUE(piece.isWhole());
        returnPiece(piece.start, piece.size);
    }
}

struct Base : InPieces {
    virtual ~Base() = default;
};

struct Derived : Base {
    explicit Derived(bool fails) {
        if (fails)
            throw 1;
    }
    long long numbers[20] = {};
};

TEST(SmallPieces, ServeClassesAndContainers) {
    for (int i = 0; i < 100; ++i) {
        const std::unique_ptr<Base> made = std::make_unique<Derived>(false);
        EXPECT_THROW(std::make_unique<Derived>(true), int);
    }
    std::list<int, PieceAllocator<int>> numbers(1000, 7);
    numbers.remove_if([](int number) { return number == 7; });
    EXPECT_TRUE(numbers.empty());
    returnPiece(nullptr, 16);
}

} // namespace
