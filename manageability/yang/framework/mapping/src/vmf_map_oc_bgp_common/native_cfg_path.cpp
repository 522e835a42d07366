// Paths of the native configuration model. A handler names only the place that it means; here stand the levels above
// it that the native model needs: the root, the one instance "default", and the AS levels with their numbers.
#include <cstdio>
#include <cstring>

#include "frame.h"
#include "native_path.h"
#include "native_paths.h"
#include "node.h"
#include "outcome.h"
#include "vmf_map_oc_bgp.h"
#include "vmf_map_trace.h"

extern "C" uint32_t add_zr_cfg_bgp_one_node(MapContext *ctx, Datatree *parent, const char *tag, const char *value,
                                            const Datatree *operation_source, Datatree **result)
{
    if (uint32_t bad = enter_service(ctx, here(), parent, tag)) return bad;
    VMF_TRC(ctx, here(), "Processing '%s'", tag);
    return log_end(ctx,
                   vmf_map_datatree_add_subtree(ctx, parent, tag, ZR_BGP_CFG_NS, value, operation_source, result, 0));
}

extern "C" uint32_t add_zr_cfg_bgp_path(MapContext *ctx, Datatree *parent, const char *path, const char *value,
                                        const Datatree *operation_source, Datatree **result)
{
    if (uint32_t bad = enter_service(ctx, here(), parent, path)) return bad;
    const size_t length = std::strlen(path);
    if (length != 0 && (path[0] == '/' || path[length - 1] == '/')) {
        VMF_ERR(ctx, here(), "The path '%s' cannot start or end with '/'", path);
        return VMF_RC_BAD_ARGS;
    }
    VMF_TRC(ctx, here(), "Processing '%s'", path);
    return log_end(ctx,
                   vmf_map_datatree_add_path(ctx, parent, path, ZR_BGP_CFG_NS, value, operation_source, result, 0));
}

// The mapping knows one native instance, and its name is fixed.
static uint32_t add_instance(MapContext *ctx, Datatree *out, Datatree **instance)
{
    Datatree *bgp = nullptr;
    if (uint32_t bad = add_zr_cfg_bgp_one_node(ctx, out, "bgp", nullptr, nullptr, &bgp)) return bad;
    if (uint32_t bad = add_zr_cfg_bgp_one_node(ctx, bgp, "instance", nullptr, nullptr, instance)) return bad;
    return add_zr_cfg_bgp_one_node(ctx, *instance, "instance-name", "default", nullptr, nullptr);
}

extern "C" uint32_t get_zr_cfg_bgp_instance(MapContext *ctx, Datatree *out, Datatree **instance)
{
    log_start(ctx);
    if (instance == nullptr) {
        VMF_ERR(ctx, here(), "NULL subtree pointer passed!");
        return VMF_RC_BAD_ARGS;
    }
    Datatree *added = nullptr;
    if (uint32_t bad = add_instance(ctx, out, &added)) return log_end(ctx, bad);
    if (added == nullptr || !has_subtrees(added)) {
        VMF_ERR(ctx, here(), "Invalid output datatree passed!");
        return log_end(ctx, VMF_RC_BAD_TREE);
    }
    *instance = added;
    return log_end(ctx, VMF_RC_OK);
}

// ---- Reserved paths -------------------------------------------------------------------------

enum class Reserved { none, instance, as, four_byte_as, bgp_running };

static Reserved reserved_path(const char *path)
{
    if (vmf_map_do_these_match(path, ZR_BGP_INSTANCE) != 0) return Reserved::instance;
    if (vmf_map_do_these_match(path, ZR_BGP_AS) != 0) return Reserved::as;
    if (vmf_map_do_these_match(path, ZR_BGP_FOUR_BYTE_AS "/as") != 0) return Reserved::four_byte_as;
    if (vmf_map_do_these_match(path, ZR_BGP_FOUR_BYTE_AS "/bgp-running") != 0) return Reserved::bgp_running;
    return Reserved::none;
}

// An AS number is written in a fixed way: "0" to the high half whatever the caller gives, the number to the low half.
static uint32_t add_reserved(MapContext *ctx, Datatree *out, Reserved reserved, const char *value,
                             const Datatree *operation_source)
{
    Datatree *instance = nullptr;
    if (uint32_t bad = get_zr_cfg_bgp_instance(ctx, out, &instance)) return bad;
    switch (reserved) {
    case Reserved::as:
        return add_zr_cfg_bgp_path(ctx, instance, "instance-as/as", value != nullptr ? "0" : nullptr, operation_source,
                                   nullptr);
    case Reserved::four_byte_as:
        return add_zr_cfg_bgp_path(ctx, instance, "instance-as/four-byte-as/as", value, operation_source, nullptr);
    case Reserved::bgp_running:  // an empty leaf: present or absent
        return add_zr_cfg_bgp_path(ctx, instance, "instance-as/four-byte-as/bgp-running", nullptr, operation_source,
                                   nullptr);
    case Reserved::instance: copy_operation(instance, operation_source); break;
    case Reserved::none: break;
    }
    return VMF_RC_OK;
}

