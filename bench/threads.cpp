// The library in so many threads at once, each on a request of its own: a line of JSON, neighbors a second of them all.
//
//   bench_threads THREADS forward|back NEIGHBORS
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <thread>
#include <vector>

#include "clock.h"
#include "mapped.h"

int main(int argc, char **argv)
{
    const size_t count = argc == 4 ? std::strtoul(argv[1], nullptr, 10) : 0;
    const size_t neighbors = argc == 4 ? std::strtoul(argv[3], nullptr, 10) : 0;
    if (count == 0 || neighbors == 0) {
        std::fputs("usage: bench_threads THREADS forward|back NEIGHBORS\n", stderr);
        return 2;
    }
    const bench::Way way = std::strcmp(argv[2], "forward") == 0 ? bench::Way::forward : bench::Way::back;
    std::vector<std::unique_ptr<bench::Mapped>> requests;
    for (size_t i = 0; i < count; i++) requests.push_back(std::make_unique<bench::Mapped>(way, neighbors));

    std::atomic<size_t> waiting = count;
    std::atomic<bool> begun = false;
    std::vector<std::thread> threads;
    for (const auto &request : requests) {
        threads.emplace_back([&, mapped = request.get()] {
            waiting--;
            while (!begun) std::this_thread::yield();
            mapped->work();
        });
    }
    while (waiting != 0) std::this_thread::yield();
    const double before = bench::wall_seconds();
    begun = true;
    for (std::thread &thread : threads) thread.join();
    const double seconds = bench::wall_seconds() - before;
    std::printf("{\"threads\": %zu, \"way\": \"%s\", \"neighbors\": %zu, \"per_second\": %.0f}\n", count, argv[2],
                neighbors, static_cast<double>(count * neighbors) / seconds);
    std::fflush(stdout);
    std::_Exit(0);  // nothing is freed
}
