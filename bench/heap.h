// What the heap holds, for a process that is started with heap.cpp preloaded: blocks as large as malloc makes them,
// with its own word in front of each.
#pragma once

#include <cstddef>

extern "C" {

struct bench_heap_figures {
    size_t now;   // bytes
    size_t peak;  // the largest `now` since the last call
};
void bench_heap(bench_heap_figures *figures);

}  // extern "C"