// ---- The common path, down to four-byte-as --------------------------------------------------

struct AsLevels {
    bool as_found;
    Datatree *four_byte_as;
};

static Datatree *last_child(const Datatree *parent, const char *tag)
{
    const Children children = children_of(parent);
    for (int32_t i = children.count; i-- > 0;) {
        if (std::strcmp(tag_of(&children.first[i]), tag) == 0) return &children.first[i];
    }
    return nullptr;
}

// What stands under `instance-as` by now. A later `four-byte-as` replaces an earlier one.
static uint32_t scan_as_levels(MapContext *ctx, const Datatree *instance_as, AsLevels *levels, const At &at)
{
    const Children children = children_of(instance_as);
    for (int32_t i = 0; i < children.count; i++) {
        const char *tag = tag_of(&children.first[i]);
        if (tag == nullptr) {
            VMF_ERR(ctx, at, "Invalid output datatree passed!");
            return VMF_RC_BAD_TREE;
        }
        if (std::strcmp(tag, "as") == 0) levels->as_found = true;
        if (std::strcmp(tag, "four-byte-as") == 0) levels->four_byte_as = &children.first[i];
    }
    return VMF_RC_OK;
}

// The first `instance-as`. A child without a tag ends the search, and the outcome says so.
static uint32_t find_instance_as(MapContext *ctx, const Datatree *instance, Datatree **instance_as, const At &at)
{
    const Children children = children_of(instance);
    for (int32_t i = 0; i < children.count; i++) {
        const char *tag = tag_of(&children.first[i]);
        if (tag == nullptr) {
            VMF_ERR(ctx, at, "Invalid output datatree passed!");
            return VMF_RC_BAD_TREE;
        }
        if (std::strcmp(tag, "instance-as") == 0) {
            *instance_as = &children.first[i];
            break;
        }
    }
    return VMF_RC_OK;
}

static uint32_t add_as(MapContext *ctx, Datatree *parent, uint32_t number)
{
    char text[11];
    std::snprintf(text, sizeof text, "%u", number);
    return add_zr_cfg_bgp_one_node(ctx, parent, "as", text, nullptr, nullptr);
}

static Datatree *add_four_byte_as(MapContext *ctx, Datatree *instance_as, const At &at)
{
    VMF_TRC(ctx, at, "'four-byte-as' not found so create it.");
    Datatree *four_byte_as = nullptr;
    if (add_zr_cfg_bgp_one_node(ctx, instance_as, "four-byte-as", nullptr, nullptr, &four_byte_as) != VMF_RC_OK)
        return nullptr;
    return four_byte_as;
}

// The AS is known. None of these adds counts: a path fails only for want of a `four-byte-as`.
static Datatree *add_known_as(MapContext *ctx, Datatree *instance_as, Datatree *four_byte_as, uint32_t as_high,
                              uint32_t as_low, const At &at)
{
    VMF_TRC(ctx, at, "Now setting the obtained AS number");
    if (add_as(ctx, instance_as, as_high) != VMF_RC_OK) return four_byte_as;
    // A sibling that was held before the add may have moved with its array.
    four_byte_as =
        four_byte_as != nullptr ? last_child(instance_as, "four-byte-as") : add_four_byte_as(ctx, instance_as, at);
    if (four_byte_as != nullptr && add_as(ctx, four_byte_as, as_low) == VMF_RC_OK) ctx->as_written = 1;
    return four_byte_as;
}

// No AS is known. The levels are made all the same, without numbers: the path below them can stand.
static Datatree *add_unknown_as(MapContext *ctx, Datatree *instance_as, const At &at)
{
    if (add_zr_cfg_bgp_one_node(ctx, instance_as, "as", nullptr, nullptr, nullptr) != VMF_RC_OK) return nullptr;
    Datatree *four_byte_as = add_four_byte_as(ctx, instance_as, at);
    if (four_byte_as == nullptr) return nullptr;
    VMF_TRC(ctx, at, "Adding 'as' under 'four-byte-as.");
    dropped(add_zr_cfg_bgp_one_node(ctx, four_byte_as, "as", nullptr, nullptr, nullptr));
    return four_byte_as;
}

