#include "pool.h"

#include <cstdlib>
#include <cstring>

#include "array_index.h"
#include "observer.h"
#include "vmf_map_platform.h"

namespace platform {

void *allocate_block(size_t size)
{
    if (size > SIZE_MAX - sizeof(BlockHead)) return nullptr;
    auto *head = static_cast<BlockHead *>(std::calloc(1, sizeof(BlockHead) + size));
    if (head == nullptr) return nullptr;
    head->size = size;
    return head + 1;
}

void release_block(void *block)
{
    if (block == nullptr) return;
    delete head_of(block)->index;
    std::free(head_of(block));
}

void *grow_block(void *block, size_t size)
{
    if (size > SIZE_MAX - sizeof(BlockHead)) return nullptr;
    void *old_head = block != nullptr ? head_of(block) : nullptr;
    auto *head = static_cast<BlockHead *>(std::realloc(old_head, sizeof(BlockHead) + size));
    if (head == nullptr) return nullptr;
    if (block == nullptr) head->index = nullptr;
    head->size = size;
    return head + 1;
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
    return strdup(text);
}

void vmf_gpb_free(void *memory) { std::free(memory); }

}  // extern "C"
