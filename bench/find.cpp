// How long a list entry is looked for by its key, among so many: a line of JSON, nanoseconds of CPU time a find.
//
//   bench_find ENTRIES
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "clock.h"
#include "tree.h"
#include "vmf_map_platform.h"
#include "workload.h"

namespace {

constexpr size_t finds = 100'000;
constexpr size_t stride = 7919;  // a prime: neighbors in a list are not asked for one after the other

Datatree *find(Datatree &list, const std::string &key)
{
    Datatree *entry = nullptr;
    vmf_map_datatree_add_path(nullptr, &list, "neighbor[neighbor-address]", ZR_BGP_CFG_NS, key.c_str(), nullptr, &entry,
                              0);
    return entry;
}

}  // namespace

// By this name callgrind finds what it counts.
extern "C" __attribute__((noinline)) void bench_work(Datatree &list, const std::vector<std::string> &keys);
extern "C" void bench_work(Datatree &list, const std::vector<std::string> &keys)
{
    for (size_t i = 0; i < finds; i++) find(list, keys[i * stride % keys.size()]);
}

int main(int argc, char **argv)
{
    const size_t entries = argc == 2 ? std::strtoul(argv[1], nullptr, 10) : 0;
    if (entries == 0) {
        std::fputs("usage: bench_find ENTRIES\n", stderr);
        return 2;
    }
    platform::Tree tree;
    std::vector<std::string> keys;
    for (size_t i = 0; i < entries; i++) {
        keys.push_back(bench::address_of(i));
        find(tree.root(), keys.back());
    }
    const double before = bench::cpu_seconds();
    bench_work(tree.root(), keys);
    const double seconds = bench::cpu_seconds() - before;
    if (bench::count_nodes(tree.root()) != 1 + 2 * entries) return 1;  // something was made anew
    std::printf("{\"entries\": %zu, \"finds\": %zu, \"ns\": %.2f}\n", entries, finds,
                seconds * 1e9 / static_cast<double>(finds));
}