// Finds or makes the levels from `bgp` to `four-byte-as`. An outcome of 0 may come with no `four-byte-as`.
static uint32_t common_path(MapContext *ctx, Datatree *out, Datatree **four_byte_as, const At &at)
{
    Datatree *instance = nullptr;
    if (uint32_t bad = add_instance(ctx, out, &instance)) return bad;
    if (instance == nullptr || children_of(instance).count == 0 || is_corrupt(instance)) {
        VMF_ERR(ctx, at, "Invalid output datatree passed!");
        return VMF_RC_BAD_TREE;
    }

    Datatree *instance_as = nullptr;
    uint32_t outcome = find_instance_as(ctx, instance, &instance_as, at);
    AsLevels levels = {};
    if (instance_as == nullptr) {
        VMF_TRC(ctx, at, "'instance-as' not found so create it.");
        // On purpose: an add that succeeds makes a child without a tag forgotten.
        outcome = add_zr_cfg_bgp_one_node(ctx, instance, "instance-as", nullptr, nullptr, &instance_as);
    } else {
        if (has_subtrees(instance_as) && (children_of(instance_as).count == 0 || is_corrupt(instance_as))) {
            VMF_ERR(ctx, at, "Invalid output datatree passed!");
            return VMF_RC_BAD_TREE;
        }
        if (uint32_t bad = scan_as_levels(ctx, instance_as, &levels, at)) return bad;
        if (levels.as_found && levels.four_byte_as != nullptr) {
            VMF_TRC(ctx, at, "'as' and 'four-byte-as' found under 'instance-as'.");
            *four_byte_as = levels.four_byte_as;
            return outcome;
        }
    }
    // On purpose: `as` without `four-byte-as` is not mended here, the caller is told.
    if (levels.as_found || outcome != VMF_RC_OK) return outcome;

    VMF_TRC(ctx, at, "AS number is not set so get it from sysdb.");
    uint32_t as_high = 0;
    uint32_t as_low = 0;
    if (get_zr_cfg_bgp_as_num_from_sysdb(ctx, &as_high, &as_low) == VMF_RC_OK)
        *four_byte_as = add_known_as(ctx, instance_as, levels.four_byte_as, as_high, as_low, at);
    else
        *four_byte_as = levels.four_byte_as != nullptr ? levels.four_byte_as : add_unknown_as(ctx, instance_as, at);
    return VMF_RC_OK;
}

static uint32_t add_absolute(MapContext *ctx, Datatree *tree, const PathAdd &given, const At &at)
{
    if (const Reserved reserved = reserved_path(given.path); reserved != Reserved::none)
        return add_reserved(ctx, tree, reserved, given.value, given.operation_source);

    constexpr size_t prefix = sizeof ZR_BGP_FOUR_BYTE_AS - 1;
    if (std::strncmp(given.path, ZR_BGP_FOUR_BYTE_AS, prefix) != 0) {
        VMF_ERR(ctx, at, "The passed path is not BGP CFG common path! (%s)", given.path);
        return VMF_RC_BAD_ARGS;
    }

    Datatree *four_byte_as = nullptr;
    uint32_t outcome = common_path(ctx, tree, &four_byte_as, at);
    if (outcome == VMF_RC_OK && four_byte_as == nullptr) outcome = VMF_RC_BAD_TREE;
    if (outcome != VMF_RC_OK) {
        VMF_ERR(ctx, at, "Failed to process common path!");
        return outcome;
    }
    if (given.path[prefix] == '\0') {
        copy_operation(four_byte_as, given.operation_source);
        if (given.result != nullptr) *given.result = four_byte_as;
        return VMF_RC_OK;
    }
    // The rest begins one character behind the prefix, whichever character that is.
    return add_below(ctx, four_byte_as, given.path + prefix + 1, given);
}

extern "C" uint32_t vmf_map_zr_bgp_cfg_add_path(MapContext *ctx, Datatree *tree, const char *path, const char *ns,
                                                const char *value, const Datatree *operation_source, Datatree **result,
                                                uint32_t repeat)
{
    if (uint32_t bad = enter_service(ctx, here(), tree, path, ns)) return bad;
    if (path[0] == '/')
        return log_end(ctx, add_absolute(ctx, tree, {path, ns, value, operation_source, result, repeat}, here()));
    // A relative path hangs from an entry that stands already: no level above it is supplied.
    VMF_TRC(ctx, here(), "Setting a relative path '%s' with '%s'", path, shown(value));
    return log_end(ctx, vmf_map_datatree_add_path_common(ctx, tree, path, ns, value, operation_source, result, repeat));
}
