#include "pool.h"

#include <cstdlib>
#include <cstring>

#include "array_index.h"
#include "observer.h"
#include "pieces.h"
#include "vmf_map_platform.h"

namespace platform {

static PieceClass class_of_block(const BlockHead &head) { return class_of(sizeof(BlockHead) + head.size); }

// A block of that size with a fresh head.
static void *make_block(size_t size)
{
    if (size > SIZE_MAX - sizeof(BlockHead)) return nullptr;
    const PieceClass piece_class = class_of(sizeof(BlockHead) + size);
    auto *head = static_cast<BlockHead *>(take_piece(piece_class, sizeof(BlockHead) + size));
    if (head == nullptr) return nullptr;
    *head = {nullptr, piece_class != no_class ? size_of_class(piece_class) - sizeof(BlockHead) : size};
    return head + 1;
}

void *allocate_block(size_t size)
{
    void *block = make_block(size);
    if (block != nullptr) std::memset(block, 0, size);
    return block;
}

void release_block(void *block)
{
    if (block == nullptr) return;
    BlockHead *head = head_of(block);
    delete head->index;
    give_back_piece(head, class_of_block(*head));
}

static void *grow_large_block(BlockHead *head, size_t size)
{
    if (size > SIZE_MAX - sizeof(BlockHead)) return nullptr;
    head = static_cast<BlockHead *>(std::realloc(head, sizeof(BlockHead) + size));
    if (head == nullptr) return nullptr;
    head->size = size;
    return head + 1;
}

void *grow_block(void *block, size_t size)
{
    if (block == nullptr) return make_block(size);
    BlockHead *head = head_of(block);
    if (size <= head->size) return block;
    if (class_of_block(*head) == no_class) return grow_large_block(head, size);
    void *grown = make_block(size);
    if (grown == nullptr) return nullptr;
    std::memcpy(grown, block, head->size);
    head_of(grown)->index = head->index;
    give_back_piece(head, class_of_block(*head));
    return grown;
}

}  // namespace platform

extern "C" {

void *kos_named_calloc_(size_t count, size_t size, const char *label, uint32_t /*zero*/)
{
    if (platform::observed({.name = "kos_named_calloc_", .path = label}) != 0) return nullptr;
    if (size != 0 && count > SIZE_MAX / size) return nullptr;
    return platform::allocate_block(count * size);
}

void kos_named_free(void *memory) { platform::release_block(memory); }

char *vmf_strdup(const char *text, const char * /*label*/)
{
    if (platform::observed({.name = "vmf_strdup", .path = text}) != 0 || text == nullptr) return nullptr;
    return platform::copy_text(text);
}

void vmf_gpb_free(void *memory) { platform::release_text(static_cast<char *>(memory)); }

}  // extern "C"
