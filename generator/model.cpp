#include <libyang/libyang.h>

#include <memory>
#include <sstream>

#include "node.h"

namespace {

struct ContextDeleter {
    void operator()(ly_ctx *ctx) const { ly_ctx_destroy(ctx); }
};

const lysc_type *type_of(const lysc_node *node)
{
    const lysc_type *type = node->nodetype == LYS_LEAF ? reinterpret_cast<const lysc_node_leaf *>(node)->type
                                                       : reinterpret_cast<const lysc_node_leaflist *>(node)->type;
    while (type->basetype == LY_TYPE_LEAFREF) type = reinterpret_cast<const lysc_type_leafref *>(type)->realtype;
    return type;
}

std::string type_name(const lysc_node *node)
{
    switch (type_of(node)->basetype) {
    case LY_TYPE_BOOL: return "boolean";
    case LY_TYPE_DEC64: return "decimal64";
    case LY_TYPE_EMPTY: return "empty";
    case LY_TYPE_ENUM: return "enumeration";
    case LY_TYPE_IDENT: return "identityref";
    case LY_TYPE_STRING: return "string";
    case LY_TYPE_UNION: return "union";
    case LY_TYPE_UINT8: return "uint8";
    case LY_TYPE_UINT16: return "uint16";
    case LY_TYPE_UINT32: return "uint32";
    case LY_TYPE_UINT64: return "uint64";
    default: throw InputError(std::string("a type that the generator does not know, at ") + node->name);
    }
}

// A text of the model on one line, however it is broken there.
std::string on_one_line(const char *text)
{
    std::istringstream words(text != nullptr ? text : "");
    std::string line;
    for (std::string word; words >> word;) line += (line.empty() ? "" : " ") + word;
    return line;
}

size_t add_node(Model &model, const lysc_node *schema, const std::string &parent_path)
{
    const size_t place = model.size();
    Node node;
    node.tag = schema->name;
    node.path = parent_path + "/" + node.tag;
    node.config = (schema->flags & LYS_CONFIG_W) != 0;
    node.description = on_one_line(schema->dsc);
    switch (schema->nodetype) {
    case LYS_CONTAINER: node.kind = NodeKind::container; break;
    case LYS_LIST: node.kind = NodeKind::list; break;
    case LYS_LEAF: node.kind = NodeKind::leaf; break;
    case LYS_LEAFLIST: node.kind = NodeKind::leaf_list; break;
    default: throw InputError("a kind of node that the generator does not know: " + node.path);
    }
    if (node.is_leaf()) {
        node.type = type_name(schema);
        node.is_key = (schema->flags & LYS_KEY) != 0;
    }
    model.push_back(node);

    const std::string path = node.path;
    int keys = 0;
    for (const lysc_node *child = lysc_node_child(schema); child != nullptr; child = child->next) {
        const size_t child_place = add_node(model, child, path);
        model[place].children.push_back(child_place);
        if (!model[child_place].is_key) continue;
        keys++;
        model[place].key = keys == 1 ? model[child_place].tag : "";
    }
    return place;
}

}  // namespace

namespace {

// A module with the context that owns it.
struct Loaded {
    std::unique_ptr<ly_ctx, ContextDeleter> ctx;
    const lys_module *module;
};

Loaded load(const std::string &folder, const std::string &module_name)
{
    ly_ctx *raw = nullptr;
    if (ly_ctx_new(folder.c_str(), 0, &raw) != LY_SUCCESS) throw InputError("libyang does not start in " + folder);
    Loaded loaded = {std::unique_ptr<ly_ctx, ContextDeleter>(raw), nullptr};
    loaded.module = ly_ctx_load_module(raw, module_name.c_str(), nullptr, nullptr);
    if (loaded.module == nullptr) throw InputError("cannot read module " + module_name + ": " + ly_errmsg(raw));
    return loaded;
}

}  // namespace

Model read_model(const std::string &folder, const std::string &module_name)
{
    const Loaded loaded = load(folder, module_name);
    Model model;
    for (const lysc_node *top = loaded.module->compiled->data; top != nullptr; top = top->next)
        add_node(model, top, "");
    return model;
}

std::vector<std::string> read_identities(const std::string &folder, const std::string &module_name)
{
    const Loaded loaded = load(folder, module_name);
    std::vector<std::string> names;
    for (LY_ARRAY_COUNT_TYPE i = 0; i < LY_ARRAY_COUNT(loaded.module->identities); i++) {
        const lysc_ident &identity = loaded.module->identities[i];
        if (LY_ARRAY_COUNT(identity.derived) == 0) names.emplace_back(identity.name);  // a base is no value
    }
    return names;
}

const Node *find_node(const Model &model, const std::string &path)
{
    for (const Node &node : model)
        if (node.path == path) return &node;
    return nullptr;
}
