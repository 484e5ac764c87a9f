#include "vellox/foundation/SmallPieces.h"

#include <algorithm>
#include <array>
#include <boost/pool/pool.hpp>
#include <new>

namespace vellox {

namespace {

constexpr std::size_t kStep = std::max(alignof(void*), alignof(double)), kLargest = 256;
constexpr std::size_t kFirstPieces = 16, kBlockBytes = std::size_t(64) << 10;

// The pieces of a size.
class Shelf {
public:
    explicit Shelf(std::size_t size) : pool_(size, kFirstPieces, kBlockBytes / size) {}

    void* take() {
        void* piece = pool_.malloc();
        if (!piece)
            throw std::bad_alloc();
        ++taken_;
        return piece;
    }
    void put(void* piece) noexcept {
        pool_.free(piece);
        if (--taken_ == 0 && pool_.get_next_size() > 2 * kFirstPieces)
            pool_.purge_memory();
    }

private:
    boost::pool<boost::default_user_allocator_malloc_free> pool_;
    std::size_t taken_ = 0;
};

// They never end, as objects may end after all else.
Shelf& getShelf(std::size_t size) {
    static const auto shelves = [] {
        std::array<Shelf*, kLargest / kStep> made{};
        for (std::size_t i = 0; i < made.size(); ++i)
            made[i] = new Shelf((i + 1) * kStep);
        return made;
    }();
    return *shelves[(size - 1) / kStep];
}

// What looks for memory that is used after its end, or beyond it, is to see each piece by itself.
#ifdef VELLOX_PIECES_APART
constexpr bool kAreApart = true;
#else
constexpr bool kAreApart = false;
#endif

bool isOnShelf(std::size_t size) {
    return !kAreApart && size > 0 && size <= kLargest;
}

} // namespace

void* takePiece(std::size_t size) {
    return isOnShelf(size) ? getShelf(size).take() : ::operator new(size);
}

void returnPiece(void* piece, std::size_t size) noexcept {
    if (!piece)
        return;
    if (isOnShelf(size))
        getShelf(size).put(piece);
    else
        ::operator delete(piece);
}

} // namespace vellox
