#include <gtest/gtest.h>

#include <sstream>

#include "nodes.h"
#include "requests.h"
#include "write.h"

using io::Secrets;

namespace {

std::string json(const std::string &tree, Secrets secrets = Secrets::shown)
{
    return io::write_json(io::read_tree(tree).root(), secrets);
}

std::string read_back(const std::string &json) { return tree_of(io::read_json(json, "in.json")); }

std::string group_config(const std::string &leaves)
{
    return "bgp oc-bgp\n  peer-groups\n    peer-group\n      config\n" + leaves;
}

// The members of the config that group_config makes.
std::string written_config(const std::string &leaves)
{
    const std::string all = json(group_config(leaves));
    const size_t begin = all.find("\"config\": {\n") + std::string("\"config\": {\n").size();
    return all.substr(begin, all.find("\n          }") - begin + 1);
}

}  // namespace

TEST(WriteJson, WritesATreeUnderItsModule)
{
    EXPECT_EQ(json("bgp oc-bgp\n  global\n    config\n      as = 65001\n"), R"({
  "openconfig-bgp:bgp": {
    "global": {
      "config": {
        "as": 65001
      }
    }
  }
}
)");
}

TEST(WriteJson, KnowsTheModulesOfItsTrees)
{
    EXPECT_EQ(json("bgp zr-cfg\n  instance-name = a\nbgp zr-oper\n  instance-name = b\nbgp <urn:x>\n  c = d\n"), R"({
  "Zorvex-ZR-ipv4-bgp-cfg:bgp": {
    "instance-name": "a"
  },
  "Zorvex-ZR-ipv4-bgp-oper:bgp": {
    "instance-name": "b"
  },
  "bgp": {
    "c": "d"
  }
}
)");
    EXPECT_EQ(json(""), "{}\n");
}

TEST(WriteJson, NamesTheModuleWhereItChanges)
{
    EXPECT_EQ(json("bgp oc-bgp\n  x = 1\n  y zr-cfg = 2\n    z = 3\n  u <urn:u> = 4\n"), R"({
  "openconfig-bgp:bgp": {
    "x": "1",
    "Zorvex-ZR-ipv4-bgp-cfg:y": {
      "z": "3"
    },
    "u": "4"
  }
}
)");
}

// ---- Arrays ---------------------------------------------------------------------------------

TEST(WriteJson, WritesListsOfOpenconfigAsArrays)
{
    EXPECT_EQ(json("bgp oc-bgp\n  global\n    confederation\n      config\n        member-as = 1\n"
                   "  neighbors\n    neighbor\n      neighbor-address = ::1\n    neighbor\n"),
              R"({
  "openconfig-bgp:bgp": {
    "global": {
      "confederation": {
        "config": {
          "member-as": [
            1
          ]
        }
      }
    },
    "neighbors": {
      "neighbor": [
        {
          "neighbor-address": "::1"
        },
        {}
      ]
    }
  }
}
)");
}

TEST(WriteJson, WritesNativeListsAsArraysAndNativeNumbersAsNumbers)
{
    EXPECT_EQ(json("bgp zr-cfg\n  instance\n    instance-as\n      as = 0\n  other\n    route-policy-in = a\n"), R"({
  "Zorvex-ZR-ipv4-bgp-cfg:bgp": {
    "instance": [
      {
        "instance-as": [
          {
            "as": 0
          }
        ]
      }
    ],
    "other": {
      "route-policy-in": "a"
    }
  }
}
)");
}

TEST(WriteJson, WritesNativeNumbersOf64BitsAsStrings)
{
    const std::string tree =
        "bgp zr-oper\n  instances\n    instance\n      instance-active\n        default-vrf\n          neighbors\n"
        "            neighbor\n              hold-time = 90\n              message-statistics\n"
        "                update\n                  tx\n                    count = 7\n";
    EXPECT_NE(json(tree).find("\"hold-time\": 90,"), std::string::npos) << json(tree);
    EXPECT_NE(json(tree).find("\"count\": \"7\""), std::string::npos) << json(tree);
}

