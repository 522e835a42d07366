#include "floor.h"

#include <cstdlib>
#include <cstring>

#include "text.h"
#include "tree.h"
#include "workload.h"

namespace bench {

namespace {

bool is(const char *a, const char *b) { return std::strcmp(a, b) == 0; }

const char *native_family(const char *identity)
{
    return is(identity, "IPV4_UNICAST") ? "ipv4-unicast" : "ipv6-unicast";
}
const char *identity_of(const char *family) { return is(family, "ipv4-unicast") ? "IPV4_UNICAST" : "IPV6_UNICAST"; }
const char *inverse(const char *boolean) { return is(boolean, "true") ? "false" : "true"; }

struct FromMalloc {
    static void *grow(void *old, size_t /*old_size*/, size_t size) { return std::realloc(old, size); }
    static char *copy(const char *text) { return strdup(text); }
};

struct FromBump {
    static inline char *next = nullptr;
    static inline size_t left = 0;

    static void *take(size_t size)
    {
        size = (size + 15) & ~size_t{15};
        if (size > left) {
            left = size > (size_t{1} << 20) ? size : size_t{1} << 20;
            next = static_cast<char *>(std::malloc(left));
        }
        void *taken = next;
        next += size;
        left -= size;
        return taken;
    }
    static void *grow(void *old, size_t old_size, size_t size)
    {
        void *fresh = take(size);
        if (old != nullptr) std::memcpy(fresh, old, old_size);
        return fresh;
    }
    static char *copy(const char *text)
    {
        const size_t size = std::strlen(text) + 1;
        return static_cast<char *>(std::memcpy(take(size), text, size));
    }
};

void give(Datatree *node, char *owned_value)
{
    node->value = owned_value;
    node->present[0] |= VMF_DT_VALUE;
}

template<class From>
Datatree *add_child(Datatree *parent, const char *ns, const char *tag, const char *value)
{
    const auto count = static_cast<uint32_t>(parent->subtree_count);
    if (count == parent->subtree_capacity) {
        const uint32_t capacity = count < 4 ? 4 : count * 2;
        parent->subtrees = static_cast<Datatree *>(
            From::grow(parent->subtrees, count * sizeof(Datatree), capacity * sizeof(Datatree)));
        parent->subtree_capacity = capacity;
        parent->present[0] |= VMF_DT_SUBTREES;
    }
    Datatree *child = &parent->subtrees[parent->subtree_count++];
    *child = {};
    child->tag = const_cast<char *>(tag);
    child->namespace_ = const_cast<char *>(ns);
    child->present[0] = VMF_DT_TAG | VMF_DT_NAMESPACE;
    if (value != nullptr) give(child, From::copy(value));
    return child;
}

// ---- Forward --------------------------------------------------------------------------------

template<class From>
struct Forward {
    static Datatree *add(Datatree *parent, const char *tag, const char *value = nullptr)
    {
        return add_child<From>(parent, ZR_BGP_CFG_NS, tag, value);
    }

