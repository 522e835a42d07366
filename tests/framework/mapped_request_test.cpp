// What a person is told of a request: where it failed, and which of its nodes a native node came from.
#include <gtest/gtest.h>

#include "database_items.h"
#include "mapped_request.h"

namespace {

io::Document read_edit(const std::string &inside)
{
    return io::read_xml("<bgp xmlns=\"http://openconfig.net/yang/bgp\" "
                        "xmlns:t=\"http://openconfig.net/yang/bgp-types\">" +
                            inside + "</bgp>",
                        "edit");
}

struct Mapped {
    explicit Mapped(const std::string &inside, uint32_t as = 65001)
        : request((database.put(framework::global_as_item(0, as)),
                   framework::MappedRequest::Setting{
                       .read = [inside] { return read_edit(inside); }, .kind = VMF_REQ_EDIT, .database = &database}))
    {
    }
    platform::SystemDatabase database;
    framework::MappedRequest request;
};

constexpr char two_families[] =
    "<global><afi-safis>"
    "<afi-safi><afi-safi-name>t:IPV4_UNICAST</afi-safi-name><config><enabled>true</enabled></config></afi-safi>"
    "<afi-safi><afi-safi-name>t:L2VPN_EVPN</afi-safi-name><use-multiple-paths><ebgp><config>"
    "<maximum-paths>4</maximum-paths></config></ebgp></use-multiple-paths></afi-safi></afi-safis></global>";

constexpr char global_path[] =
    "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65001']/default-vrf/global";

}  // namespace

// The key of the refused entry holds the native word by then.
TEST(MappedRequest, TellsARefusalInTheClientsOwnWords)
{
    const Mapped mapped(two_families);
    EXPECT_EQ(mapped.request.outcome(), uint32_t{VMF_RC_UNSUPPORTED});
    EXPECT_EQ(mapped.request.refusal().reason, "Operation not allowed for AF 'l2vpnevpn'");
    EXPECT_EQ(mapped.request.refusal().path, "/bgp/global/afi-safis/afi-safi[afi-safi-name='L2VPN_EVPN']"
                                             "/use-multiple-paths/ebgp/config/maximum-paths");
}

TEST(MappedRequest, KnowsTheNodeThatANativeNodeCameFrom)
{
    Mapped mapped("<global><config><as>65001</as><router-id>192.0.2.1</router-id></config>"
                  "<confederation><config><identifier>64512</identifier></config></confederation></global>");
    ASSERT_EQ(mapped.request.outcome(), uint32_t{VMF_RC_OK});
    const std::pair<std::string, std::string> origins[] = {
        {std::string(global_path) + "/router-id", "/bgp/global/config/router-id"},
        {std::string(global_path) + "/confederation-domain/as-yy", "/bgp/global/confederation/config/identifier"},
        {std::string(global_path) + "/confederation-domain", "/bgp/global/confederation/config/identifier"},
        // Where nothing was added at the node itself, what was added below it.
        {"/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65001']",
         "/bgp/global/config/as"},
        {std::string(global_path) + "/no-such-leaf", ""},
    };
    for (const auto &[native, client] : origins) EXPECT_EQ(mapped.request.origin_of(native), client) << native;
}

TEST(MappedRequest, NamesTheFirstNodeThatNeededTheLevelsAboveAll)
{
    Mapped mapped("<global><config><router-id>192.0.2.1</router-id></config></global>");
    EXPECT_EQ(mapped.request.origin_of("/bgp/instance[instance-name='default']/instance-as"),
              "/bgp/global/config/router-id");
}

TEST(MappedRequest, DoesNotTakeTheNodeOfAnotherFamily)
{
    Mapped mapped("<global><afi-safis>"
                  "<afi-safi><afi-safi-name>t:IPV4_UNICAST</afi-safi-name><config><enabled>true</enabled></config>"
                  "</afi-safi><afi-safi><afi-safi-name>t:IPV6_UNICAST</afi-safi-name></afi-safi></afi-safis></global>");
    EXPECT_EQ(
        mapped.request.origin_of(std::string(global_path) + "/global-afs/global-af[af-name='ipv4-unicast']/enable"),
        "/bgp/global/afi-safis/afi-safi[afi-safi-name='IPV4_UNICAST']/config/enabled");
}

TEST(MappedRequest, MapsTheSameWhetherItIsTracedOrNot)
{
    size_t lines = 0;
    platform::SystemDatabase database;
    const std::string inside = "<global><config><as>65001</as></config></global>";
    const framework::MappedRequest traced({.read = [&] { return read_edit(inside); },
                                           .kind = VMF_REQ_EDIT,
                                           .database = &database,
                                           .trace = [&](std::string_view) { lines++; }});
    EXPECT_EQ(traced.outcome(), uint32_t{VMF_RC_OK});
    EXPECT_GT(lines, 0u);
}
