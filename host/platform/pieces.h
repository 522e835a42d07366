// Pieces of memory by classes of size: what the pool cuts its blocks and texts from.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace platform {

// The address sanitizer shall see every piece.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool has_piece_classes = false;
#elif defined(__has_feature)
constexpr bool has_piece_classes = !__has_feature(address_sanitizer);
#else
constexpr bool has_piece_classes = true;
#endif

// Pieces of up to 1 KiB come in steps of 16 bytes, larger ones in four steps a power of two. Class 0 is of no size: a
// piece that is too large for a class is one of malloc's.
using PieceClass = uint8_t;
constexpr PieceClass no_class = 0;
constexpr size_t piece_step = 16;
constexpr size_t stepped_pieces = 1024;  // up to here a class a step
constexpr size_t largest_piece = 32768;  // up to here four classes a power of two
constexpr unsigned piece_steps = stepped_pieces / piece_step;
constexpr unsigned stepped_bits = std::bit_width(stepped_pieces);  // of the first size beyond, less one
constexpr unsigned piece_classes = 1 + piece_steps + 4 * (std::bit_width(largest_piece) - stepped_bits);

PieceClass class_of_large(size_t size);
size_t size_of_large_class(PieceClass piece_class);

inline PieceClass class_of(size_t size)
{
    if (!has_piece_classes || size > stepped_pieces) return class_of_large(size);
    return static_cast<PieceClass>(size == 0 ? 1 : (size + piece_step - 1) / piece_step);
}

// What a piece of that class holds, in bytes.
inline size_t size_of_class(PieceClass piece_class)
{
    return piece_class <= piece_steps ? piece_class * piece_step : size_of_large_class(piece_class);
}

struct FreePiece {
    FreePiece *next;
};

// What a thread cuts from and has got back.
struct PieceStock {
    char *next = nullptr;
    char *end = nullptr;
    size_t last_chunk = 0;
    std::array<FreePiece *, piece_classes> free = {};
};

// This thread's; null before its first piece, and when it ends.
extern thread_local constinit PieceStock *own_pieces;

// A piece of the stock; null if it has none and its chunk is used up.
inline void *cut_piece(PieceStock &from, PieceClass piece_class)
{
    if (FreePiece *piece = from.free[piece_class]) {
        from.free[piece_class] = piece->next;
        return piece;
    }
    const size_t needed = size_of_class(piece_class);
    return static_cast<size_t>(from.end - from.next) >= needed ? std::exchange(from.next, from.next + needed) : nullptr;
}

inline void keep_piece(PieceStock &in, void *piece, PieceClass piece_class)
{
    auto *free_piece = static_cast<FreePiece *>(piece);
    free_piece->next = std::exchange(in.free[piece_class], free_piece);
}

// The same, whatever stock the thread has, and of malloc's pieces too.
void *take_other_piece(PieceClass piece_class, size_t size);
void give_back_other_piece(void *piece, PieceClass piece_class);

// A piece, aligned to 16 bytes; `size` counts for `no_class` alone. Null if there is no memory.
inline void *take_piece(PieceClass piece_class, size_t size)
{
    if (own_pieces != nullptr && piece_class != no_class) [[likely]]
        if (void *piece = cut_piece(*own_pieces, piece_class)) return piece;
    return take_other_piece(piece_class, size);
}

inline void give_back_piece(void *piece, PieceClass piece_class)
{
    if (own_pieces != nullptr && piece_class != no_class) [[likely]]
        return keep_piece(*own_pieces, piece, piece_class);
    give_back_other_piece(piece, piece_class);
}

}  // namespace platform
