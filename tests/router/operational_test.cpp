#include "document.h"
#include "support.h"
#include "tree_text.h"
#include "vmf_map_types.h"

using namespace std::chrono_literals;
using namespace test;
using router::Refused;
using router::Router;

namespace {

const std::string bgp = "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\">";
const std::string vrf = "<instances><instance><instance-name>default</instance-name><instance-active><default-vrf>";
const std::string vrf_end = "</default-vrf></instance-active></instance></instances>";
const std::string neighbors = "<neighbors><neighbor><neighbor-address>10.0.0.1</neighbor-address>"
                              "<af-data><af-name>ipv4</af-name><prefixes-accepted>7</prefixes-accepted></af-data>"
                              "<connection-state>bgp-st-estab</connection-state></neighbor></neighbors>";
const std::string data = bgp + vrf + neighbors + vrf_end + "</bgp>";

std::string in_vrf_of_data(const std::string &lines)
{
    return "bgp zr-oper\n  instances\n" +
           below("    instance\n", "instance-name = default\n" + below("instance-active\n  default-vrf\n", lines));
}

const std::string loaded = in_vrf_of_data("neighbors\n  neighbor\n    neighbor-address = 10.0.0.1\n    af-data\n"
                                          "      af-name = ipv4\n      prefixes-accepted = 7\n"
                                          "    connection-state = bgp-st-estab\n");

std::string operational_of(const Router &router)
{
    return io::write_tree(router.operational().root(), io::Secrets::shown);
}

std::string selected(const Router &router, const std::string &request)
{
    return io::write_tree(router.read_operational(io::read_tree(request).root()).root(), io::Secrets::shown);
}

}  // namespace

// ---- Loading --------------------------------------------------------------------------------

namespace {

struct LoadCase {
    const char *name;
    std::string xml;
    std::string expected;
};

const std::string netconf = "xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\"";

const LoadCase taken[] = {
    {"Bare", data, loaded},
    {"WithADeclarationAndComments", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- a -->" + data + "<!-- b -->\n",
     loaded},
    {"InTheDataOfAReply", "<data " + netconf + ">\n" + data + "\n</data>\n", loaded},
    {"InDataOfNoNamespace", "<data>" + data + "</data>", loaded},
    {"WithAPrefixThatDataDeclares",
     "<nc:data xmlns:nc=\"urn:ietf:params:xml:ns:netconf:base:1.0\" "
     "xmlns:o=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\"><o:bgp><o:instances><o:instance>"
     "<o:instance-name>default</o:instance-name></o:instance></o:instances></o:bgp></nc:data>",
     "bgp zr-oper\n  instances\n    instance\n      instance-name = default\n"},
    {"WithAByteOrderMark", "\xEF\xBB\xBF" + data, loaded},
    {"AnEmptyTree", bgp + "</bgp>", ""},
    {"AnEmptyElement", "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\"/>", ""},
    {"EmptyData", "<data " + netconf + "/>", ""},
    {"BlankData", "<data " + netconf + ">\n</data>", ""},
};

class Loading : public testing::TestWithParam<LoadCase> {};

}  // namespace

TEST_P(Loading, ReplacesTheData)
{
    const Folder folder;
    Router::create(folder.path());
    {
        Router router(folder.path(), 0ms);
        router.load_operational(
            bgp + "<instances><instance><instance-name>old</instance-name></instance></instances></bgp>", "file.xml");
        router.load_operational(GetParam().xml, "file.xml");
        EXPECT_EQ(operational_of(router), GetParam().expected);
    }
    EXPECT_EQ(operational_of(Router(folder.path(), 0ms)), GetParam().expected) << "also next time";
}

INSTANTIATE_TEST_SUITE_P(All, Loading, testing::ValuesIn(taken), name_of_case<LoadCase>);

