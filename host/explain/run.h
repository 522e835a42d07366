// One made request, run through the mapping: what it became natively, and which of that its target is the reason of.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "made_router.h"
#include "target.h"
#include "vmf_map_types.h"

namespace explain {

// A native node that a request reads, writes or takes away.
struct NativeNode {
    std::string path;              // with keys: "/bgp/instance[instance-name='default']/..."
    const router::Schema *schema;  // never null
    std::optional<std::string> value = std::nullopt;
    std::optional<uint32_t> operation = std::nullopt;
    bool is_companion = false;  // told by whoever compares runs

    friend bool operator==(const NativeNode &a, const NativeNode &b)
    {
        return a.path == b.path && a.value == b.value && a.operation == b.operation;
    }
};

inline bool is_removal(const NativeNode &native)
{
    if (!native.operation) return false;
    return *native.operation == VMF_OP_DELETE || *native.operation == VMF_OP_REMOVE;
}

struct Run {
    uint32_t outcome = 0;
    std::vector<NativeNode> native = {};  // of the target alone: not the entries that its keys lead to
    std::string reason = {};              // of a refusal, in the mapping's own words
    std::string refused_tag = {};
    std::vector<std::string> notes = {};  // of an edit, about its target
    platform::Tree tree = {};             // all of it
};

// Runs a request once. What the mapping asks of the system database, `router` answers.
Run run_request(const Target &target, const Saying &saying, const MadeRouter &router);

}  // namespace explain
