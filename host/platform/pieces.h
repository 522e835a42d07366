// Pieces of memory by classes of size: what the pool cuts its blocks and texts from.
#pragma once

#include <cstddef>
#include <cstdint>

namespace platform {

// Pieces of up to 1 KiB come in steps of 16 bytes, larger ones in four steps a power of two. Class 0 is of no size: a
// piece that is too large for a class is one of malloc's.
using PieceClass = uint8_t;
constexpr PieceClass no_class = 0;
PieceClass class_of(size_t size);

// What a piece of that class holds, in bytes.
size_t size_of_class(PieceClass piece_class);

// A piece, aligned to 16 bytes; `size` counts for `no_class` alone. Null if there is no memory.
void *take_piece(PieceClass piece_class, size_t size);
void give_back_piece(void *piece, PieceClass piece_class);

}  // namespace platform
