#include "probe.h"

#include <dlfcn.h>

#include "vmf_map_platform.h"
#include "vmf_map_zr_bgp_cfg_handlers.h"
#include "vmf_map_zr_bgp_oper_handlers.h"

namespace response {

static thread_local Probe *probe = nullptr;
static thread_local int emptying = 0;

Probe::Probe() { probe = this; }
Probe::~Probe() { probe = nullptr; }

// The function of that name that stands behind this program's.
template<class Function>
static Function *next(Function * /*its type*/, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}
#define NEXT(function)                                                                                                 \
    [] {                                                                                                               \
        static auto *const library = next(&function, #function);                                                       \
        return library;                                                                                                \
    }()

// True if the handler is not to be run; then with its outcome.
static bool visited(Visit visit, MapContext *ctx, uint32_t &outcome)
{
    if (probe == nullptr) return false;
    if (ctx != nullptr) {
        visit.af_node = ctx->af_node;
        visit.af_mapped = ctx->af_mapped;
    }
    probe->visits.push_back(visit);
    if (probe->on_visit) probe->on_visit(visit, *ctx);
    const auto found = probe->outcomes.find(visit.handler);
    outcome = found != probe->outcomes.end() ? found->second : VMF_RC_OK;
    return !probe->hands_on || outcome != VMF_RC_OK;
}

}  // namespace response

using namespace response;

// ---- Handlers -------------------------------------------------------------------------------

#define CONTAINER(path)                                                                                                \
    extern "C" uint32_t vmf_map_cont_zr_bgp_##path(MapContext *ctx, Datatree *node, int32_t children, Datatree *out)   \
    {                                                                                                                  \
        uint32_t outcome = 0;                                                                                          \
        if (visited({__func__, node, children, out, nullptr, 0}, ctx, outcome)) return outcome;                        \
        return NEXT(vmf_map_cont_zr_bgp_##path)(ctx, node, children, out);                                             \
    }
#define LEAF(path)                                                                                                     \
    extern "C" uint32_t vmf_map_leaf_zr_bgp_##path(MapContext *ctx, Datatree *node, Datatree *out)                     \
    {                                                                                                                  \
        uint32_t outcome = 0;                                                                                          \
        if (visited({__func__, node, -1, out, nullptr, 0}, ctx, outcome)) return outcome;                              \
        return NEXT(vmf_map_leaf_zr_bgp_##path)(ctx, node, out);                                                       \
    }

CONTAINER(cfg_bgp)
LEAF(cfg_bgp_instance_instancename)
LEAF(cfg_bgp_instance_instanceas_as)
LEAF(cfg_bgp_instance_instanceas_fourbyteas_as)

#define VRF_CONTAINER(path) CONTAINER(cfg_bgp_instance_instanceas_fourbyteas_defaultvrf##path)
#define VRF_LEAF(path) LEAF(cfg_bgp_instance_instanceas_fourbyteas_defaultvrf##path)
VRF_CONTAINER()
VRF_CONTAINER(_bgpentity)

VRF_CONTAINER(_global)
VRF_LEAF(_global_gracefulrestart)
VRF_LEAF(_global_routerid)
VRF_LEAF(_global_bestpathaigpignore)
VRF_LEAF(_global_bestpathaspathlength)
VRF_LEAF(_global_gracefulrestarttime)
VRF_LEAF(_global_gracefulrestartstalepathtime)
VRF_LEAF(_global_bestpathmedalways)
VRF_LEAF(_global_bestpathrouterid)
VRF_CONTAINER(_global_confederationdomain)
VRF_LEAF(_global_confederationdomain_asxx)
VRF_LEAF(_global_confederationdomain_asyy)
VRF_CONTAINER(_global_confederationpeerases)
VRF_LEAF(_global_confederationpeerases_confederationpeeras_asxx)
VRF_LEAF(_global_confederationpeerases_confederationpeeras_asyy)
VRF_CONTAINER(_global_globalafs)
VRF_LEAF(_global_globalafs_globalaf_afname)
VRF_LEAF(_global_globalafs_globalaf_enable)
VRF_CONTAINER(_global_globalafs_globalaf_distance)
VRF_LEAF(_global_globalafs_globalaf_distance_externalroutes)
VRF_LEAF(_global_globalafs_globalaf_distance_internalroutes)
VRF_CONTAINER(_global_globalafs_globalaf_ebgp)
VRF_LEAF(_global_globalafs_globalaf_ebgp_pathsvalue)
VRF_CONTAINER(_global_globalafs_globalaf_ibgp)
VRF_LEAF(_global_globalafs_globalaf_ibgp_pathsvalue)

// Neighbors and groups have the same nodes, but for the key and the group's member.
#define ENTRY(e, afs, af)                                                                                              \
    VRF_LEAF(e##_updatesourceinterface)                                                                                \
    VRF_LEAF(e##_neighborgracefulrestartstalepathtime)                                                                 \
    VRF_LEAF(e##_description)                                                                                          \
    VRF_LEAF(e##_neighborgracefulrestart)                                                                              \
    VRF_LEAF(e##_sessionopenmode)                                                                                      \
    VRF_LEAF(e##_neighborgracefulrestarttime)                                                                          \
    VRF_CONTAINER(e##_##afs)                                                                                           \
    VRF_LEAF(e##_##afs##_##af##_afname)                                                                                \
    VRF_LEAF(e##_##afs##_##af##_multipath)                                                                             \
    VRF_LEAF(e##_##afs##_##af##_activate)                                                                              \
    VRF_LEAF(e##_##afs##_##af##_routepolicyin)                                                                         \
    VRF_LEAF(e##_##afs##_##af##_routepolicyout)                                                                        \
    VRF_CONTAINER(e##_##afs##_##af##_maximumprefixes)                                                                  \
    VRF_LEAF(e##_##afs##_##af##_maximumprefixes_prefixlimit)                                                           \
    VRF_LEAF(e##_##afs##_##af##_maximumprefixes_warningpercentage)                                                     \
    VRF_CONTAINER(e##_##afs##_##af##_defaultoriginate)                                                                 \
    VRF_LEAF(e##_##afs##_##af##_defaultoriginate_enable)                                                               \
    VRF_CONTAINER(e##_localaddress)                                                                                    \
    VRF_LEAF(e##_localaddress_localaddressdisable)                                                                     \
    VRF_LEAF(e##_localaddress_localipaddress)                                                                          \
    VRF_CONTAINER(e##_ebgpmultihop)                                                                                    \
    VRF_LEAF(e##_ebgpmultihop_maxhopcount)                                                                             \
    VRF_LEAF(e##_ebgpmultihop_mplsdeactivation)                                                                        \
    VRF_CONTAINER(e##_remoteas)                                                                                        \
    VRF_LEAF(e##_remoteas_asxx)                                                                                        \
    VRF_LEAF(e##_remoteas_asyy)                                                                                        \
    VRF_CONTAINER(e##_localas)                                                                                         \
    VRF_LEAF(e##_localas_asxx)                                                                                         \
    VRF_LEAF(e##_localas_asyy)                                                                                         \
    VRF_CONTAINER(e##_password)                                                                                        \
    VRF_LEAF(e##_password_passworddisable)                                                                             \
    VRF_LEAF(e##_password_password)                                                                                    \
    VRF_CONTAINER(e##_advertisementinterval)                                                                           \
    VRF_LEAF(e##_advertisementinterval_minimuminterval)                                                                \
    VRF_CONTAINER(e##_neighborclusterid)                                                                               \
    VRF_LEAF(e##_neighborclusterid_clusteridnumber)                                                                    \
    VRF_LEAF(e##_neighborclusterid_clusteridaddress)                                                                   \
    VRF_CONTAINER(e##_tcpmss)                                                                                          \
    VRF_LEAF(e##_tcpmss_mss)                                                                                           \
    VRF_CONTAINER(e##_timers)                                                                                          \
    VRF_LEAF(e##_timers_keepaliveinterval)                                                                             \
    VRF_LEAF(e##_timers_holdtime)

VRF_CONTAINER(_bgpentity_neighbors)
VRF_LEAF(_bgpentity_neighbors_neighbor_neighboraddress)
VRF_LEAF(_bgpentity_neighbors_neighbor_neighborgroupaddmember)
ENTRY(_bgpentity_neighbors_neighbor, neighborafs, neighboraf)
VRF_CONTAINER(_bgpentity_neighborgroups)
VRF_LEAF(_bgpentity_neighborgroups_neighborgroup_neighborgroupname)
ENTRY(_bgpentity_neighborgroups_neighborgroup, neighborgroupafs, neighborgroupaf)

CONTAINER(oper_bgp)
CONTAINER(oper_bgp_instances)
LEAF(oper_bgp_instances_instance_instancename)
CONTAINER(oper_bgp_instances_instance_instanceactive)

#define ACTIVE_CONTAINER(path) CONTAINER(oper_bgp_instances_instance_instanceactive_defaultvrf##path)
#define ACTIVE_LEAF(path) LEAF(oper_bgp_instances_instance_instanceactive_defaultvrf##path)
ACTIVE_CONTAINER()
ACTIVE_CONTAINER(_afs)
ACTIVE_LEAF(_afs_af_afname)
ACTIVE_CONTAINER(_afs_af_globalafprocessinfo)
ACTIVE_CONTAINER(_afs_af_globalafprocessinfo_global)
ACTIVE_LEAF(_afs_af_globalafprocessinfo_global_scanprefixes)
ACTIVE_CONTAINER(_afs_af_afprocessinfo)
ACTIVE_CONTAINER(_afs_af_afprocessinfo_global)
ACTIVE_LEAF(_afs_af_afprocessinfo_global_pathsnum)

ACTIVE_CONTAINER(_neighbors)
#define PEER_CONTAINER(path) ACTIVE_CONTAINER(_neighbors_neighbor_##path)
#define PEER_LEAF(path) ACTIVE_LEAF(_neighbors_neighbor_##path)
PEER_LEAF(neighboraddress)
PEER_LEAF(messagesqueuedin)
PEER_LEAF(messagesqueuedout)
PEER_LEAF(connectionstate)
PEER_LEAF(connectionlocalport)
PEER_LEAF(connectionremoteport)
PEER_LEAF(isrouterefreshcapabilityreceived)
PEER_LEAF(isgraware)
PEER_LEAF(is4byteascapabilityreceived)
PEER_LEAF(is4byteascapabilitysent)
PEER_LEAF(multiprotocolcapabilityreceived)
PEER_LEAF(holdtime)
PEER_LEAF(gracefulrestartenablednbr)
PEER_LEAF(grrestarttime)
PEER_LEAF(afdata_afname)
PEER_LEAF(afdata_isneighborafcapable)
PEER_LEAF(afdata_prefixesaccepted)
PEER_LEAF(afdata_prefixesadvertised)
PEER_CONTAINER(connectionremoteaddress)
PEER_LEAF(connectionremoteaddress_ipv4address)
PEER_LEAF(connectionremoteaddress_ipv4mcastaddress)
PEER_LEAF(connectionremoteaddress_ipv4labeladdress)
PEER_LEAF(connectionremoteaddress_ipv4vpnaddress)
PEER_LEAF(connectionremoteaddress_ipv4vpnamcastddress)
PEER_LEAF(connectionremoteaddress_ipv6address)
PEER_LEAF(connectionremoteaddress_ipv6mcastaddress)
PEER_LEAF(connectionremoteaddress_ipv6labeladdress)
PEER_LEAF(connectionremoteaddress_ipv6vpnaddress)
PEER_LEAF(connectionremoteaddress_ipv6vpnmcastaddress)
PEER_CONTAINER(messagestatistics)
PEER_CONTAINER(messagestatistics_notification)
PEER_CONTAINER(messagestatistics_notification_tx)
PEER_LEAF(messagestatistics_notification_tx_count)
PEER_CONTAINER(messagestatistics_notification_rx)
PEER_LEAF(messagestatistics_notification_rx_count)
PEER_CONTAINER(messagestatistics_update)
PEER_CONTAINER(messagestatistics_update_tx)
PEER_LEAF(messagestatistics_update_tx_count)
PEER_CONTAINER(messagestatistics_update_rx)
PEER_LEAF(messagestatistics_update_rx_count)

extern "C" {

// ---- Walks ----------------------------------------------------------------------------------

uint32_t vmf_map_zr_bgp_cfg_bgp(MapContext *ctx, Datatree *tree, Datatree *mapped)
{
    if (probe != nullptr && probe->walk) return probe->walk(*ctx, *tree, *mapped);
    return NEXT(vmf_map_zr_bgp_cfg_bgp)(ctx, tree, mapped);
}

uint32_t vmf_map_zr_bgp_oper_bgp(MapContext *ctx, Datatree *tree, Datatree *mapped)
{
    if (probe != nullptr && probe->walk) return probe->walk(*ctx, *tree, *mapped);
    return NEXT(vmf_map_zr_bgp_oper_bgp)(ctx, tree, mapped);
}

// ---- Platform -------------------------------------------------------------------------------

uint32_t vmf_map_update_current_list_node(MapContext *ctx, const char *schema_path, int32_t child_count)
{
    if (probe != nullptr) probe->entered.push_back({schema_path, child_count});
    return NEXT(vmf_map_update_current_list_node)(ctx, schema_path, child_count);
}

void vmf_map_print_datatree_internal(MapContext *ctx, const Datatree *tree, const char *label)
{
    if (probe == nullptr) return NEXT(vmf_map_print_datatree_internal)(ctx, tree, label);
    probe->printed.push_back({tree, label});
}

void *kos_named_calloc_(size_t count, size_t size, const char *label, uint32_t zero)
{
    if (probe != nullptr) probe->allocated.push_back({count, size, label, zero});
    return NEXT(kos_named_calloc_)(count, size, label, zero);
}

void kos_named_free(void *memory)
{
    if (probe != nullptr && emptying == 0) probe->released.push_back(memory);
    NEXT(kos_named_free)(memory);
}

void kidl_vmf_datatree_free_ext(Datatree *node, void (*free_callback)(void *), uint32_t zero1, uint32_t zero2)
{
    if (probe != nullptr && emptying == 0 && node != nullptr)
        probe->emptied.push_back({node, *node, free_callback == vmf_gpb_free && zero1 == 0 && zero2 == 0});
    emptying++;
    NEXT(kidl_vmf_datatree_free_ext)(node, free_callback, zero1, zero2);
    emptying--;
    if (probe != nullptr && emptying == 0 && probe->leaves_records) *node = probe->emptied.back().record;
}

uint32_t vmf_map_datatree_add_subtree(MapContext *ctx, Datatree *parent, const char *tag, const char *ns,
                                      const char *value, const Datatree *operation_source, Datatree **result,
                                      uint32_t flag)
{
    if (probe != nullptr) {
        probe->added.push_back(
            {parent, tag != nullptr ? tag : "", ns != nullptr ? ns : "", value, operation_source, flag});
        if (probe->adds_give_no_node) return VMF_RC_OK;
    }
    return NEXT(vmf_map_datatree_add_subtree)(ctx, parent, tag, ns, value, operation_source, result, flag);
}

char *vmf_strdup(const char *text, const char *label)
{
    if (probe != nullptr) probe->copied.push_back(std::string(label) + ": " + (text != nullptr ? text : "(null)"));
    return NEXT(vmf_strdup)(text, label);
}

int32_t strcpy_s(char *destination, size_t size, const char *source)
{
    if (probe != nullptr) probe->bounds.push_back(size);
    return NEXT(strcpy_s)(destination, size, source);
}

int32_t __strcat_s_to_buf(size_t buffer_size, char *destination, size_t size, const char *source)
{
    if (probe != nullptr) probe->bounds.insert(probe->bounds.end(), {buffer_size, size});
    return NEXT(__strcat_s_to_buf)(buffer_size, destination, size, source);
}

uint32_t vmf_map_do_these_match(const char *a, const char *b)
{
    if (probe != nullptr && probe->match) return probe->match(a, b);
    return NEXT(vmf_map_do_these_match)(a, b);
}

}  // extern "C"