    static void config(const Datatree &in, Datatree *out)
    {
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "peer-as") || is(leaf.tag, "local-as")) {
                Datatree *as = add(out, is(leaf.tag, "peer-as") ? "remote-as" : "local-as");
                add(as, "as-xx", "0");
                add(as, "as-yy", leaf.value);
            } else if (is(leaf.tag, "auth-password")) {
                Datatree *password = add(out, "password");
                add(password, "password-disable", "false");
                add(password, "password", leaf.value);
            } else if (is(leaf.tag, "description")) {
                add(out, "description", leaf.value);
            } else if (is(leaf.tag, "peer-group")) {
                add(out, "neighbor-group-add-member", leaf.value);
            }
        }
    }

    static void timers(const Datatree &in, Datatree *out)
    {
        Datatree *both = nullptr;
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "minimum-advertisement-interval")) {
                add(add(out, "advertisement-interval"), "minimum-interval", leaf.value);
                continue;
            }
            if (both == nullptr) both = add(out, "timers");
            add(both, is(leaf.tag, "hold-time") ? "hold-time" : "keepalive-interval", leaf.value);
        }
    }

    static void transport(const Datatree &in, Datatree *out)
    {
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "tcp-mss")) {
                add(add(out, "tcpmss"), "mss", leaf.value);
            } else if (is(leaf.tag, "passive-mode")) {
                add(out, "session-open-mode", is(leaf.value, "true") ? "passive-only" : "active-only");
            } else if (is(leaf.tag, "local-address")) {
                Datatree *address = add(out, "local-address");
                add(address, "local-address-disable", "false");
                add(address, "local-ip-address", leaf.value);
                add(out, "update-source-interface");
            }
        }
    }

    static void multihop(const Datatree &in, Datatree *out)
    {
        const char *hops = "255";
        for (const Datatree &leaf : platform::children_of(in))
            if (is(leaf.tag, "multihop-ttl")) hops = leaf.value;
        Datatree *block = add(out, "ebgp-multihop");
        add(block, "max-hop-count", hops);
        add(block, "mpls-deactivation", "false");
    }

    static void restart(const Datatree &in, Datatree *out)
    {
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "enabled"))
                add(out, "neighbor-graceful-restart", inverse(leaf.value));
            else if (is(leaf.tag, "restart-time"))
                add(out, "neighbor-graceful-restart-time", leaf.value);
            else
                add(out, "neighbor-graceful-restart-stalepath-time", leaf.value);
        }
    }

    static void limit(const Datatree &in, Datatree *out)
    {
        Datatree *maximum = add(out, "maximum-prefixes");
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "max-prefixes")) {
                add(maximum, "prefix-limit", leaf.value);
                add(maximum, "warning-only", "false");
                add(maximum, "discard-extra-paths", "false");
            } else {
                add(maximum, "warning-percentage", leaf.value);
            }
        }
    }

    static void family(const Datatree &in, Datatree *list)
    {
        Datatree *out = add(list, "neighbor-af");
        for (const Datatree &child : platform::children_of(in)) {
            if (is(child.tag, "afi-safi-name")) {
                add(out, "af-name", native_family(child.value));
            } else if (is(child.tag, "config")) {
                add(out, "activate");
            } else if (is(child.tag, "apply-policy")) {
                for (const Datatree &leaf : platform::children_of(child.subtrees[0]))
                    add(out, is(leaf.tag, "import-policy") ? "route-policy-in" : "route-policy-out", leaf.value);
            } else {
                limit(child.subtrees[0].subtrees[0], out);
            }
        }
    }

    static void neighbor(const Datatree &in, Datatree *neighbors)
    {
        Datatree *out = add(neighbors, "neighbor");
        for (const Datatree &child : platform::children_of(in)) {
            if (is(child.tag, "neighbor-address")) {
                add(out, "neighbor-address", child.value);
            } else if (is(child.tag, "config")) {
                config(child, out);
            } else if (is(child.tag, "timers")) {
                timers(child.subtrees[0], out);
            } else if (is(child.tag, "transport")) {
                transport(child.subtrees[0], out);
            } else if (is(child.tag, "ebgp-multihop")) {
                multihop(child.subtrees[0], out);
            } else if (is(child.tag, "graceful-restart")) {
                restart(child.subtrees[0], out);
            } else if (is(child.tag, "afi-safis")) {
                Datatree *list = add(out, "neighbor-afs");
                for (const Datatree &entry : platform::children_of(child)) family(entry, list);
            }
        }
    }

    static void run(const Datatree &openconfig, Datatree *root)
    {
        Datatree *instance = add(add(root, "bgp"), "instance");
        add(instance, "instance-name", "default");
        Datatree *as = add(instance, "instance-as");
        add(as, "as", "0");
        Datatree *four_byte_as = add(as, "four-byte-as");
        add(four_byte_as, "as", "65001");
        Datatree *entity = add(add(four_byte_as, "default-vrf"), "bgp-entity");
        Datatree *neighbors = add(entity, "neighbors");
        for (const Datatree &entry : platform::children_of(openconfig.subtrees[0])) neighbor(entry, neighbors);
    }
};

// ---- Back -----------------------------------------------------------------------------------

template<class From>
struct Back {
    static Datatree *add(Datatree *parent, const char *tag, const char *value = nullptr)
    {
        return add_child<From>(parent, OC_BGP_NS, tag, value);
    }

    static void add_identity(Datatree *parent, const char *tag, const char *value)
    {
        add(parent, tag, value)->data_namespace = const_cast<char *>(OC_BGP_TYPES_NS);
    }

    // Where `config` lies among the children of a node; its `state` comes next.
    struct Pair {
        Datatree *parent;
        int32_t config;

        Datatree *half(int32_t number) const { return &parent->subtrees[config + number]; }
        void leaf(const char *tag, const char *value) const
        {
            for (const int32_t number : {0, 1}) add(half(number), tag, value);
        }
    };

    static Pair add_pair(Datatree *parent)
    {
        const int32_t at = parent->subtree_count;
        add(parent, "config");
        add(parent, "state");
        return {parent, at};
    }

    static Pair add_block(Datatree *parent, const char *tag) { return add_pair(add(parent, tag)); }

