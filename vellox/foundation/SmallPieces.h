/// @file
/// Memory for what decks have by the hundred thousand.

#ifndef VELLOX_FOUNDATION_SMALLPIECES_H
#define VELLOX_FOUNDATION_SMALLPIECES_H

#include <cstddef>

namespace vellox {

/// @{ A piece of memory, and back. Pieces of a size come out of blocks that hold nothing else, so that neither taking nor
/// returning one has to look at its neighbours; the blocks are given back with the last of their pieces. They are aligned
/// for pointers and numbers, which is less than memory commonly is. Like all else, for one thread.
void* takePiece(std::size_t size);
void returnPiece(void* piece, std::size_t size) noexcept;
/// @}

/// The base of classes whose objects are made in such pieces, whatever derives from them.
struct InPieces {
    static void* operator new(std::size_t size) { return takePiece(size); }
    static void operator delete(void* piece, std::size_t size) noexcept { returnPiece(piece, size); }
};

/// Lets containers and counts of holders take them.
template <class T> struct PieceAllocator {
    using value_type = T;

    PieceAllocator() = default;
    template <class U> PieceAllocator(const PieceAllocator<U>&) {}

    static_assert(alignof(T) <= alignof(void*));
    T* allocate(std::size_t count) { return static_cast<T*>(takePiece(count * sizeof(T))); }
    void deallocate(T* piece, std::size_t count) noexcept { returnPiece(piece, count * sizeof(T)); }

    template <class U> bool operator==(const PieceAllocator<U>&) const { return true; }
    template <class U> bool operator!=(const PieceAllocator<U>&) const { return false; }
};

} // namespace vellox

#endif
