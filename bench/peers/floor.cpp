#include "floor.h"

#include <cstdlib>
#include <cstring>

#include "text.h"
#include "tree.h"
#include "walks.h"
#include "workload.h"

namespace bench {

namespace {

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

// Children lie in an array, which moves when it grows.
template<class From>
struct Records {
    using In = const Datatree *;
    using Out = Datatree *;
    static constexpr const char *ipv4 = "IPV4_UNICAST";
    static constexpr const char *ipv6 = "IPV6_UNICAST";

    const char *ns;

    static In first(In parent) { return parent->subtree_count > 0 ? parent->subtrees : nullptr; }
    static In next(In parent, In node) { return ++node != parent->subtrees + parent->subtree_count ? node : nullptr; }
    static const char *tag(In node) { return node->tag; }
    static const char *value(In node) { return node->value; }

    Out add(Out parent, const char *tag) const
    {
        const auto count = static_cast<uint32_t>(parent->subtree_count);
        if (count == parent->subtree_capacity) {
            const uint32_t capacity = count < 4 ? 4 : count * 2;
            parent->subtrees =
                static_cast<Out>(From::grow(parent->subtrees, count * sizeof(Datatree), capacity * sizeof(Datatree)));
            parent->subtree_capacity = capacity;
            parent->present[0] |= VMF_DT_SUBTREES;
        }
        const Out child = &parent->subtrees[parent->subtree_count++];
        *child = {};
        child->tag = const_cast<char *>(tag);
        child->namespace_ = const_cast<char *>(ns);
        child->present[0] = VMF_DT_TAG | VMF_DT_NAMESPACE;
        return child;
    }
    Out leaf(Out parent, const char *tag, const char *value) const
    {
        const Out child = add(parent, tag);
        if (value != nullptr) {
            child->value = From::copy(value);
            child->present[0] |= VMF_DT_VALUE;
        }
        return child;
    }
    void identity(Out parent, const char *tag, const char *value) const
    {
        leaf(parent, tag, value)->data_namespace = const_cast<char *>(OC_BGP_TYPES_NS);
    }
    Out entry(Out parent, const char *list, const char *key_tag, const char *key) const
    {
        const Out child = add(parent, list);
        leaf(child, key_tag, key);
        return child;
    }
    Out identity_entry(Out parent, const char *list, const char *key_tag, const char *key) const
    {
        const Out child = add(parent, list);
        identity(child, key_tag, key);
        return child;
    }

    struct Place {
        Out parent;
        int32_t number;
    };
    static Place place(Out parent, Out child) { return {parent, static_cast<int32_t>(child - parent->subtrees)}; }
    static Out at(Place place) { return &place.parent->subtrees[place.number]; }
};

template<class From>
class Floor : public Peer {
public:
    Floor(Way way, size_t neighbors)
        : way_(way), in_(way == Way::forward ? openconfig_neighbors(neighbors) : native_neighbors(neighbors))
    {
    }

    void work() override
    {
        const Records<From> records = {way_ == Way::forward ? ZR_BGP_CFG_NS : OC_BGP_NS};
        Datatree *bgp = records.add(&out_, "bgp");
        if (way_ == Way::forward)
            ForwardWalk<Records<From>>(records).run(&in_.root(), bgp);
        else
            BackWalk<Records<From>>(records).run(in_.root().subtrees, bgp);
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