namespace {

const LoadCase refused[] = {
    {"ConfigurationData", "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg\"/>", "bgp"},
    {"AnotherElement", "<colour/>", "<colour>"},
    {"AnotherElementInData", "<data><colour/></data>", "<colour>"},
    {"AnotherElementBehindTheTree", "<data>" + data + "<colour/></data>", "<colour>"},
    {"TwoTrees", "<data>" + data + data + "</data>", "a second bgp element"},
    {"TextInData", "<data>red" + data + "</data>", "text in <data>"},
    {"AnUnknownNode", bgp + "\n<instances>\n<colour/></instances></bgp>", "(file.xml:3)"},
    {"AnUnknownNodeInData", "<data>\n" + bgp + "\n<instances>\n<colour/></instances></bgp></data>", "(file.xml:4)"},
    {"AValueOutOfItsType",
     bgp + vrf + "<neighbors><neighbor><neighbor-address>red</neighbor-address></neighbor></neighbors>" + vrf_end +
         "</bgp>",
     "red"},
    {"AnEntryTwice",
     bgp + "<instances><instance><instance-name>a</instance-name></instance><instance><instance-name>a</instance-name>"
           "</instance></instances></bgp>",
     "/bgp/instances/instance[instance-name='a']"},
    {"AnEntryWithoutItsKey", bgp + "<instances><instance></instance></instances></bgp>", "instance-name"},
};

const LoadCase unreadable[] = {
    {"NoXml", "colour", "file.xml:1:"},
    {"AnElementThatIsNotClosed", "<data>\n" + bgp + "\n</data>", "file.xml:3:"},
    {"NothingAtAll", "", "file.xml"},
    {"ATextBehindTheElement", data + "x", "file.xml:1:"},
    {"ADoctype", "<!DOCTYPE bgp [<!ENTITY e \"x\">]>\n" + data, "file.xml:1:1: a DOCTYPE is not read"},
    {"AnEntity", "<data>\n&e;</data>", "file.xml:2:"},
    {"AByteThatIsNoUtf8", bgp + "\xFF</bgp>", "file.xml:1:"},
};

class LoadRefused : public testing::TestWithParam<LoadCase> {};
class LoadUnreadable : public testing::TestWithParam<LoadCase> {};

template<class Error>
void expect_nothing_loaded(const LoadCase &row)
{
    TestRouter made;
    made.router.load_operational(data, "first.xml");
    const std::string error = error_of<Error>([&] { made.router.load_operational(row.xml, "file.xml"); });
    EXPECT_NE(error.find(row.expected), std::string::npos) << error;
    EXPECT_NE(error, "");
    EXPECT_EQ(operational_of(made.router), loaded);
}

}  // namespace

TEST_P(LoadRefused, SaysWhyAndLeavesTheData) { expect_nothing_loaded<Refused>(GetParam()); }
TEST_P(LoadUnreadable, SaysWhereAndLeavesTheData) { expect_nothing_loaded<io::InputError>(GetParam()); }

INSTANTIATE_TEST_SUITE_P(All, LoadRefused, testing::ValuesIn(refused), name_of_case<LoadCase>);
INSTANTIATE_TEST_SUITE_P(All, LoadUnreadable, testing::ValuesIn(unreadable), name_of_case<LoadCase>);

// ---- Reading --------------------------------------------------------------------------------

TEST(OperationalRead, GivesWhatIsSelected)
{
    TestRouter made;
    made.router.load_operational(data, "file.xml");
    EXPECT_EQ(selected(made.router, in_vrf_of_data("neighbors\n  neighbor\n    neighbor-address = 10.0.0.1\n"
                                                   "    af-data\n      af-name = ipv4\n      prefixes-accepted\n")),
              in_vrf_of_data("neighbors\n  neighbor\n    neighbor-address = 10.0.0.1\n    af-data\n"
                             "      af-name = ipv4\n      prefixes-accepted = 7\n"));
    EXPECT_EQ(selected(made.router, "bgp zr-oper\n  instances\n    instance\n      instance-active\n"
                                    "        default-vrf\n          neighbors\n            neighbor\n"
                                    "              connection-state\n"),
              in_vrf_of_data("neighbors\n  neighbor\n    neighbor-address = 10.0.0.1\n"
                             "    connection-state = bgp-st-estab\n"))
        << "the levels without keys mean all";
    EXPECT_EQ(selected(made.router, "bgp zr-cfg\nbgp zr-oper\n  colour\n"), "");
    EXPECT_EQ(selected(made.router, "bgp zr-cfg\nbgp zr-oper\n"), loaded);
}

TEST(OperationalRead, EntriesWithoutKeysAreAllKept)
{
    TestRouter made;
    const std::string info = "<af-process-info><global><paths-num>3</paths-num></global></af-process-info>";
    made.router.load_operational(bgp + vrf + "<afs><af><af-name>ipv4-unicast</af-name>" + info + info + "</af></afs>" +
                                     vrf_end + "</bgp>",
                                 "file.xml");
    const std::string lines = "afs\n  af\n    af-name = ipv4-unicast\n    af-process-info\n      global\n"
                              "        paths-num = 3\n    af-process-info\n      global\n        paths-num = 3\n";
    EXPECT_EQ(operational_of(made.router), in_vrf_of_data(lines));
    EXPECT_EQ(selected(made.router, in_vrf_of_data("afs\n  af\n    af-name = ipv4-unicast\n    af-process-info\n"
                                                   "      global\n        paths-num\n")),
              in_vrf_of_data(lines));
}

TEST(OperationalRead, EditsDoNotReachTheData)
{
    TestRouter made;
    made.router.load_operational(data, "file.xml");
    edit(made.router, in_global("router-id = 10.0.0.1") + "bgp zr-oper [remove]\n");
    made.router.commit();
    EXPECT_EQ(operational_of(made.router), loaded);
}
