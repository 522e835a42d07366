#include "native_schema.h"

#include <libxml/chvalid.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlstring.h>

#include <cstring>
#include <stdexcept>

#include "names.h"
#include "vmf_map_types.h"
#include "yang_texts.h"

namespace router {

// ---- Models ---------------------------------------------------------------------------------

static Schema::Kind kind_of(const lysc_node &node)
{
    switch (node.nodetype) {
    case LYS_CONTAINER: return Schema::Kind::container;
    case LYS_LIST: return Schema::Kind::list;
    case LYS_LEAF: return Schema::Kind::leaf;
    case LYS_LEAFLIST: return Schema::Kind::leaf_list;
    default: throw std::runtime_error(std::string("a kind of node that no datastore holds: ") + node.name);
    }
}

static void read_children(Schema &parent, const lysc_node *first);

static void read_node(Schema &schema, const lysc_node &node)
{
    schema.kind = kind_of(node);
    schema.tag = platform::intern(node.name);
    schema.ns = platform::intern(node.module->ns);
    schema.is_key = (node.flags & LYS_KEY) != 0 && node.nodetype == LYS_LEAF;
    schema.is_empty =
        node.nodetype == LYS_LEAF && reinterpret_cast<const lysc_node_leaf &>(node).type->basetype == LY_TYPE_EMPTY;
    schema.in_user_order = (node.nodetype & (LYS_LIST | LYS_LEAFLIST)) != 0 && (node.flags & LYS_ORDBY_USER) != 0;
    schema.compiled = &node;
    read_children(schema, lysc_node_child(&node));
    if (schema.kind == Schema::Kind::leaf_list) schema.key_count = 1;
    for (const Schema &child : schema.children) schema.key_count += child.is_key ? 1 : 0;
}

static void read_children(Schema &parent, const lysc_node *first)
{
    size_t count = 0;
    for (const lysc_node *node = first; node != nullptr; node = node->next) count++;
    parent.children.reserve(count);  // so that they stay where they are
    for (const lysc_node *node = first; node != nullptr; node = node->next) {
        Schema &child = parent.children.emplace_back();
        child.place = parent.children.size() - 1;
        read_node(child, *node);
        parent.places.emplace(child.tag, child.place);
        const_cast<lysc_node *>(node)->priv = &child;  // what libyang leaves to its user
    }
}

static LY_ERR give_text(const char *module, const char * /*revision*/, const char *submodule,
                        const char * /*submodule_revision*/, void * /*data*/, LYS_INFORMAT *format, const char **text,
                        ly_module_imp_data_free_clb *free_text)
{
    *text = submodule == nullptr ? model::find_yang_text(module) : nullptr;
    *format = LYS_IN_YANG;
    *free_text = nullptr;
    return *text != nullptr ? LY_SUCCESS : LY_ENOTFOUND;
}

static void read_module(ly_ctx *context, const char *name, Schema &root)
{
    const lys_module *module = ly_ctx_load_module(context, name, nullptr, nullptr);
    if (module == nullptr) throw std::runtime_error(std::string("the module ") + name + ": " + ly_errmsg(context));
    root.ns = platform::intern(module->ns);
    read_children(root, module->compiled->data);
}

const Models &models()
{
    static const Models *const the_models = [] {
        ly_log_options(LY_LOSTORE_LAST);  // said by whoever asks, not printed
        auto *made = new Models{};
        constexpr uint16_t options = LY_CTX_NO_YANGLIBRARY | LY_CTX_DISABLE_SEARCHDIRS | LY_CTX_DISABLE_SEARCHDIR_CWD;
        if (ly_ctx_new(nullptr, options, &made->context) != LY_SUCCESS)
            throw std::runtime_error("libyang does not start");
        ly_ctx_set_module_imp_clb(made->context, give_text, nullptr);
        read_module(made->context, "Zorvex-ZR-ipv4-bgp-cfg", made->config);
        read_module(made->context, "Zorvex-ZR-ipv4-bgp-oper", made->operational);
        read_module(made->context, "openconfig-bgp", made->openconfig);
        return made;
    }();
    return *the_models;
}

const Schema *Schema::find_child(const char *child_tag, const char *child_ns) const
{
    if (child_tag == nullptr || (child_ns != nullptr && child_ns != ns && std::strcmp(child_ns, ns) != 0))
        return nullptr;
    const auto found = places.find(child_tag);
    return found != places.end() ? &children[found->second] : nullptr;
}

const Schema *Models::find_root(const char *ns) const
{
    for (const Schema *root : {&config, &operational, &openconfig})
        if (ns != nullptr && std::strcmp(ns, root->ns) == 0) return root;
    return nullptr;
}

// ---- Values ---------------------------------------------------------------------------------

// The length of the character that begins the text; 0 if XML has none of it. Control characters cannot even be written
// as references.
static size_t character_length(std::string_view text)
{
    constexpr int longest = 4;
    int length = text.size() < longest ? static_cast<int>(text.size()) : longest;
    const int character = xmlGetUTF8Char(reinterpret_cast<const unsigned char *>(text.data()), &length);
    if (character < 0 || !xmlIsCharQ(character)) return 0;
    xmlChar shortest[longest + 1];
    return xmlCopyCharMultiByte(shortest, character) == length ? static_cast<size_t>(length) : 0;
}

static bool is_xml_text(std::string_view text)
{
    while (!text.empty()) {
        const size_t length = character_length(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

static std::optional<std::string> canonical_by_type(const Schema &terminal, std::string_view value, std::string *why)
{
    if (!is_xml_text(value)) {
        if (why != nullptr) *why = "a value with a character that XML does not have";
        return std::nullopt;
    }
    const ly_ctx *context = models().context;
    const char *canonical = nullptr;
    if (lyd_value_validate(context, terminal.compiled, value.data(), value.size(), nullptr, nullptr, &canonical) !=
        LY_SUCCESS) {
        if (why != nullptr) *why = ly_errmsg(context);
        return std::nullopt;
    }
    std::string text = canonical;
    lydict_remove(context, canonical);
    return text;
}

// Entries of a list are alike: most values are those that the leaf had in the entry before.
std::optional<std::string> canonical_value(const Schema &terminal, std::string_view value, std::string *why)
{
    struct Last {
        std::string value, canonical;
    };
    thread_local std::unordered_map<const Schema *, Last> last_of;
    if (const auto last = last_of.find(&terminal); last != last_of.end() && last->second.value == value)
        return last->second.canonical;
    std::optional<std::string> canonical = canonical_by_type(terminal, value, why);
    if (canonical) last_of[&terminal] = {std::string(value), *canonical};
    return canonical;
}

}  // namespace router
