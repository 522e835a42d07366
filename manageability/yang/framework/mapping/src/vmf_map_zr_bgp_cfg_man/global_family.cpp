// The native `global-af`: an address family of the router. Settings that the native model keeps for each family fold
// into one leaf where OpenConfig has them once, if the families agree.
#include <cstring>

#include "../vmf_map_oc_bgp_common/response_forms.h"
#include "../vmf_map_oc_bgp_common/zr_handlers.h"

#define FAMILY_LEAF(path) ZR_CFG_LEAF(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_##path)
#define FAMILY_CONT(path) ZR_CFG_CONT(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_##path)
#define FAMILY_MAN_LEAF(path)                                                                                          \
    ZR_CFG_MAN_LEAF(_instance_instanceas_fourbyteas_defaultvrf_global_globalafs_globalaf_##path)

static bool is_family(const MapContext *ctx, const char *family)
{
    return ctx->af_key != nullptr && vmf_map_do_these_match(ctx->af_key, family) != 0;
}

// ---- af-name --------------------------------------------------------------------------------

// Whether the answer shall hold an entry of this family.
static bool is_wanted(const MapContext *ctx, uint32_t row)
{
    const RequestContext *request = ctx->request;
    if (request->multipath_named != 0) return false;
    return request->glb_af_filter == 0 || (request->glb_af_bitmap & uint32_t{1} << row) != 0;
}

// A failure is not reported here: what follows goes to the entry before.
static void make_entry(MapContext *ctx, Datatree *mapped, const char *native_name)
{
    Datatree *families = nullptr;
    Datatree *entry = nullptr;
    if (write_text(ctx, mapped, oc("/bgp/global/afi-safis"), nullptr, &families) != VMF_RC_OK) return;
    if (vmf_map_datatree_add_path(ctx, families, "afi-safi", OC_BGP_NS, nullptr, nullptr, &entry, 1) != VMF_RC_OK)
        return;
    ctx->list_node = entry;
    ctx->af_key = native_name;
}

static uint32_t name_entry(MapContext *ctx, Datatree *mapped, const char *name)
{
    RequestContext *request = ctx->request;
    uint32_t outcome = write_family_name(ctx, mapped, oc_list("afi-safi-name"), name, "afi-safi/afi-safi-name");
    if (request->key_leaf_named != 0 && request->glb_af_no_state != 0) {
        // The state of a family was asked for as a whole: its handlers have named the key on their way.
        request->key_leaf_named = 0;
        request->glb_af_no_state = 0;
    }
    if (wants_config(ctx) && request->glb_af_no_config == 0)
        outcome =
            write_family_name(ctx, mapped, oc_list("config/afi-safi-name"), name, "afi-safi/config/afi-safi-name");
    if (wants_state(ctx) && request->glb_af_no_state == 0)
        outcome = write_family_name(ctx, mapped, oc_list("state/afi-safi-name"), name, "afi-safi/state/afi-safi-name");
    return outcome;
}

static uint32_t map_name(MapContext *ctx, const char *native_name, Datatree *mapped)
{
    uint32_t outcome = VMF_RC_OK;
    uint32_t row = 0;
    for (const auto &names : oc_zr_af_names) {
        const uint32_t this_row = row++;
        if (native_name == nullptr || vmf_map_do_these_match(native_name, names[1]) == 0) continue;
        ctx->af_mapped = 1;
        if (!is_wanted(ctx, this_row)) {
            ctx->af_key = native_name;
            continue;
        }
        make_entry(ctx, mapped, native_name);
        outcome = name_entry(ctx, mapped, names[0]);
    }
    return outcome;
}

FAMILY_LEAF(afname)
{
    if (uint32_t bad = enter(ctx, node, mapped)) return bad;
    return log_end(ctx, map_name(ctx, value_of(node), mapped));
}

FAMILY_LEAF(enable)
{
    return family_switch(ctx, node, mapped, oc_family_copies(COPIES("", "/enabled")),
                         oc_family_copies(COPIES("", "/afi-safi-name")), &Ctx::af_key);
}

// ---- Distances ------------------------------------------------------------------------------

// A slot for each family and kind of distance. The order is not that of the tests below.
enum Family { ipv4_unicast = 0, ipv4_multicast = 2, ipv6_unicast = 4, ipv6_multicast = 6 };
enum Distance { external_distance = 0, internal_distance = 1 };

static bool is_set(const char *text) { return number_of(text) > 0; }

static bool are_same(const char *a, const char *b) { return std::strcmp(a, b) == 0; }

// The test is on texts: "20" and "020" differ.
static bool families_agree(const char *const *slots)
{
    return is_set(slots[ipv4_unicast]) && is_set(slots[ipv6_unicast]) &&
           are_same(slots[ipv4_unicast], slots[ipv6_unicast]) && is_set(slots[ipv4_multicast]) &&
           is_set(slots[ipv6_multicast]) && are_same(slots[ipv4_unicast], slots[ipv4_multicast]) &&
           are_same(slots[ipv4_unicast], slots[ipv6_multicast]);
}

static uint32_t fold_distance(MapContext *ctx, Datatree *node, Datatree *mapped, Distance distance,
                              const Copies &copies, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    const char *value = value_of(node);
    const char **slots = ctx->distance_texts + distance;
    if (is_family(ctx, "ipv4-unicast")) slots[ipv4_unicast] = value;
    if (is_family(ctx, "ipv4-multicast")) slots[ipv4_multicast] = value;
    if (is_family(ctx, "ipv6-unicast")) slots[ipv6_unicast] = value;
    if (is_family(ctx, "ipv6-multicast")) slots[ipv6_multicast] = value;
    // Families that disagree have no OpenConfig form.
    const uint32_t outcome = families_agree(slots) ? write_copies(ctx, mapped, copies, value) : uint32_t{VMF_RC_OK};
    return log_end(ctx, outcome, at);
}

// clang-format off
#define DISTANCE(leaf) oc_copies(COPIES("/bgp/global/default-route-distance/", "/" leaf))

FAMILY_MAN_LEAF(distance_externalroutes) { return fold_distance(ctx, node, mapped, external_distance, DISTANCE("external-route-distance")); }
FAMILY_MAN_LEAF(distance_internalroutes) { return fold_distance(ctx, node, mapped, internal_distance, DISTANCE("internal-route-distance")); }
// clang-format on

// ---- Multiple paths -------------------------------------------------------------------------

static uint32_t paths_container(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    uint32_t outcome = VMF_RC_OK;
    if (wants_state(ctx) && ctx->request->multipath_named == 0)
        outcome = write_text(ctx, mapped, oc_family("use-multiple-paths/state/enabled"), "true");
    return log_end(ctx, outcome, at);
}

FAMILY_CONT(ebgp) { return paths_container(ctx, node, mapped); }
FAMILY_CONT(ibgp) { return paths_container(ctx, node, mapped); }

struct PathFold {
    uint32_t Ctx::*count;
    const char *(Ctx::*texts)[4];
    const char *config, *state;  // of a family and of the router alike, below `afi-safi` and `global`
};

static constexpr PathFold external = {&Ctx::ebgp_paths_count, &Ctx::ebgp_path_texts,
                                      COPIES("use-multiple-paths/ebgp/", "/maximum-paths")};
static constexpr PathFold internal = {&Ctx::ibgp_paths_count, &Ctx::ibgp_path_texts,
                                      COPIES("use-multiple-paths/ibgp/", "/maximum-paths")};

static bool match(const char *a, const char *b)
{
    return a != nullptr && b != nullptr && vmf_map_do_these_match(a, b) != 0;
}

// Takes the value of one more family. True at the fourth, if all four agree.
static bool completes_fold(MapContext *ctx, const PathFold &fold, const char *value)
{
    if (ctx->request->global_afisafis_named != 0) return false;
    if (!is_family(ctx, "ipv4-unicast") && !is_family(ctx, "ipv4-multicast") && !is_family(ctx, "ipv6-multicast") &&
        !is_family(ctx, "ipv6-unicast"))
        return false;
    const char **texts = ctx->*fold.texts;
    if (ctx->*fold.count < 4) texts[ctx->*fold.count] = value;
    ctx->*fold.count += 1;
    return ctx->*fold.count == 4 && match(texts[0], texts[1]) && match(texts[1], texts[2]) && match(texts[2], texts[3]);
}

static uint32_t write_below(MapContext *ctx, Datatree *parent, const char *path, const char *text)
{
    return vmf_map_datatree_add_path(ctx, parent, path, OC_BGP_NS, text, nullptr, nullptr, 0);
}

static uint32_t write_config_paths(MapContext *ctx, Datatree *mapped, const PathFold &fold, const char *value,
                                   bool is_complete)
{
    uint32_t outcome = VMF_RC_OK;
    if (ctx->request->multipath_named == 0) outcome = write_text(ctx, mapped, oc_family(fold.config), value);
    if (!is_complete) return outcome;
    Datatree *global = nullptr;
    if (uint32_t bad = write_text(ctx, mapped, oc("/bgp/global"), nullptr, &global)) return bad;
    return write_below(ctx, global, fold.config, value);
}

// `outcome` is what the configuration came to; it stands if nothing is written here.
static uint32_t write_state_paths(MapContext *ctx, Datatree *mapped, const PathFold &fold, const char *value,
                                  bool is_complete, uint32_t outcome)
{
    const RequestContext *request = ctx->request;
    if (request->multipath_named == 0 && request->af_multipath_state_named == 0)
        outcome = write_text(ctx, mapped, oc_family(fold.state), value);
    if (!is_complete) return outcome;
    Datatree *global = nullptr;
    if (uint32_t bad = write_text(ctx, mapped, oc("/bgp/global"), nullptr, &global)) return bad;
    if (request->multipath_state_named == 0)
        if (uint32_t bad = write_below(ctx, global, fold.state, value)) return bad;
    return write_below(ctx, global, "use-multiple-paths/state/enabled", "true");
}

static uint32_t fold_paths(MapContext *ctx, Datatree *node, Datatree *mapped, const PathFold &fold,
                           const At &at = here())
{
    if (uint32_t bad = enter(ctx, node, mapped, at)) return bad;
    const char *value = value_of(node);
    const bool is_complete = completes_fold(ctx, fold, value);
    uint32_t outcome = VMF_RC_OK;
    if (wants_config(ctx)) outcome = write_config_paths(ctx, mapped, fold, value, is_complete);
    if (wants_state(ctx)) outcome = write_state_paths(ctx, mapped, fold, value, is_complete, outcome);
    return log_end(ctx, outcome, at);
}

FAMILY_LEAF(ebgp_pathsvalue) { return fold_paths(ctx, node, mapped, external); }
FAMILY_LEAF(ibgp_pathsvalue) { return fold_paths(ctx, node, mapped, internal); }
