// What the tests of the readers and writers have in common.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

#include "document.h"
#include "tree.h"
#include "tree_text.h"

// A record whose only child is the `bgp` of a document, as the writers want it. It owns nothing.
inline Datatree holder_of(io::Document &document)
{
    Datatree holder = {};
    holder.subtrees = &document.bgp.root();
    holder.subtree_count = 1;
    holder.present[0] = VMF_DT_SUBTREES;
    return holder;
}

inline std::string tree_of(io::Document document) { return io::write_tree(holder_of(document), io::Secrets::shown); }

// The text of the InputError that reading ends with; empty if it does not.
template<class Read>
std::string refusal_of(Read read)
{
    try {
        read();
    } catch (const io::InputError &error) {
        return error.what();
    }
    return {};
}

// A case of a table of inputs that are refused.
struct Refused {
    const char *name;
    std::string text;
    std::string message;

    friend void PrintTo(const Refused &row, std::ostream *out) { *out << row.name; }
};

// The name of a test that is one case of a table.
template<class Case>
std::string name_of_case(const testing::TestParamInfo<Case> &row)
{
    return row.param.name;
}

// An OpenConfig tree with every kind of node, value and operation.
inline const std::string every_kind_of_node = "bgp oc-bgp\n"
                                              "  global\n"
                                              "    config [replace]\n"
                                              "      as = 65001\n"
                                              "      router-id [delete]\n"
                                              "    route-selection-options\n"
                                              "      config\n"
                                              "        always-compare-med = true\n"
                                              "        enable-aigp = maybe\n"
                                              "    confederation\n"
                                              "      config\n"
                                              "        member-as = 1\n"
                                              "        member-as [delete] = 2\n"
                                              "        member-as = 3\n"
                                              "      state\n"
                                              "        member-as\n"
                                              "    graceful-restart [remove]\n"
                                              "    afi-safis\n"
                                              "      afi-safi [create]\n"
                                              "        afi-safi-name = bgp-types:IPV4_UNICAST\n"
                                              "        config\n"
                                              "          afi-safi-name = oc-bgp:OWN\n"
                                              "      afi-safi [remove]\n"
                                              "        afi-safi-name = bgp-types:IPV6_UNICAST\n"
                                              "  neighbors\n"
                                              "    neighbor\n"
                                              "      neighbor-address = 2001:db8::1\n"
                                              "      config\n"
                                              "        peer-as = 4294967295\n"
                                              "        local-as = 4294967296\n"
                                              "        auth-password [merge] = a<b>&\"c\n"
                                              "        description = \" two\\nlines \"\n"
                                              "      state\n"
                                              "        messages\n"
                                              "          sent\n"
                                              "            UPDATE = 18446744073709551615\n"
                                              "      timers\n"
                                              "        config\n"
                                              "          hold-time = 180\n"
                                              "          keepalive-interval = 1.50\n"
                                              "      unknown\n"
                                              "        leaf = x\n"
                                              "    neighbor\n"
                                              "  peer-groups\n";
