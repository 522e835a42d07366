// OpenConfig requests on the router, through the mapping.
#include "mapped_request.h"
#include "support.h"
#include "tree_text.h"

using namespace test;
using router::Datastore;
using router::Refused;

namespace {

constexpr char oc[] = "http://openconfig.net/yang/bgp";

std::string config(const std::string &elements)
{
    return "<bgp xmlns=\"" + std::string(oc) + "\" xmlns:nc=\"urn:ietf:params:xml:ns:netconf:base:1.0\"><global>" +
           elements + "</global></bgp>";
}

std::unique_ptr<framework::MappedRequest> mapped(const router::Router &router, const std::string &xml, uint32_t kind)
{
    framework::MappedRequest::Setting setting;
    setting.read = [xml] { return io::read_xml(xml, "request.xml"); };
    setting.kind = kind;
    setting.database = &router.database();
    auto request = std::make_unique<framework::MappedRequest>(setting);
    EXPECT_EQ(request->outcome(), VMF_RC_OK);
    return request;
}

// Why the router refuses; empty if it takes it.
std::string edit_by_mapping(router::Router &router, const std::string &elements)
{
    const auto request = mapped(router, config(elements), VMF_REQ_EDIT);
    return error_of<Refused>([&] { router.edit(request->native()); });
}

std::string answer_to(const router::Router &router, const std::string &elements)
{
    const auto request = mapped(router, config(elements), VMF_REQ_GET_CONFIG);
    return io::write_tree(router.read_config(request->native(), Datastore::candidate).root(), io::Secrets::shown);
}

const std::string router_id = "<config><router-id>10.0.0.1</router-id></config>";

}  // namespace

TEST(MappedEdit, IsRefusedUntilAnAsIsSetAndFindsItThen)
{
    TestRouter made;
    EXPECT_EQ(edit_by_mapping(made.router, router_id),
              "/bgp/instance[instance-name='default']/instance-as: no AS number is known; set /bgp/global/config/as "
              "first");
    EXPECT_EQ(candidate_of(made.router), "");
    EXPECT_EQ(edit_by_mapping(made.router, "<config><as>65001</as></config>"), "");
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running"));
    EXPECT_EQ(edit_by_mapping(made.router, router_id), "");
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running\ndefault-vrf\n  global\n    router-id = 10.0.0.1"));
}

TEST(MappedEdit, MaySetTheAsBehindWhatNeedsIt)
{
    TestRouter made;
    EXPECT_EQ(edit_by_mapping(made.router, "<config><router-id>10.0.0.1</router-id><as>65001</as></config>"), "");
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running\ndefault-vrf\n  global\n    router-id = 10.0.0.1"));
}

TEST(MappedEdit, ChangesTheAsOnlyAfterBgpIsDeleted)
{
    TestRouter made;
    edit_by_mapping(made.router, "<config><as>65001</as></config>");
    EXPECT_EQ(edit_by_mapping(made.router, "<config><as>65002</as></config>"),
              "/bgp/instance[instance-name='default']/instance-as[as='0']/four-byte-as[as='65002']: the AS number "
              "cannot change while BGP runs; delete BGP first");
    EXPECT_EQ(edit_by_mapping(made.router, "<config nc:operation=\"delete\"/>"), "");
    EXPECT_EQ(candidate_of(made.router), "");
    EXPECT_EQ(edit_by_mapping(made.router, "<config><as>65002</as></config>"), "");
    EXPECT_EQ(candidate_of(made.router), in_as("bgp-running", "65002"));
}

TEST(MappedEdit, OfDataThatIsMissingOrThereIsRefusedWithItsNativePath)
{
    TestRouter made;
    edit_by_mapping(made.router, "<config><as>65001</as></config>");
    EXPECT_EQ(edit_by_mapping(made.router, "<config><router-id nc:operation=\"delete\"/></config>"),
              vrf_path + "/global/router-id: data is missing");
    EXPECT_EQ(edit_by_mapping(made.router, "<config><router-id nc:operation=\"remove\"/></config>"), "");
    edit_by_mapping(made.router, router_id);
    EXPECT_EQ(edit_by_mapping(made.router, "<config><router-id nc:operation=\"create\">10.0.0.2</router-id></config>"),
              vrf_path + "/global/router-id: data exists");
}

TEST(MappedRead, SelectsWhatItNames)
{
    TestRouter made;
    EXPECT_EQ(answer_to(made.router, "<config/>"), "") << "no AS is known, and any would do";
    edit_by_mapping(made.router,
                    "<config><as>65001</as><router-id>10.0.0.1</router-id></config>"
                    "<graceful-restart><config><restart-time>60</restart-time></config></graceful-restart>");
    EXPECT_EQ(answer_to(made.router, "<config><router-id/></config>"), in_global("router-id = 10.0.0.1"));
    EXPECT_EQ(answer_to(made.router, "<graceful-restart><config><restart-time/></config></graceful-restart>"),
              in_global("graceful-restart-time = 60"));
}
