// An answer held against the OpenConfig model.
#include <gtest/gtest.h>

#include "answer_check.h"
#include "tree_text.h"
#include "trees.h"

namespace {

using Lines = std::vector<std::string>;

Lines check(const std::string &inside) { return framework::check_answer(io::read_tree(request_text(inside)).root()); }

}  // namespace

TEST(AnswerCheck, HasNothingToSayOfWhatTheModelKnows)
{
    EXPECT_EQ(check("  global\n    config\n      as = 65001\n      router-id = 192.0.2.1\n"), Lines{});
    EXPECT_EQ(check("  global\n    afi-safis\n      afi-safi\n        afi-safi-name = bgp-types:IPV4_UNICAST\n"
                    "        config\n          enabled = true\n"),
              Lines{});
}

TEST(AnswerCheck, TellsNodesValuesAndWordsThatTheModelDoesNotKnow)
{
    EXPECT_EQ(check("  global\n    config\n      colour = red\n"),
              Lines{"/bgp/global/config/colour is not in the OpenConfig model"});
    EXPECT_EQ(check("  global\n    config\n      as = 4294967296\n"),
              Lines{"/bgp/global/config/as has the value \"4294967296\", which does not fit its type"});
    EXPECT_EQ(check("  global\n    graceful-restart\n      config\n        enabled = yes\n"),
              Lines{"/bgp/global/graceful-restart/config/enabled has the value \"yes\", which does not fit its type"});
    EXPECT_EQ(check("  neighbors\n    neighbor\n      state\n        session-state\n"),
              Lines{"/bgp/neighbors/neighbor/state/session-state has no value"});
    EXPECT_EQ(
        check("  global\n    afi-safis\n      afi-safi\n        config\n          afi-safi-name = ipv4-unicast\n"),
        Lines{"/bgp/global/afi-safis/afi-safi/config/afi-safi-name holds the native word \"ipv4-unicast\""});
}

TEST(AnswerCheck, QualifiesTheIdentitiesThatTheModelHas)
{
    platform::Tree answer = io::read_tree(request_text("  neighbors\n    neighbor\n      state\n"
                                                       "        supported-capabilities = ASN32\n"
                                                       "        supported-capabilities = colour\n"));
    framework::qualify_identities(answer.root());
    EXPECT_EQ(text_of(answer), request_text("  neighbors\n    neighbor\n      state\n"
                                            "        supported-capabilities = bgp-types:ASN32\n"
                                            "        supported-capabilities = colour\n"));
}

TEST(AnswerCheck, DropsStateAndWhatHeldNothingElse)
{
    platform::Tree answer = io::read_tree(request_text("  global\n"
                                                       "    config\n"
                                                       "      as = 65001\n"
                                                       "    state\n"
                                                       "      as = 65001\n"
                                                       "    use-multiple-paths\n"
                                                       "      state\n"
                                                       "        enabled = true\n"
                                                       "    afi-safis\n"));
    framework::drop_state(answer.root());
    EXPECT_EQ(text_of(answer), request_text("  global\n    config\n      as = 65001\n    afi-safis\n"));
}
