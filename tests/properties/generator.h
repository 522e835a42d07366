// Configurations that the model of OpenConfig allows, drawn by chance from a fixed seed.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "device.h"
#include "nodes.h"

namespace properties {

class Generator {
public:
    explicit Generator(uint32_t seed) : random_(seed) {}

    // Some leaves of the router, of up to two neighbors and of up to two peer groups, in the order of the model. An
    // entry stands before its leaves. The AS is never among them: all stands in it.
    Nodes configuration();

    // A value of a leaf's type, and of its bounds.
    std::string value_of(const model::OcNode &leaf);

    // A number from 0 on, below `bound`.
    uint32_t below(uint32_t bound) { return static_cast<uint32_t>(random_() % bound); }
    bool one_in(uint32_t count) { return below(count) == 0; }

private:
    void add_entries(const std::string &list, const std::vector<std::string> &keys, Nodes &nodes);
    void add_leaves(const std::string &schema, const std::string &path, Nodes &nodes);
    void add_families(const std::string &schema, const std::string &path, Nodes &nodes);

    std::mt19937 random_;
};

// The leaves and leaf-lists that a client writes, but for the keys, the names that repeat them, and the AS.
std::vector<const model::OcNode *> written_leaves();

// "/bgp/neighbors/neighbor[192.0.2.2]/config/peer-as" for a path of the schema, in one entry of each list.
std::string some_instance(std::string_view schema);

}  // namespace properties
