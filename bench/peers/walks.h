// The work by hand: walks that were written for these nodes alone, over whatever a tree is made of.
//
// `Trees` says that:
//   In, Out                   pointers to a node that is read, and to one that is built; an Out holds until the next
//                             child is added to its parent
//   first(in), next(parent, in), tag(in), value(in)
//   ipv4, ipv6                the values that name a family's identity, read and built
//   add(out, tag)             adds a container
//   leaf(out, tag, value)     adds a leaf; null: empty
//   identity(out, tag, value) adds a leaf with an identity
//   entry(out, list, key_tag, key), identity_entry(...)
//   Place, place(parent, out), at(place)      a child that outlives the next add
#pragma once

#include <cstring>

namespace bench {

inline bool is(const char *a, const char *b) { return std::strcmp(a, b) == 0; }
inline const char *inverse(const char *boolean) { return is(boolean, "true") ? "false" : "true"; }

template<class Trees>
class ForwardWalk : Trees {
public:
    using typename Trees::In;
    using typename Trees::Out;

    explicit ForwardWalk(const Trees &trees) : Trees(trees) {}

    // From the OpenConfig `bgp` to the native one.
    void run(In openconfig, Out bgp)
    {
        const Out instance = entry(bgp, "instance", "instance-name", "default");
        const Out as = entry(instance, "instance-as", "as", "0");
        const Out four_byte_as = entry(as, "four-byte-as", "as", "65001");
        const Out neighbors = add(add(add(four_byte_as, "default-vrf"), "bgp-entity"), "neighbors");
        const In list = first(openconfig);
        for (In node = first(list); node != nullptr; node = next(list, node)) neighbor(node, neighbors);
    }

private:
    using Trees::add;
    using Trees::entry;
    using Trees::first;
    using Trees::leaf;
    using Trees::next;
    using Trees::tag;
    using Trees::value;

    void config(In in, Out out)
    {
        for (In node = first(in); node != nullptr; node = next(in, node)) {
            if (is(tag(node), "peer-as") || is(tag(node), "local-as")) {
                const Out as = add(out, is(tag(node), "peer-as") ? "remote-as" : "local-as");
                leaf(as, "as-xx", "0");
                leaf(as, "as-yy", value(node));
            } else if (is(tag(node), "auth-password")) {
                const Out password = add(out, "password");
                leaf(password, "password-disable", "false");
                leaf(password, "password", value(node));
            } else if (is(tag(node), "description")) {
                leaf(out, "description", value(node));
            } else if (is(tag(node), "peer-group")) {
                leaf(out, "neighbor-group-add-member", value(node));
            }
        }
    }

    void timers(In in, Out out)
    {
        Out both = nullptr;
        for (In node = first(in); node != nullptr; node = next(in, node)) {
            if (is(tag(node), "minimum-advertisement-interval")) {
                leaf(add(out, "advertisement-interval"), "minimum-interval", value(node));
                continue;
            }
            if (both == nullptr) both = add(out, "timers");
            leaf(both, is(tag(node), "hold-time") ? "hold-time" : "keepalive-interval", value(node));
        }
    }

    void transport(In in, Out out)
    {
        for (In node = first(in); node != nullptr; node = next(in, node)) {
            if (is(tag(node), "tcp-mss")) {
                leaf(add(out, "tcpmss"), "mss", value(node));
            } else if (is(tag(node), "passive-mode")) {
                leaf(out, "session-open-mode", is(value(node), "true") ? "passive-only" : "active-only");
            } else if (is(tag(node), "local-address")) {
                const Out address = add(out, "local-address");
                leaf(address, "local-address-disable", "false");
                leaf(address, "local-ip-address", value(node));
                leaf(out, "update-source-interface", nullptr);
            }
        }
    }

    void multihop(In in, Out out)
    {
        const char *hops = "255";
        for (In node = first(in); node != nullptr; node = next(in, node))
            if (is(tag(node), "multihop-ttl")) hops = value(node);
        const Out block = add(out, "ebgp-multihop");
        leaf(block, "max-hop-count", hops);
        leaf(block, "mpls-deactivation", "false");
    }