// Each at its place in its model, and nowhere else.
TEST(WriteJson, KnowsEveryNativeList)
{
    size_t lists = 0;
    for (const model::NativeNode &node : model::native()) {
        if (node.kind != model::Kind::list && node.kind != model::Kind::leaf_list) continue;
        lists++;
        std::string tree;
        std::string indent;
        std::istringstream tags{std::string(node.path)};
        std::string tag;
        std::getline(tags, tag, '/');
        const std::string ns = tag == "configuration" ? " zr-cfg" : " zr-oper";
        for (; std::getline(tags, tag, '/'); indent += "  ") tree += indent + tag + (indent.empty() ? ns : "") + "\n";
        tree.pop_back();
        tag = tree.substr(tree.find_last_of(" \n") + 1);
        EXPECT_NE(json(tree + " = x\n").find("\"" + tag + "\": [\n"), std::string::npos) << node.path;
        EXPECT_EQ(json("bgp <urn:x>\n  " + tag + " = x\n").find('['), std::string::npos) << tag;
    }
    EXPECT_EQ(lists, 18u);
}

TEST(WriteJson, GathersWhatRepeatsInAnArray)
{
    EXPECT_EQ(json("bgp zr-cfg\n  a = 1\n  b\n    c = 2\n  a\n  a\n    d = 3\n"), R"({
  "Zorvex-ZR-ipv4-bgp-cfg:bgp": {
    "a": [
      "1",
      null,
      {
        "d": "3"
      }
    ],
    "b": {
      "c": "2"
    }
  }
}
)");
}

// ---- Values ---------------------------------------------------------------------------------

TEST(WriteJson, WritesNumbersAndBooleansByTheModel)
{
    EXPECT_EQ(
        json("bgp oc-bgp\n  neighbors\n    neighbor\n      transport\n        config\n          tcp-mss = 65535\n"
             "          passive-mode = true\n      ebgp-multihop\n        config\n          enabled = false\n"
             "          multihop-ttl = 255\n      state\n        messages\n          sent\n            UPDATE = 7\n"
             "      timers\n        config\n          hold-time = 180\n"),
        R"({
  "openconfig-bgp:bgp": {
    "neighbors": {
      "neighbor": [
        {
          "transport": {
            "config": {
              "tcp-mss": 65535,
              "passive-mode": true
            }
          },
          "ebgp-multihop": {
            "config": {
              "enabled": false,
              "multihop-ttl": 255
            }
          },
          "state": {
            "messages": {
              "sent": {
                "UPDATE": "7"
              }
            }
          },
          "timers": {
            "config": {
              "hold-time": "180"
            }
          }
        }
      ]
    }
  }
}
)");
}

TEST(WriteJson, WritesATextThatDoesNotFitItsTypeAsAString)
{
    for (const char *text : {"4294967296", "-1", "+1", "01", "1.0", "1x", "99999999999999999999"})
        EXPECT_EQ(written_config("        peer-as = " + std::string(text) + "\n"),
                  "            \"peer-as\": \"" + std::string(text) + "\"\n");
    EXPECT_NE(json("bgp oc-bgp\n  neighbors\n    neighbor\n      transport\n        config\n          tcp-mss = 65536\n"
                   "          passive-mode = TRUE\n      ebgp-multihop\n        config\n          multihop-ttl = 256\n")
                  .find("\"tcp-mss\": \"65536\""),
              std::string::npos);
}

TEST(WriteJson, WritesAnIdentityWithItsModule)
{
    EXPECT_EQ(
        json(
            "bgp oc-bgp\n  global\n    afi-safis\n      afi-safi\n        afi-safi-name = bgp-types:A\n        config\n"
            "          afi-safi-name = oc-bgp:B\n        state\n          afi-safi-name = C\n"),
        R"({
  "openconfig-bgp:bgp": {
    "global": {
      "afi-safis": {
        "afi-safi": [
          {
            "afi-safi-name": "openconfig-bgp-types:A",
            "config": {
              "afi-safi-name": "openconfig-bgp:B"
            },
            "state": {
              "afi-safi-name": "C"
            }
          }
        ]
      }
    }
  }
}
)");
}

