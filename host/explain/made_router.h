// A router in memory, made for a question: what it holds is chosen, what it answers is what the embedded router would.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "items.h"
#include "mapped_request.h"
#include "native_schema.h"
#include "records.h"
#include "tree.h"

namespace explain {

// The keys of the list entries that a made router has.
struct EntryKeys {
    std::string as_high = "0";
    std::string as_low = "65000";
    std::string neighbor = "192.0.2.1";
    std::string group = "UPSTREAM";
    std::vector<std::string> families = {};                      // native configuration words; empty: all twelve
    std::map<const router::Schema *, std::string> instead = {};  // one key for the entries of a list

    bool operator==(const EntryKeys &) const = default;
};

// Each with one key; empty for a list that a made router has no entries of.
std::vector<std::string> entries_of(const router::Schema &list, const EntryKeys &keys);

struct WithoutBgp {};

class MadeRouter {
public:
    // Runs BGP; has the neighbor, the group and the families, and nothing in them but their keys.
    explicit MadeRouter(EntryKeys keys = {});

    // Holds nothing.
    explicit MadeRouter(WithoutBgp) {}

    // Gives a native leaf a value, in every entry that it can stand in, or in those with the keys of `in`. A list with
    // nothing but keys gets an entry with `value` as its last key and "0" as the others.
    void set(const router::Schema &node, const std::string &value) { set(node, value, keys_); }
    void set(const router::Schema &node, const std::string &value, const EntryKeys &in);

    // Carries out a native edit. Throws router::Refused.
    void edit(const Datatree &native);

    // What it answers to a native read, a tree for each model.
    platform::Tree respond(const Datatree &native, bool wants_operational) const;

    platform::Tree config() const;

    // Of what it holds when it is asked.
    const platform::Database &database() const { return items_; }

    MadeRouter(const MadeRouter &) = delete;
    MadeRouter &operator=(const MadeRouter &) = delete;

private:
    EntryKeys keys_;
    std::shared_ptr<router::Branch> config_ = std::make_shared<router::Branch>();
    std::shared_ptr<router::Branch> operational_ = std::make_shared<router::Branch>();
    router::Items items_ = {config_, config_};
};

// A native node by its path in the model: "/bgp/instance/...", "/bgp/instances/..." for operational data. Null if
// there is none.
const router::Schema *find_native(std::string_view path);

// "/bgp/instance/instance-as/as".
std::string path_of(const router::Schema &native);

bool is_operational(const router::Schema &native);

// The node above, null for `bgp`.
const router::Schema *parent_of(const router::Schema &native);

}  // namespace explain