    void restart(In in, Out out)
    {
        for (In node = first(in); node != nullptr; node = next(in, node)) {
            if (is(tag(node), "enabled"))
                leaf(out, "neighbor-graceful-restart", inverse(value(node)));
            else if (is(tag(node), "restart-time"))
                leaf(out, "neighbor-graceful-restart-time", value(node));
            else
                leaf(out, "neighbor-graceful-restart-stalepath-time", value(node));
        }
    }

    void limit(In in, Out out)
    {
        const Out maximum = add(out, "maximum-prefixes");
        for (In node = first(in); node != nullptr; node = next(in, node)) {
            if (is(tag(node), "max-prefixes")) {
                leaf(maximum, "prefix-limit", value(node));
                leaf(maximum, "warning-only", "false");
                leaf(maximum, "discard-extra-paths", "false");
            } else {
                leaf(maximum, "warning-percentage", value(node));
            }
        }
    }

    void family(In in, Out list)
    {
        const In key = first(in);
        const Out out =
            entry(list, "neighbor-af", "af-name", is(value(key), Trees::ipv4) ? "ipv4-unicast" : "ipv6-unicast");
        for (In child = next(in, key); child != nullptr; child = next(in, child)) {
            if (is(tag(child), "config")) {
                leaf(out, "activate", nullptr);
            } else if (is(tag(child), "apply-policy")) {
                const In policies = first(child);
                for (In node = first(policies); node != nullptr; node = next(policies, node))
                    leaf(out, is(tag(node), "import-policy") ? "route-policy-in" : "route-policy-out", value(node));
            } else {
                limit(first(first(child)), out);
            }
        }
    }

    void neighbor(In in, Out neighbors)
    {
        const In key = first(in);
        const Out out = entry(neighbors, "neighbor", "neighbor-address", value(key));
        for (In child = next(in, key); child != nullptr; child = next(in, child)) {
            if (is(tag(child), "config")) {
                config(child, out);
            } else if (is(tag(child), "timers")) {
                timers(first(child), out);
            } else if (is(tag(child), "transport")) {
                transport(first(child), out);
            } else if (is(tag(child), "ebgp-multihop")) {
                multihop(first(child), out);
            } else if (is(tag(child), "graceful-restart")) {
                restart(first(child), out);
            } else if (is(tag(child), "afi-safis")) {
                const Out list = add(out, "neighbor-afs");
                for (In node = first(child); node != nullptr; node = next(child, node)) family(node, list);
            }
        }
    }
};

template<class Trees>
class BackWalk : Trees {
public:
    using typename Trees::In;
    using typename Trees::Out;

    explicit BackWalk(const Trees &trees) : Trees(trees) {}

    // From the native `bgp` to the OpenConfig one.
    void run(In native, Out bgp)
    {
        const In instance = first(native);
        const In four_byte_as = last(last(instance));
        const In list = last(last(last(four_byte_as)));
        const Out neighbors = add(bgp, "neighbors");
        for (In node = first(list); node != nullptr; node = next(list, node)) neighbor(node, neighbors);
    }

private:
    using Trees::add;
    using Trees::at;
    using Trees::entry;
    using Trees::first;
    using Trees::identity;
    using Trees::identity_entry;
    using Trees::leaf;
    using Trees::next;
    using Trees::place;
    using Trees::tag;
    using Trees::value;
    using typename Trees::Place;

    // A node's `config` and `state`, which say the same.
    struct Pair {
        Place config, state;
        bool made = false;
    };

    In last(In parent)
    {
        In found = first(parent);
        for (In node = found; node != nullptr; node = next(parent, node)) found = node;
        return found;
    }

    Pair add_pair(Out parent)
    {
        const Place config = place(parent, add(parent, "config"));
        return {config, place(parent, add(parent, "state")), true};
    }

    void give(const Pair &pair, const char *name, const char *text)
    {
        leaf(at(pair.config), name, text);
        leaf(at(pair.state), name, text);
    }

    // The pair of a block that several native nodes go into.
    const Pair &block(Pair &pair, Out parent, const char *name)
    {
        if (!pair.made) pair = add_pair(add(parent, name));
        return pair;
    }

