// How long a list entry is looked for by its key, among so many: a line of JSON, nanoseconds of CPU time a find. Asked
// for one after the other, as a walk does, or all over the list, where the processor's caches decide.
//
//   bench_find ENTRIES ordered|scattered
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "clock.h"
#include "tree.h"
#include "vmf_map_platform.h"
#include "workload.h"

namespace {

constexpr size_t finds = 100'000;
constexpr size_t scattered = 7919;  // a prime stride

Datatree *find(Datatree &list, const std::string &key)
{
    Datatree *entry = nullptr;
    vmf_map_datatree_add_path(nullptr, &list, "neighbor[neighbor-address]", ZR_BGP_CFG_NS, key.c_str(), nullptr, &entry,
                              0);
    return entry;
}

}  // namespace

// By this name callgrind finds what it counts.
extern "C" __attribute__((noinline)) void bench_work(Datatree &list, const std::vector<std::string> &keys,
                                                     size_t stride);
extern "C" void bench_work(Datatree &list, const std::vector<std::string> &keys, size_t stride)
{
    for (size_t i = 0; i < finds; i++) find(list, keys[i * stride % keys.size()]);
}

int main(int argc, char **argv)
{
    const size_t entries = argc == 3 ? std::strtoul(argv[1], nullptr, 10) : 0;
    if (entries == 0) {
        std::fputs("usage: bench_find ENTRIES ordered|scattered\n", stderr);
        return 2;
    }
    platform::Tree tree;
    std::vector<std::string> keys;
    for (size_t i = 0; i < entries; i++) {
        keys.push_back(bench::address_of(i));
        find(tree.root(), keys.back());
    }
    const size_t stride = std::strcmp(argv[2], "scattered") == 0 ? scattered : 1;
    const double before = bench::cpu_seconds();
    bench_work(tree.root(), keys, stride);
    const double seconds = bench::cpu_seconds() - before;
    if (bench::count_nodes(tree.root()) != 1 + 2 * entries) return 1;  // something was made anew
    std::printf("{\"entries\": %zu, \"order\": \"%s\", \"finds\": %zu, \"ns\": %.2f}\n", entries, argv[2], finds,
                seconds * 1e9 / static_cast<double>(finds));
}
