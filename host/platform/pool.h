// The pool that arrays of children and blocks of the mapping come from. Every block has a small head in front of it,
// where an array keeps its index: the mapping moves arrays from record to record, and the index moves along.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace platform {

class ArrayIndex;

struct BlockHead {
    ArrayIndex *index;  // of an array of children that has grown large; owned by the block
    size_t size;        // of the block, in bytes
};
static_assert(sizeof(BlockHead) % alignof(std::max_align_t) == 0);

inline BlockHead *head_of(void *block) { return static_cast<BlockHead *>(block) - 1; }

// A block of `size` bytes, all zero; null if there is no memory. `release_block` takes null too.
void *allocate_block(size_t size);
void release_block(void *block);

// Grows a block (null: makes one). The new bytes may hold anything. Null if there is no memory, and the old block
// stands.
void *grow_block(void *block, size_t size);

}  // namespace platform