TEST(WriteJson, WritesAnIdentityOfAnUnknownNamespaceSoThatItIsNotTakenForAnother)
{
    auto tree = io::read_tree("a oc-bgp = X\n");
    platform::set_data_namespace(platform::children_of(tree.root())[0], "urn:x");
    EXPECT_EQ(io::write_json(tree.root(), Secrets::shown), "{\n  \"openconfig-bgp:a\": \"urn:x:X\"\n}\n");
}

TEST(WriteJson, TellsEmptyContainersFromLeavesWithoutValue)
{
    EXPECT_EQ(json("bgp oc-bgp\n  global\n    config\n      as\n  neighbors\n    neighbor\nbgp zr-cfg\n"), R"({
  "openconfig-bgp:bgp": {
    "global": {
      "config": {
        "as": [
          null
        ]
      }
    },
    "neighbors": {
      "neighbor": [
        {}
      ]
    }
  },
  "Zorvex-ZR-ipv4-bgp-cfg:bgp": {}
}
)");
}

TEST(WriteJson, EscapesTexts)
{
    EXPECT_EQ(written_config("        description = \"a\\\"\\\\\\n\u20AC\"\n"),
              "            \"description\": \"a\\\"\\\\\\n\u20AC\"\n");
}

TEST(WriteJson, HidesPasswords)
{
    const std::string tree =
        "bgp oc-bgp\n  config\n    auth-password = hush\n  password\n    password = hush\n  a = seen\n";
    const std::string hidden = json(tree, Secrets::hidden);
    EXPECT_EQ(hidden.find("hush"), std::string::npos);
    EXPECT_NE(hidden.find("\"auth-password\": \"***\""), std::string::npos);
    EXPECT_NE(hidden.find("\"password\": \"***\""), std::string::npos);
    EXPECT_NE(hidden.find("seen"), std::string::npos);
    EXPECT_NE(json(tree, Secrets::shown).find("\"auth-password\": \"hush\""), std::string::npos);
}

// ---- Operations -----------------------------------------------------------------------------

TEST(WriteJson, WritesOperationsInObjectsAndBesideLeaves)
{
    EXPECT_EQ(json("bgp oc-bgp\n  global [replace]\n    config\n      as [merge] = 1\n      router-id [remove]\n"
                   "  neighbors\n    neighbor [delete]\n      neighbor-address = ::1\n"),
              R"({
  "openconfig-bgp:bgp": {
    "global": {
      "@": {
        "ietf-netconf:operation": "replace"
      },
      "config": {
        "as": 1,
        "@as": {
          "ietf-netconf:operation": "merge"
        },
        "router-id": [
          null
        ],
        "@router-id": {
          "ietf-netconf:operation": "remove"
        }
      }
    },
    "neighbors": {
      "neighbor": [
        {
          "@": {
            "ietf-netconf:operation": "delete"
          },
          "neighbor-address": "::1"
        }
      ]
    }
  }
}
)");
}

TEST(WriteJson, WritesOperationsOfEntriesByPosition)
{
    EXPECT_EQ(json("bgp zr-cfg\n  neighbor\n    a [create] = 1\n  neighbor [remove]\n"), R"({
  "Zorvex-ZR-ipv4-bgp-cfg:bgp": {
    "neighbor": [
      {
        "a": "1",
        "@a": {
          "ietf-netconf:operation": "create"
        }
      },
      null
    ],
    "@neighbor": [
      null,
      {
        "ietf-netconf:operation": "remove"
      }
    ]
  }
}
)");
}

// ---- And back -------------------------------------------------------------------------------

TEST(WriteJson, WritesWhatReadJsonReadsAsTheSameTree)
{
    EXPECT_EQ(read_back(json(every_kind_of_node)), every_kind_of_node);
    EXPECT_EQ(read_back(json("bgp oc-bgp [replace]\n")), "bgp oc-bgp [replace]\n");
}

TEST(WriteJson, WritesWhatTheModelDoesNotKnowSoThatItReadsBack)
{
    const std::string tree =
        "bgp oc-bgp\n  a [delete]\n  b [merge] = 1\n  c = 1\n  c [remove] = 2\n  c\n  d\n    e\n      f = x\n";
    EXPECT_EQ(read_back(json(tree)), tree);
}
