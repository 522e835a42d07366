// One peer, one way, once, in a process of its own: a line of JSON with what it took.
//
//   bench_peer PEER forward|back NEIGHBORS [--tree]
//
// `us` is CPU time of the work, in microseconds a neighbor. `heap_bytes` is what the heap holds of the target at its
// peak, bytes a neighbor, if heap.cpp is preloaded, and null otherwise; `page_faults` how often a neighbor made the
// kernel give the process memory that it had not touched before.
#include <dlfcn.h>
#include <malloc.h>
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "clock.h"
#include "heap.h"
#include "peer.h"

// By this name callgrind finds what it counts.
extern "C" __attribute__((noinline)) void bench_work(bench::Peer &peer);
extern "C" void bench_work(bench::Peer &peer)
{
    peer.work();
    asm volatile("" ::: "memory");
}

namespace {

long page_faults()
{
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt;
}

const bench::PeerKind *find(const char *name)
{
    for (const bench::PeerKind &kind : bench::peers())
        if (std::strcmp(kind.name, name) == 0) return &kind;
    return nullptr;
}

int usage()
{
    std::fputs("usage: bench_peer PEER forward|back NEIGHBORS [--tree]\npeers:", stderr);
    for (const bench::PeerKind &kind : bench::peers()) std::fprintf(stderr, " %s", kind.name);
    std::fputs("\n", stderr);
    return 2;
}

}  // namespace

int main(int argc, char **argv)
{
    const bench::PeerKind *kind = argc >= 4 ? find(argv[1]) : nullptr;
    const bool forward = argc >= 4 && std::strcmp(argv[2], "forward") == 0;
    const size_t count = argc >= 4 ? std::strtoul(argv[3], nullptr, 10) : 0;
    if (kind == nullptr || count == 0 || (!forward && std::strcmp(argv[2], "back") != 0)) return usage();

    const std::unique_ptr<bench::Peer> peer = kind->make(forward ? bench::Way::forward : bench::Way::back, count);
    malloc_trim(0);  // what building the input has left behind is no peer's: the target's memory is new to all
    auto *heap = reinterpret_cast<decltype(&bench_heap)>(dlsym(RTLD_DEFAULT, "bench_heap"));
    bench_heap_figures held = {};
    if (heap != nullptr) heap(&held);
    const size_t bytes_before = held.now;
    const long faults_before = page_faults();
    const double before = bench::cpu_seconds();
    bench_work(*peer);
    const double seconds = bench::cpu_seconds() - before;
    const long faults = page_faults() - faults_before;
    if (heap != nullptr) heap(&held);

    if (argc == 5 && std::strcmp(argv[4], "--tree") == 0) std::fputs(peer->text().c_str(), stdout);
    const auto neighbors = static_cast<double>(count);
    std::printf("{\"peer\": \"%s\", \"way\": \"%s\", \"neighbors\": %zu, \"us\": %.4f, ", argv[1], argv[2], count,
                seconds * 1e6 / neighbors);
    std::printf("\"nodes_in\": %zu, \"nodes_out\": %zu, ", peer->nodes_in() / count, peer->nodes_out() / count);
    std::printf("\"page_faults\": %.3f, ", static_cast<double>(faults) / neighbors);
    if (heap != nullptr)
        std::printf("\"heap_bytes\": %.1f}\n", static_cast<double>(held.peak - bytes_before) / neighbors);
    else
        std::printf("\"heap_bytes\": null}\n");
    std::fflush(stdout);
    std::_Exit(0);  // nothing is freed
}
