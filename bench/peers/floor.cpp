#include "floor.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "tree.h"

namespace bench {

namespace {

bool is(const char *a, const char *b) { return std::strcmp(a, b) == 0; }

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

template<class From>
Record *add(Record *parent, const char *tag, const char *value = nullptr)
{
    if (parent->count == parent->capacity) {
        const size_t capacity = parent->capacity < 2 ? 2 : parent->capacity * 2;
        parent->children = static_cast<Record *>(
            From::grow(parent->children, parent->capacity * sizeof(Record), capacity * sizeof(Record)));
        parent->capacity = capacity;
    }
    Record *child = &parent->children[parent->count++];
    *child = {tag, value != nullptr ? From::copy(value) : nullptr, nullptr, 0, 0};
    return child;
}

// ---- Forward --------------------------------------------------------------------------------

template<class From>
struct Forward {
    static void config(const Datatree &in, Record *out)
    {
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "peer-as") || is(leaf.tag, "local-as")) {
                Record *as = add<From>(out, is(leaf.tag, "peer-as") ? "remote-as" : "local-as");
                add<From>(as, "as-xx", "0");
                add<From>(as, "as-yy", leaf.value);
            } else if (is(leaf.tag, "auth-password")) {
                Record *password = add<From>(out, "password");
                add<From>(password, "password-disable", "false");
                add<From>(password, "password", leaf.value);
            } else if (is(leaf.tag, "description")) {
                add<From>(out, "description", leaf.value);
            } else if (is(leaf.tag, "peer-group")) {
                add<From>(out, "neighbor-group-add-member", leaf.value);
            }
        }
    }

    static void timers(const Datatree &in, Record *out)
    {
        Record *both = nullptr;
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "minimum-advertisement-interval")) {
                add<From>(add<From>(out, "advertisement-interval"), "minimum-interval", leaf.value);
                continue;
            }
            if (both == nullptr) both = add<From>(out, "timers");
            add<From>(both, is(leaf.tag, "hold-time") ? "hold-time" : "keepalive-interval", leaf.value);
        }
    }

    static void transport(const Datatree &in, Record *out)
    {
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "tcp-mss")) {
                add<From>(add<From>(out, "tcpmss"), "mss", leaf.value);
            } else if (is(leaf.tag, "passive-mode")) {
                add<From>(out, "session-open-mode", is(leaf.value, "true") ? "passive-only" : "active-only");
            } else if (is(leaf.tag, "local-address")) {
                Record *address = add<From>(out, "local-address");
                add<From>(address, "local-address-disable", "false");
                add<From>(address, "local-ip-address", leaf.value);
                add<From>(out, "update-source-interface");
            }
        }
    }

    static void multihop(const Datatree &in, Record *out)
    {
        Record *block = add<From>(out, "ebgp-multihop");
        Record *count = add<From>(block, "max-hop-count", "255");
        const size_t at = static_cast<size_t>(count - block->children);
        add<From>(block, "mpls-deactivation", "false");
        for (const Datatree &leaf : platform::children_of(in))
            if (is(leaf.tag, "multihop-ttl")) block->children[at].value = From::copy(leaf.value);
    }

    static void restart(const Datatree &in, Record *out)
    {
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "enabled"))
                add<From>(out, "neighbor-graceful-restart", is(leaf.value, "true") ? "false" : "true");
            else if (is(leaf.tag, "restart-time"))
                add<From>(out, "neighbor-graceful-restart-time", leaf.value);
            else
                add<From>(out, "neighbor-graceful-restart-stalepath-time", leaf.value);
        }
    }

    static const char *native_name(const char *identity)
    {
        return is(identity, "IPV4_UNICAST") ? "ipv4-unicast" : "ipv6-unicast";
    }

    static void limit(const Datatree &in, Record *out)
    {
        Record *maximum = add<From>(out, "maximum-prefixes");
        for (const Datatree &leaf : platform::children_of(in)) {
            if (is(leaf.tag, "max-prefixes")) {
                add<From>(maximum, "prefix-limit", leaf.value);
                add<From>(maximum, "warning-only", "false");
                add<From>(maximum, "discard-extra-paths", "false");
            } else {
                add<From>(maximum, "warning-percentage", leaf.value);
            }
        }
    }

    static void family(const Datatree &in, Record *list)
    {
        Record *out = add<From>(list, "neighbor-af");
        for (const Datatree &child : platform::children_of(in)) {
            if (is(child.tag, "afi-safi-name")) {
                add<From>(out, "af-name", native_name(child.value));
            } else if (is(child.tag, "config")) {
                add<From>(out, "activate");
            } else if (is(child.tag, "apply-policy")) {
                for (const Datatree &leaf : platform::children_of(child.subtrees[0]))
                    add<From>(out, is(leaf.tag, "import-policy") ? "route-policy-in" : "route-policy-out", leaf.value);
            } else {
                limit(child.subtrees[0].subtrees[0], out);
            }
        }
    }

    static void neighbor(const Datatree &in, Record *neighbors)
    {
        Record *out = add<From>(neighbors, "neighbor");
        for (const Datatree &child : platform::children_of(in)) {
            if (is(child.tag, "neighbor-address")) {
                add<From>(out, "neighbor-address", child.value);
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
                Record *list = add<From>(out, "neighbor-afs");
                for (const Datatree &entry : platform::children_of(child)) family(entry, list);
            }
        }
    }

    static Record run(const Datatree &openconfig)
    {
        Record root = {};
        Record *instance = add<From>(add<From>(&root, "bgp"), "instance");
        add<From>(instance, "instance-name", "default");
        Record *as = add<From>(instance, "instance-as");
        add<From>(as, "as", "0");
        Record *four_byte_as = add<From>(as, "four-byte-as");
        add<From>(four_byte_as, "as", "65001");
        Record *entity = add<From>(add<From>(four_byte_as, "default-vrf"), "bgp-entity");
        Record *neighbors = add<From>(entity, "neighbors");
        for (const Datatree &entry : platform::children_of(openconfig.subtrees[0])) neighbor(entry, neighbors);
        return root;
    }
};

void append_text(std::string &text, size_t depth, const char *tag, const char *value)
{
    text.append(depth, ' ');
    text += tag != nullptr ? tag : "-";
    if (value != nullptr) text += std::string(" = ") + value;
    text += '\n';
}

void append(std::string &text, const Record &record, size_t depth)
{
    append_text(text, depth, record.tag, record.value);
    for (size_t i = 0; i < record.count; i++) append(text, record.children[i], depth + 1);
}

void append(std::string &text, const Datatree &node, size_t depth)
{
    append_text(text, depth, platform::tag_of(node), platform::value_of(node));
    for (const Datatree &child : platform::children_of(node)) append(text, child, depth + 1);
}

}  // namespace

Record floor_forward(const Datatree &openconfig, Memory memory)
{
    return memory == Memory::malloc ? Forward<FromMalloc>::run(openconfig) : Forward<FromBump>::run(openconfig);
}

size_t count_nodes(const Record &record)
{
    size_t count = 1;
    for (size_t i = 0; i < record.count; i++) count += count_nodes(record.children[i]);
    return count;
}

std::string text_of(const Record &record)
{
    std::string text;
    append(text, record, 0);
    return text;
}

std::string text_of(const Datatree &node)
{
    std::string text;
    append(text, node, 0);
    return text;
}

}  // namespace bench
