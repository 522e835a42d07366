#include "response_walk.h"

#include "frame.h"
#include "kind.h"
#include "node.h"

static uint32_t refuse_corrupt(MapContext *ctx, const At &at)
{
    VMF_ERR(ctx, at, "Failed to get subtrees!");
    return VMF_RC_BAD_TREE;
}

// ---- Children -------------------------------------------------------------------------------

static const ResponseChild *find_child(const MapContext *ctx, const char *tag, std::span<const ResponseChild> known,
                                       const ResponseRules &rules)
{
    if (rules.only_for_gets && !is_get(ctx)) return nullptr;
    for (const ResponseChild &child : known)
        if (vmf_map_do_these_match(tag, child.tag) != 0) return &child;
    return nullptr;
}

enum class Then : uint8_t { next, leave };

struct Step {
    uint32_t outcome;
    Then then;
};

// The value is read without a look at its presence bit; null is no name.
static bool is_default_instance(const Datatree *name)
{
    return name->value != nullptr && vmf_map_do_these_match(name->value, "default") != 0;
}

static void say_family_is_left(MapContext *ctx, FamilyLine line, const At &at)
{
    if (line == FamilyLine::names_it)
        VMF_TRC(ctx, at, "Unsupported af-name %s. Skipping it.", shown(ctx->af_name));
    else
        VMF_TRC(ctx, at, "Unsupported af-name. Skipping it.");
}

static Step step_into(MapContext *ctx, Datatree *child, Datatree *mapped, const ResponseChild &known, FamilyLine line,
                      const At &at)
{
    if (known.role == Role::instance_name && !is_default_instance(child)) {
        VMF_TRC(ctx, at, "Ignoring non-default instance.");
        return {VMF_RC_OK, Then::leave};
    }
    if (known.role == Role::family_name) ctx->af_mapped = 0;
    const uint32_t outcome = known.step(ctx, child, mapped);
    if (known.role == Role::family_name && ctx->af_mapped == 0) {
        say_family_is_left(ctx, line, at);
        return {outcome, Then::leave};
    }
    return {outcome, outcome != VMF_RC_OK ? Then::leave : Then::next};
}

static uint32_t walk_children(MapContext *ctx, Children children, Datatree *mapped,
                              std::span<const ResponseChild> known, const ResponseRules &rules, FamilyLine line,
                              const At &at)
{
    for (int32_t i = 0; i < children.count; i++) {
        Datatree *child = &children.first[i];
        const char *tag = tag_of(child);
        if (tag == nullptr) {
            VMF_ERR(ctx, at, "Tag name is not available!");
            return VMF_RC_BAD_TREE;
        }
        VMF_TRC(ctx, at, "Processing tag '%s'", tag);
        const ResponseChild *found = find_child(ctx, tag, known, rules);
        if (found == nullptr) {
            VMF_TRC(ctx, at, "Unsupported tag. Ignoring.");
            continue;
        }
        const Step step = step_into(ctx, child, mapped, *found, line, at);
        if (step.then == Then::leave) return step.outcome;
    }
    return VMF_RC_OK;
}

// ---- Containers and lists -------------------------------------------------------------------

static uint32_t map_container(MapContext *ctx, Datatree *tree, Datatree *mapped, const ResponseContainer &rule,
                              const ResponseRules &rules, const At &at)
{
    if (is_corrupt(tree)) return refuse_corrupt(ctx, at);
    const Children children = children_of(tree);  // none: the handler may write an empty container
    if (uint32_t bad = rule.handler(ctx, tree, children.count, mapped)) return bad;
    return walk_children(ctx, children, mapped, rule.children, rules, FamilyLine::plain, at);
}

uint32_t walk_response_container(MapContext *ctx, Datatree *tree, Datatree *mapped, const ResponseContainer &rule,
                                 const ResponseRules &rules, const At &at)
{
    if (uint32_t bad = enter(ctx, tree, mapped, at)) return bad;
    return log_end(ctx, map_container(ctx, tree, mapped, rule, rules, at), at);
}

static uint32_t meet_childless_entry(MapContext *ctx, const ResponseList &rule, const ResponseRules &rules,
                                     const At &at)
{
    if (!rules.refuses_childless_entries || rule.childless == Childless::passes) return VMF_RC_OK;
    VMF_ERR(ctx, at, "No keys specified with a list node.");
    ctx->request->rejected_tag = vmf_strdup(rule.tag, "VMF MAP");
    return VMF_RC_BAD_KEY;
}

static uint32_t map_entry(MapContext *ctx, Datatree *tree, Datatree *mapped, const ResponseList &rule,
                          const ResponseRules &rules, const At &at)
{
    if (is_corrupt(tree)) return refuse_corrupt(ctx, at);
    const Children children = children_of(tree);
    if (children.count == 0) return meet_childless_entry(ctx, rule, rules, at);
    if (rule.schema_path != nullptr)
        if (uint32_t bad = vmf_map_update_current_list_node(ctx, rule.schema_path, children.count)) return bad;
    return walk_children(ctx, children, mapped, rule.children, rules, rule.family_line, at);
}

uint32_t walk_response_list(MapContext *ctx, Datatree *tree, Datatree *mapped, const ResponseList &rule,
                            const ResponseRules &rules, const At &at)
{
    if (uint32_t bad = enter(ctx, tree, mapped, at)) return bad;
    return log_end(ctx, map_entry(ctx, tree, mapped, rule, rules, at), at);
}
