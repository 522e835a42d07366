// What takes more than one native tree, or more than one handler outside of a walk.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <set>

#include "mapping_run.h"
#include "names.h"
#include "native_model.h"
#include "tree_text.h"

namespace response {
namespace {

// ---- Private AS numbers ---------------------------------------------------------------------

constexpr char option[] = "remove-private-as-entire-as-path";

// The private AS handlers of a kind of entry, called as a walk would if it knew them.
struct PrivateAs {
    explicit PrivateAs(const std::string &family) : place(find_node(Model::cfg, family + "/" + option).handler)
    {
        run.ctx.list_node = &run.out.root();
        run.ctx.af_node = platform::append_child(run.out.root(), "family", OC_BGP_NS);
    }

    uint32_t container(const char *native_family)
    {
        run.ctx.af_name = native_family;
        platform::Tree native;
        Datatree *node = platform::append_child(native.root(), option, ZR_BGP_CFG_NS);
        return handler<VmfContainerHandler>(place)(&run.ctx, node, 2, &run.out.root());
    }

    uint32_t leaf(const std::string &tag, const std::string &value)
    {
        platform::Tree native;
        Datatree *node = platform::append_child(native.root(), platform::intern(tag), ZR_BGP_CFG_NS);
        platform::set_value(*node, value);
        std::string name = place;
        name.replace(name.find("_cont_"), 6, "_leaf_");
        return handler<VmfLeafHandler>(name + "_" + tag)(&run.ctx, node, &run.out.root());
    }

    template<class Handler>
    static Handler *handler(const std::string &name)
    {
        void *address = dlsym(RTLD_NEXT, name.c_str());
        if (address == nullptr) throw std::runtime_error("the library does not export " + name);
        return reinterpret_cast<Handler *>(address);
    }

