#include "entry_spy.h"

#include <dlfcn.h>

#include <utility>

#include "vmf_map_oc_bgp.h"

static std::vector<EntryCall> &calls()
{
    static std::vector<EntryCall> all;
    return all;
}

std::vector<EntryCall> take_entry_calls() { return std::exchange(calls(), {}); }

std::vector<std::string> names_of(const std::vector<EntryCall> &calls)
{
    std::vector<std::string> names;
    for (const EntryCall &call : calls) names.push_back(call.entry);
    return names;
}

template<class Record>
static std::vector<unsigned char> bytes_of(const Record &record)
{
    const auto *bytes = reinterpret_cast<const unsigned char *>(&record);
    return {bytes, bytes + sizeof record};
}

static EntryCall seen(const char *entry, const MapContext *ctx, const Datatree *holder)
{
    return {.entry = entry,
            .kind = ctx->request->request_info->kind,
            .request = *ctx->request,
            .run_bytes = bytes_of(*ctx),
            .request_bytes = bytes_of(*ctx->request),
            .request_at = ctx->request,
            .holder = holder};
}

using ResponseEntry = uint32_t(MapContext *, Datatree *, Datatree *, Datatree *, int32_t *);

static uint32_t respond(const char *entry, const char *symbol, MapContext *ctx, Datatree *response,
                        Datatree *native_tree, Datatree *mapped, int32_t *skip_subtree)
{
    EntryCall call = seen(entry, ctx, mapped);
    call.skips = *skip_subtree;
    auto *real = reinterpret_cast<ResponseEntry *>(dlsym(RTLD_NEXT, symbol));
    call.outcome = real(ctx, response, native_tree, mapped, skip_subtree);
    call.skipped = *skip_subtree;
    calls().push_back(call);
    return call.outcome;
}

extern "C" {

uint32_t vmf_map_oc_bgp(MapContext *ctx, Datatree *node, Datatree *out)
{
    EntryCall call = seen("request", ctx, nullptr);
    auto *real = reinterpret_cast<uint32_t (*)(MapContext *, Datatree *, Datatree *)>(dlsym(RTLD_NEXT, __func__));
    call.outcome = real(ctx, node, out);
    calls().push_back(call);
    return call.outcome;
}

uint32_t vmf_map_zr_cfg_bgp_to_oc(MapContext *ctx, Datatree *response, Datatree *native_tree, Datatree *mapped,
                                  int32_t *skip_subtree)
{
    return respond("configuration", __func__, ctx, response, native_tree, mapped, skip_subtree);
}

uint32_t vmf_map_zr_opr_bgp_to_oc(MapContext *ctx, Datatree *response, Datatree *native_tree, Datatree *mapped,
                                  int32_t *skip_subtree)
{
    return respond("operational", __func__, ctx, response, native_tree, mapped, skip_subtree);
}

}  // extern "C"