    static void limit(const Datatree &in, Datatree *out, const char *family)
    {
        const Pair pair = add_block(add(out, family), "prefix-limit");
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "prefix-limit"))
                pair.leaf("max-prefixes", leaf.value);
            else if (is(leaf.tag, "warning-percentage"))
                pair.leaf("shutdown-threshold-pct", leaf.value);
        }
    }

    static void family(const Datatree &in, Datatree *list)
    {
        Datatree *out = add(list, "afi-safi");
        Pair entry = {};
        Pair policies = {};
        const char *name = nullptr;
        for (const Datatree &child : platform::children_of(in)) {
            if (is(child.tag, "af-name")) {
                name = child.value;
                add_identity(out, "afi-safi-name", identity_of(name));
                entry = add_pair(out);
                for (const int32_t number : {0, 1})
                    add_identity(entry.half(number), "afi-safi-name", identity_of(name));
            } else if (is(child.tag, "activate")) {
                entry.leaf("enabled", "true");
            } else if (is(child.tag, "maximum-prefixes")) {
                limit(child, out, name);
            } else {
                if (policies.parent == nullptr) policies = add_block(out, "apply-policy");
                policies.leaf(is(child.tag, "route-policy-in") ? "import-policy" : "export-policy", child.value);
            }
        }
    }

    // The blocks of a neighbor that several native nodes go into: numbers of children.
    struct Blocks {
        int32_t transport = -1;
        int32_t timers = -1;
        int32_t restart = -1;
    };

    static Pair block(Datatree *out, int32_t &at, const char *tag)
    {
        if (at < 0) {
            at = out->subtree_count;
            add_block(out, tag);
        }
        return {&out->subtrees[at], 0};
    }

    static bool session(const Datatree &in, Datatree *out, Blocks &blocks)
    {
        if (is(in.tag, "session-open-mode")) {
            block(out, blocks.transport, "transport")
                .leaf("passive-mode", is(in.value, "passive-only") ? "true" : "false");
        } else if (is(in.tag, "tcpmss")) {
            block(out, blocks.transport, "transport").leaf("tcp-mss", in.subtrees[0].value);
        } else if (is(in.tag, "local-address")) {
            block(out, blocks.transport, "transport").leaf("local-address", in.subtrees[1].value);
        } else if (is(in.tag, "ebgp-multihop")) {
            const Pair pair = add_block(out, "ebgp-multihop");
            pair.leaf("enabled", "true");
            pair.leaf("multihop-ttl", in.subtrees[0].value);
        } else if (is(in.tag, "timers")) {
            for (const Datatree &leaf : platform::children_of(in))
                block(out, blocks.timers, "timers").leaf(leaf.tag, leaf.value);
        } else if (is(in.tag, "advertisement-interval")) {
            block(out, blocks.timers, "timers").leaf("minimum-advertisement-interval", in.subtrees[0].value);
        } else if (is(in.tag, "neighbor-graceful-restart")) {
            block(out, blocks.restart, "graceful-restart").leaf("enabled", inverse(in.value));
        } else if (is(in.tag, "neighbor-graceful-restart-time")) {
            block(out, blocks.restart, "graceful-restart").leaf("restart-time", in.value);
        } else if (is(in.tag, "neighbor-graceful-restart-stalepath-time")) {
            block(out, blocks.restart, "graceful-restart").leaf("stale-routes-time", in.value);
        } else {
            return false;
        }
        return true;
    }

    static void neighbor(const Datatree &in, Datatree *neighbors)
    {
        Datatree *out = add(neighbors, "neighbor");
        Pair entry = {};
        Blocks blocks;
        for (const Datatree &child : platform::children_of(in)) {
            if (is(child.tag, "neighbor-address")) {
                add(out, "neighbor-address", child.value);
                entry = add_pair(out);
                entry.leaf("neighbor-address", child.value);
            } else if (is(child.tag, "remote-as") || is(child.tag, "local-as")) {
                entry.leaf(is(child.tag, "remote-as") ? "peer-as" : "local-as", child.subtrees[1].value);
            } else if (is(child.tag, "password")) {
                entry.leaf("auth-password", child.subtrees[1].value);
            } else if (is(child.tag, "description")) {
                entry.leaf("description", child.value);
            } else if (is(child.tag, "neighbor-group-add-member")) {
                entry.leaf("peer-group", child.value);
            } else if (is(child.tag, "neighbor-afs")) {
                Datatree *list = add(out, "afi-safis");
                for (const Datatree &native : platform::children_of(child)) family(native, list);
            } else {
                session(child, out, blocks);
            }
        }
    }

    static void run(const Datatree &native, Datatree *root)
    {
        const Datatree *node = &native;
        while (!is(node->tag, "neighbors")) node = &node->subtrees[node->subtree_count - 1];
        Datatree *neighbors = add(add(root, "bgp"), "neighbors");
        for (const Datatree &entry : platform::children_of(*node)) neighbor(entry, neighbors);
    }
};

// ---- The peer -------------------------------------------------------------------------------

template<class From>
class Floor : public Peer {
public:
    Floor(Way way, size_t neighbors)
        : way_(way), in_(way == Way::forward ? openconfig_neighbors(neighbors) : native_neighbors(neighbors))
    {
    }

    void work() override
    {
        if (way_ == Way::forward)
            Forward<From>::run(in_.root(), &out_);
        else
            Back<From>::run(in_.root().subtrees[0], &out_);
    }
    size_t nodes_in() const override { return count_nodes(in_.root()); }
    size_t nodes_out() const override { return count_nodes(out_); }
    std::string text() const override { return text_of(out_); }

private:
    Way way_;
    platform::Tree in_;
    Datatree out_ = {};  // never freed: its arrays are not the platform's
};

}  // namespace

std::unique_ptr<Peer> make_malloc_floor(Way way, size_t neighbors)
{
    return std::make_unique<Floor<FromMalloc>>(way, neighbors);
}

std::unique_ptr<Peer> make_bump_floor(Way way, size_t neighbors)
{
    return std::make_unique<Floor<FromBump>>(way, neighbors);
}

}  // namespace bench