    const std::string place;
    support::MappingRun run{VMF_REQ_GET};
};

constexpr char empty[] = "family oc-bgp\n";
constexpr char written_in_the_family[] = "family oc-bgp\n"
                                         "  config\n"
                                         "    remove-private-as = PRIVATE_AS_REMOVE_ALL\n"
                                         "  state\n"
                                         "    remove-private-as = PRIVATE_AS_REMOVE_ALL\n";
constexpr char written_in_the_entry[] = "family oc-bgp\n"
                                        "config oc-bgp\n"
                                        "  remove-private-as = PRIVATE_AS_REMOVE_ALL\n"
                                        "state oc-bgp\n"
                                        "  remove-private-as = PRIVATE_AS_REMOVE_ALL\n";

struct Removal {
    const char *family, *key;
    std::set<uint32_t> bitmaps;
    const char *written;
};

TEST(PeerPrivateAs, is_removed_for_these_bitmaps_of_families_and_no_others)
{
    const Removal removals[] = {
        {"neighbor-af", "2001:db8::1", {2050, 2056}, written_in_the_family},
        {"neighbor-af", "::ffff:10.0.0.1", {2050, 2056}, written_in_the_family},
        {"neighbor-af", "10.0.0.1", {2035, 2038, 2041, 2044}, written_in_the_entry},
        {"neighbor-group-af", "transit", {4083, 4086, 4089, 4092}, written_in_the_entry},
        {"neighbor-group-af", "2001:db8::1", {4083, 4086, 4089, 4092}, written_in_the_entry},
    };
    for (const Removal &removal : removals) {
        for (uint32_t bitmap = 0; bitmap < 0x2000; bitmap++) {
            PrivateAs handlers(removal.family);
            handlers.run.ctx.af_key = removal.key;
            handlers.run.ctx.af_option_bitmap = bitmap;
            ASSERT_EQ(handlers.leaf("entire", "true"), 0u);
            ASSERT_EQ(text_of(handlers.run.out), removal.bitmaps.contains(bitmap) ? removal.written : empty)
                << removal.family << " " << removal.key << " " << bitmap;
        }
    }
}

TEST(PeerPrivateAs, of_an_ipv6_neighbor_is_removed_once_both_of_its_families_have_the_option)
{
    PrivateAs handlers("neighbor-af");
    handlers.run.ctx.af_key = "2001:db8::1";
    for (const char *native_family : {"ipv6-unicast", "ipv6-multicast"}) {
        EXPECT_EQ(text_of(handlers.run.out), empty);
        EXPECT_EQ(handlers.container(native_family), 0u);
        EXPECT_EQ(handlers.leaf("enable", "true"), 0u);
        EXPECT_EQ(handlers.leaf("entire", "TRUE"), 0u);
    }
    EXPECT_EQ(handlers.run.ctx.af_option_bitmap, 2050u);
    EXPECT_EQ(text_of(handlers.run.out), written_in_the_family);
}

TEST(PeerPrivateAs, of_a_family_that_does_not_remove_it_holds_for_all_that_follow)
{
    PrivateAs handlers("neighbor-af");
    handlers.run.ctx.af_key = "2001:db8::1";
    handlers.container("ipv6-unicast");
    handlers.leaf("enable", "true");
    handlers.leaf("entire", "false");
    EXPECT_EQ(handlers.run.ctx.private_as_state, 2);
    handlers.container("ipv6-multicast");
    handlers.leaf("enable", "true");
    handlers.leaf("entire", "true");
    EXPECT_EQ(handlers.run.ctx.private_as_state, 2);
    EXPECT_EQ(text_of(handlers.run.out), empty);
}

// ---- Both native trees ----------------------------------------------------------------------

std::string answer_of(const std::string &configuration, const std::string &operational)
{
    support::MappingRun run(VMF_REQ_GET);
    const platform::Tree cfg = io::read_tree(native_text(Model::cfg, "bgp-entity", configuration));
    const platform::Tree oper = io::read_tree(native_text(Model::oper, "default-vrf/neighbors", operational));
    EXPECT_EQ(walk_of(Model::cfg)(&run.ctx, &platform::children_of(cfg.root()).front(), &run.out.root()), 0u);
    EXPECT_EQ(walk_of(Model::oper)(&run.ctx, &platform::children_of(oper.root()).front(), &run.out.root()), 0u);
    return text_of(run.out);
}

TEST(PeerTrees, of_configuration_and_operation_meet_in_one_entry)
{
    EXPECT_EQ(answer_of("neighbors\n"
                        "  neighbor\n"
                        "    neighbor-address = 10.0.0.1\n"
                        "    timers\n"
                        "      hold-time = 30\n"
                        "    neighbor-afs\n"
                        "      neighbor-af\n"
                        "        af-name = vp-nv4-unicast\n"
                        "        activate\n"
                        "      neighbor-af\n"
                        "        af-name = l2vpnevpn\n"
                        "  neighbor\n"
                        "    neighbor-address = 2001:db8::1\n"
                        "    neighbor-graceful-restart = false\n",
                        "neighbor\n"
                        "  neighbor-address = 2001:db8::1\n"
                        "  connection-state = bgp-st-idle\n"
                        "  graceful-restart-enabled-nbr = false\n"
                        "neighbor\n"
                        "  neighbor-address = 10.0.0.1\n"
                        "  hold-time = 90\n"
                        "  af-data\n"
                        "    af-name = l2vpn-evpn\n"
                        "    prefixes-accepted = 7\n"
                        "  af-data\n"
                        "    af-name = vp-nv4\n"
                        "    is-neighbor-af-capable = true\n"
                        "neighbor\n"
                        "  neighbor-address = 10.0.0.3\n"
                        "  messages-queued-in = 1\n"),
              "bgp oc-bgp\n"
              "  neighbors\n"
              "    neighbor\n"
              "      neighbor-address = 10.0.0.1\n"
              "      config\n"
              "        neighbor-address = 10.0.0.1\n"
              "      state\n"
              "        neighbor-address = 10.0.0.1\n"
              "      timers\n"
              "        config\n"
              "          hold-time = 30\n"
              "        state\n"
              "          hold-time = 30\n"
              "          negotiated-hold-time = 90\n"
              "      afi-safis\n"
              "        afi-safi\n"
              "          afi-safi-name = bgp-types:L3VPN_IPV4_UNICAST\n"
              "          config\n"
              "            afi-safi-name = bgp-types:L3VPN_IPV4_UNICAST\n"
              "            enabled = true\n"
              "          state\n"
              "            afi-safi-name = bgp-types:L3VPN_IPV4_UNICAST\n"
              "            enabled = true\n"
              "            active = true\n"
              "        afi-safi\n"
              "          afi-safi-name = bgp-types:L2VPN_EVPN\n"
              "          config\n"
              "            afi-safi-name = bgp-types:L2VPN_EVPN\n"
              "          state\n"
              "            afi-safi-name = bgp-types:L2VPN_EVPN\n"
              "            prefixes\n"
              "              received = 7\n"
              "    neighbor\n"
              "      neighbor-address = 2001:db8::1\n"
              "      config\n"
              "        neighbor-address = 2001:db8::1\n"
              "      state\n"
              "        neighbor-address = 2001:db8::1\n"
              "        session-state = IDLE\n"
              "      graceful-restart\n"
              "        config\n"
              "          enabled = true\n"
              "        state\n"
              "          enabled = false\n"
              "    neighbor\n"
              "      neighbor-address = 10.0.0.3\n"
              "      state\n"
              "        queues\n"
              "          input = 1\n");
}

TEST(PeerTrees, give_a_capability_of_one_neighbor_to_the_next_and_let_the_last_one_stand)
{
    EXPECT_EQ(answer_of("neighbors\n"
                        "  neighbor\n"
                        "    neighbor-address = 10.0.0.1\n"
                        "  neighbor\n"
                        "    neighbor-address = 10.0.0.2\n",
                        "neighbor\n"
                        "  neighbor-address = 10.0.0.1\n"
                        "  is4-byte-as-capability-sent = true\n"
                        "  is4-byte-as-capability-received = true\n"
                        "  is-gr-aware = true\n"
                        "neighbor\n"
                        "  neighbor-address = 10.0.0.2\n"
                        "  is-gr-aware = true\n"
                        "  is4-byte-as-capability-received = true\n"),
              "bgp oc-bgp\n"
              "  neighbors\n"
              "    neighbor\n"
              "      neighbor-address = 10.0.0.1\n"
              "      config\n"
              "        neighbor-address = 10.0.0.1\n"
              "      state\n"
              "        neighbor-address = 10.0.0.1\n"
              "        supported-capabilities = GRACEFUL_RESTART\n"
              "    neighbor\n"
              "      neighbor-address = 10.0.0.2\n"
              "      config\n"
              "        neighbor-address = 10.0.0.2\n"
              "      state\n"
              "        neighbor-address = 10.0.0.2\n"
              "        supported-capabilities = ASN32\n");
}

TEST(PeerTrees, of_a_group_and_a_neighbor_of_one_name_stay_apart)
{
    EXPECT_EQ(answer_of("neighbor-groups\n"
                        "  neighbor-group\n"
                        "    neighbor-group-name = 10.0.0.1\n"
                        "    description = group\n",
                        "neighbor\n"
                        "  neighbor-address = 10.0.0.1\n"
                        "  messages-queued-out = 1\n"),
              "bgp oc-bgp\n"
              "  peer-groups\n"
              "    peer-group\n"
              "      peer-group-name = 10.0.0.1\n"
              "      config\n"
              "        peer-group-name = 10.0.0.1\n"
              "        description = group\n"
              "      state\n"
              "        peer-group-name = 10.0.0.1\n"
              "        description = group\n"
              "  neighbors\n"
              "    neighbor\n"
              "      neighbor-address = 10.0.0.1\n"
              "      state\n"
              "        queues\n"
              "          output = 1\n");
}

}  // namespace
}  // namespace response
