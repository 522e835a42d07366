// The pool that arrays of children, values and blocks of the mapping come from. Every block has a small head in front
// of it, where an array keeps its index: the mapping moves arrays from record to record, and the index moves along.
//
// Trees are many small pieces that live and go together. Each thread cuts them from chunks of its own, by classes of
// size, and keeps what is released for the next of the class; whatever thread made a piece, any may release it. Chunks
// are large pages where the system has them, since the first touch of a small page costs as much as mapping a leaf.
// What a thread leaves when it ends, the next thread takes over; nothing is given back to the system before the process
// ends. Under a sanitizer every piece is one of malloc's, so that it sees each of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "pieces.h"

namespace platform {

class ArrayIndex;

struct BlockHead {
    ArrayIndex *index;  // of an array of children that has grown large; owned by the block
    size_t size;        // of the block, in bytes: what was asked for, or somewhat more
};
static_assert(sizeof(BlockHead) % alignof(std::max_align_t) == 0);

inline BlockHead *head_of(void *block) { return static_cast<BlockHead *>(block) - 1; }

// A block of at least `size` bytes, all zero; null if there is no memory. `release_block` takes null too.
void *allocate_block(size_t size);
void release_block(void *block);

// Grows a block (null: makes one). The new bytes may hold anything. Null if there is no memory, and the old block
// stands.
void *grow_block(void *block, size_t size);

// A copy of a text, ended by a NUL; null if there is no memory. Its class stands in front of it.
inline char *copy_text(std::string_view text)
{
    const size_t size = text.size() + 2;
    const PieceClass piece_class = class_of(size);
    auto *piece = static_cast<char *>(take_piece(piece_class, size));
    if (piece == nullptr) return nullptr;
    *piece = static_cast<char>(piece_class);
    if (!text.empty()) std::memcpy(piece + 1, text.data(), text.size());
    piece[text.size() + 1] = '\0';
    return piece + 1;
}

// Takes null too.
inline void release_text(char *text)
{
    if (text != nullptr) give_back_piece(text - 1, static_cast<PieceClass>(text[-1]));
}

}  // namespace platform
