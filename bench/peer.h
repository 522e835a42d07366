// What is measured: a way to do the work of the benchmark. Its input lies in memory when it is made, in the form that
// it reads; the work builds the target in memory, and frees and prints nothing.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>

namespace bench {

enum class Way { forward, back };

class Peer {
public:
    virtual ~Peer() = default;

    virtual void work() = 0;  // once

    virtual size_t nodes_in() const = 0;
    virtual size_t nodes_out() const = 0;
    // The target, a line a node, indented: what all peers have to agree in.
    virtual std::string text() const = 0;
};

struct PeerKind {
    const char *name;
    std::unique_ptr<Peer> (*make)(Way way, size_t neighbors);
};

// The peers of this program.
std::span<const PeerKind> peers();

}  // namespace bench
