#include "libyang.h"

#include <libyang/libyang.h>

#include <cstdio>
#include <cstdlib>

#include "text.h"
#include "tree.h"
#include "walks.h"
#include "workload.h"
#include "yang_texts.h"

namespace bench {

namespace {

void expect(LY_ERR error, const char *what)
{
    if (error == LY_SUCCESS) return;
    std::fprintf(stderr, "libyang refuses %s\n", what);
    std::exit(1);
}

// libyang puts each node where the schema has it.
struct Nodes {
    using In = const lyd_node *;
    using Out = lyd_node *;
    static constexpr const char *ipv4 = "openconfig-bgp-types:IPV4_UNICAST";
    static constexpr const char *ipv6 = "openconfig-bgp-types:IPV6_UNICAST";

    const lys_module *module;

    static In first(In parent) { return lyd_child(parent); }
    static In next(In /*parent*/, In node) { return node->next; }
    static const char *tag(In node) { return LYD_NAME(node); }
    // The text of a decimal without a fraction, which the other model has as an integer.
    static const char *value(In node)
    {
        const lyd_value &value = reinterpret_cast<const lyd_node_term *>(node)->value;
        if (value.realtype->basetype != LY_TYPE_DEC64) return lyd_get_value(node);
        static std::string whole;
        whole = lyd_get_value(node);
        whole.resize(whole.find('.'));
        return whole.c_str();
    }

    Out add(Out parent, const char *tag) const
    {
        Out node = nullptr;
        expect(lyd_new_inner(parent, module, tag, 0, &node), tag);
        return node;
    }
    void leaf(Out parent, const char *tag, const char *value) const
    {
        expect(lyd_new_term(parent, module, tag, value != nullptr ? value : "", 0, nullptr), tag);
    }
    void identity(Out parent, const char *tag, const char *value) const { leaf(parent, tag, value); }
    Out entry(Out parent, const char *list, const char * /*key_tag*/, const char *key) const
    {
        Out node = nullptr;
        expect(lyd_new_list(parent, module, list, 0, &node, key), list);
        return node;
    }
    Out identity_entry(Out parent, const char *list, const char *key_tag, const char *key) const
    {
        return entry(parent, list, key_tag, key);
    }

    using Place = Out;
    static Place place(Out /*parent*/, Out child) { return child; }
    static Out at(Place place) { return place; }
};

void append(const Nodes &nodes, lyd_node *parent, const Datatree &from)
{
    for (const Datatree &child : platform::children_of(from)) {
        const char *tag = platform::tag_of(child);
        const lysc_node *schema = lys_find_child(parent->schema, nodes.module, tag, 0, 0, 0);
        if (schema == nullptr) expect(LY_ENOTFOUND, tag);
        if ((schema->flags & LYS_KEY) != 0) continue;
        if (schema->nodetype == LYS_LIST) {
            const Datatree &key = platform::children_of(child).front();
            append(nodes, nodes.entry(parent, tag, platform::tag_of(key), value_of(key).c_str()), child);
        } else if (schema->nodetype == LYS_CONTAINER) {
            append(nodes, nodes.add(parent, tag), child);
        } else {
            nodes.leaf(parent, tag, value_of(child).c_str());
        }
    }
}

size_t count(const lyd_node *node)
{
    size_t nodes = 1;
    for (const lyd_node *child = lyd_child(node); child != nullptr; child = child->next) nodes += count(child);
    return nodes;
}

void append(std::string &text, const lyd_node *node, size_t depth)
{
    const bool is_leaf = (node->schema->nodetype & LYD_NODE_TERM) != 0;
    append_line(text, depth, LYD_NAME(node), is_leaf ? Nodes::value(node) : nullptr);
    for (const lyd_node *child = lyd_child(node); child != nullptr; child = child->next) append(text, child, depth + 1);
}

class Libyang : public Peer {
public:
    Libyang(Way way, size_t neighbors) : way_(way)
    {
        expect(ly_ctx_new(nullptr, LY_CTX_NO_YANGLIBRARY, &context_), "a context");
        load("openconfig-bgp-types");
        const Nodes openconfig = {load("openconfig-bgp")};
        const Nodes native = {load("Zorvex-ZR-ipv4-bgp-cfg")};
        const bool forward = way == Way::forward;
        out_nodes_ = forward ? native : openconfig;
        in_ = (forward ? openconfig : native).add(nullptr, "bgp");
        const platform::Tree tree = forward ? openconfig_neighbors(neighbors) : native_neighbors(neighbors);
        if (forward)
            append(openconfig, in_, tree.root());
        else
            append(native, in_, platform::children_of(tree.root()).front());
    }
    ~Libyang() override
    {
        lyd_free_all(in_);
        lyd_free_all(out_);
        ly_ctx_destroy(context_);
    }
    Libyang(const Libyang &) = delete;
    Libyang &operator=(const Libyang &) = delete;

    void work() override
    {
        out_ = out_nodes_.add(nullptr, "bgp");
        if (way_ == Way::forward)
            ForwardWalk<Nodes>(out_nodes_).run(in_, out_);
        else
            BackWalk<Nodes>(out_nodes_).run(in_, out_);
    }
    size_t nodes_in() const override { return count(in_); }
    size_t nodes_out() const override { return count(out_); }
    std::string text() const override
    {
        std::string text;
        append(text, out_, 0);
        return text;
    }

private:
    const lys_module *load(const char *name)
    {
        lys_module *module = nullptr;
        expect(lys_parse_mem(context_, model::find_yang_text(name), LYS_IN_YANG, &module), name);
        return module;
    }

    Way way_;
    ly_ctx *context_ = nullptr;
    Nodes out_nodes_ = {};
    lyd_node *in_ = nullptr;
    lyd_node *out_ = nullptr;
};

}  // namespace

std::unique_ptr<Peer> make_libyang(Way way, size_t neighbors) { return std::make_unique<Libyang>(way, neighbors); }

}  // namespace bench
