#include "heap.h"

#include <malloc.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
void __libc_free(void *block);
}

namespace {

std::atomic<size_t> now = 0;
std::atomic<size_t> peak = 0;

size_t size_of(void *block) { return block != nullptr ? malloc_usable_size(block) + sizeof(size_t) : 0; }

void hold(size_t bytes)
{
    const size_t held = now += bytes;
    size_t highest = peak;
    while (held > highest && !peak.compare_exchange_weak(highest, held)) {
    }
}

void *taken(void *block)
{
    hold(size_of(block));
    return block;
}

}  // namespace

extern "C" {

void bench_heap(bench_heap_figures *figures)
{
    figures->now = now;
    figures->peak = peak.exchange(now);
}

void *malloc(size_t size) { return taken(__libc_malloc(size)); }

void *calloc(size_t count, size_t size) { return taken(__libc_calloc(count, size)); }

// Taken as growing where it is: the kernel moves the pages of large blocks, and small ones do not show.
void *realloc(void *block, size_t size)
{
    const size_t old_size = size_of(block);
    void *grown = __libc_realloc(block, size);
    if (grown != nullptr || size == 0) now -= old_size;
    return taken(grown);
}

void *memalign(size_t alignment, size_t size) { return taken(__libc_memalign(alignment, size)); }

void *aligned_alloc(size_t alignment, size_t size) { return memalign(alignment, size); }

int posix_memalign(void **block, size_t alignment, size_t size)
{
    *block = memalign(alignment, size);
    return *block != nullptr ? 0 : 12;
}

// What a program maps for itself; malloc's own mappings do not come by here.
void *mmap(void *at, size_t size, int protection, int flags, int file, off_t offset)
{
    void *mapped = reinterpret_cast<void *>(syscall(SYS_mmap, at, size, protection, flags, file, offset));
    if (mapped != MAP_FAILED && (flags & MAP_ANONYMOUS) != 0) hold(size);
    return mapped;
}

int munmap(void *mapped, size_t size)
{
    now -= size;
    return static_cast<int>(syscall(SYS_munmap, mapped, size));
}

void free(void *block)
{
    now -= size_of(block);
    __libc_free(block);
}

}  // extern "C"