    void limit(In in, Out out, const char *family)
    {
        const Pair pair = add_pair(add(add(out, family), "prefix-limit"));
        for (In node = first(in); node != nullptr; node = next(in, node)) {
            if (is(tag(node), "prefix-limit"))
                give(pair, "max-prefixes", value(node));
            else if (is(tag(node), "warning-percentage"))
                give(pair, "shutdown-threshold-pct", value(node));
        }
    }

    void family(In in, Out list)
    {
        const In key = first(in);
        const char *name = is(value(key), "ipv4-unicast") ? Trees::ipv4 : Trees::ipv6;
        const Out out = identity_entry(list, "afi-safi", "afi-safi-name", name);
        const Pair own = add_pair(out);
        identity(at(own.config), "afi-safi-name", name);
        identity(at(own.state), "afi-safi-name", name);
        Pair policies = {};
        for (In child = next(in, key); child != nullptr; child = next(in, child)) {
            if (is(tag(child), "activate"))
                give(own, "enabled", "true");
            else if (is(tag(child), "maximum-prefixes"))
                limit(child, out, value(key));
            else
                give(block(policies, out, "apply-policy"),
                     is(tag(child), "route-policy-in") ? "import-policy" : "export-policy", value(child));
        }
    }

    // The blocks of a neighbor that several native nodes go into. Such nodes stand side by side, so that nothing is
    // added beside a block before it is complete.
    struct Blocks {
        Pair own, transport, timers, restart;
    };

    void session(In in, Out out, Blocks &blocks)
    {
        if (is(tag(in), "session-open-mode")) {
            give(block(blocks.transport, out, "transport"), "passive-mode",
                 is(value(in), "passive-only") ? "true" : "false");
        } else if (is(tag(in), "tcpmss")) {
            give(block(blocks.transport, out, "transport"), "tcp-mss", value(first(in)));
        } else if (is(tag(in), "local-address")) {
            give(block(blocks.transport, out, "transport"), "local-address", value(last(in)));
        } else if (is(tag(in), "ebgp-multihop")) {
            const Pair pair = add_pair(add(out, "ebgp-multihop"));
            give(pair, "enabled", "true");
            give(pair, "multihop-ttl", value(first(in)));
        } else if (is(tag(in), "timers")) {
            for (In node = first(in); node != nullptr; node = next(in, node))
                give(block(blocks.timers, out, "timers"), tag(node), value(node));
        } else if (is(tag(in), "advertisement-interval")) {
            give(block(blocks.timers, out, "timers"), "minimum-advertisement-interval", value(first(in)));
        } else if (is(tag(in), "neighbor-graceful-restart")) {
            give(block(blocks.restart, out, "graceful-restart"), "enabled", inverse(value(in)));
        } else if (is(tag(in), "neighbor-graceful-restart-time")) {
            give(block(blocks.restart, out, "graceful-restart"), "restart-time", value(in));
        } else {
            give(block(blocks.restart, out, "graceful-restart"), "stale-routes-time", value(in));
        }
    }

    void neighbor(In in, Out neighbors)
    {
        const In key = first(in);
        const Out out = entry(neighbors, "neighbor", "neighbor-address", value(key));
        Blocks blocks = {};
        blocks.own = add_pair(out);
        give(blocks.own, "neighbor-address", value(key));
        for (In child = next(in, key); child != nullptr; child = next(in, child)) {
            if (is(tag(child), "remote-as") || is(tag(child), "local-as")) {
                give(blocks.own, is(tag(child), "remote-as") ? "peer-as" : "local-as", value(last(child)));
            } else if (is(tag(child), "password")) {
                give(blocks.own, "auth-password", value(last(child)));
            } else if (is(tag(child), "description")) {
                give(blocks.own, "description", value(child));
            } else if (is(tag(child), "neighbor-group-add-member")) {
                give(blocks.own, "peer-group", value(child));
            } else if (is(tag(child), "neighbor-afs")) {
                const Out list = add(out, "afi-safis");
                for (In node = first(child); node != nullptr; node = next(child, node)) family(node, list);
            } else {
                session(child, out, blocks);
            }
        }
    }
};

}  // namespace bench
