// Test cases as text. A file holds cases one after the other; a field begins a line, what is indented below it
// continues it. Fields before the first case belong to every case of the file.
//
//   case     setting the AS writes three leaves      the behaviour in words; the test's name
//   edit     global/config/as = 65001                get, get-config, edit, or "kind N": the node whose handler runs,
//                                                    with its value and operation ([delete]) as in a tree text; its
//                                                    children, if a handler looks at them, in the lines below, indented
//                                                    from its own tag on. A child without a tag is written "-".
//   children 2                                       the child count that a container's handler is told; if absent, the
//                                                    number of children in the lines below the node
//   calls    default                                 "default" or "man" in the place of the public handler
//   before   replace_scope=1 list                    words that are set; "list", "af", "oper-list", "oper-af":
//                                                    an entry; "af_key=ipv4-unicast": a key that the walk has met;
//                                                    "af_name", "oper_key", "oper_af_name": the other texts of an entry
//   as       65000                                   the router's AS, in the system database; none if absent
//   limit    /cfg/gl/ip-bgp/.../max-prefix = 1000    an item of the candidate configuration alone: a prefix limit at
//                                                    its location; a line each
//   fails    2                                       the add of this number fails with outcome 0x77; or the operations
//                                                    of the platform that are named as in "lost"
//   adds     instance-as/as = 0 src                  what the handler adds, a line each (recorder.h); "-": nothing
//            each family: builder oper #1:af repeat; builder oper $entry:af-name = $family
//                                                    these adds for each of the twelve native families, in the order of
//                                                    the name tables ("each ipv4-unicast ipv6-unicast: ...": for
//                                                    these); $entry stands for the first add of the family, $4 for
//                                                    its fourth. A line that ends with ";" goes on in the next
//   raises   global_as_named as_low=65001            the words that changed; "-": none
//   leaves   [remove] = ipv4-unicast                 the operation and the value of the node afterwards; what is absent
//                                                    is as it was
//   holds    list = global-af [delete]               entries and keys that changed, a line each, an entry with its tag
//            af_key = ipv4-unicast                   and operation; "-": none
//   logs     TRC No subtrees                         what the handler itself says between "Start" and "End", and the
//                                                    default or the body that it hands on to; "-"
//   returns  0                                       an outcome, by name or number
//   rejects  colour                                  rejected_tag; absent: none
//
// A case with "for" stands for as many cases as the table below its words has rows, and each word for what the row
// says, in the name and in every field:
//
//   case     a get of $node selects $native
//   for      $node          $native
//            hold-time      timers/hold-time
//            keepalive      timers/keepalive-interval
//
// With such a table before the first case too, each row of the one meets each row of the other.
//
// A whole request has "request" in the place of a node, a tree text, and "gives", the native trees:
//
//   case     a confederation
//   kind     edit
//   request
//            bgp oc-bgp
//              global
//   gives
//            bgp zr-cfg
//   words    replace_scope=1 list_op=0               these words in the end, whatever the others
//
// A whole request with "lost" is run once for each operation of the platform that it asks for, with that operation
// failing: the outcome passes up and what was added until then stays, but for the operations that "lost" names, whose
// failure the request gets over ("*" stands for any text; the notation is the recorder's). "becomes" names those whose
// failure another outcome takes the place of, each line with the outcome behind an arrow.
//
//   lost     instance-as/as > *
//   becomes  * > vmf_map_datatree_add_subtree instance-as:four-byte-as -> VMF_RC_BAD_TREE
//
// A whole request checks native trees and words only if "gives", "words" or "raises" is there, and "logs" is each line
// at level 0 of any function.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "system_database.h"

namespace support {

struct Case {
    std::string file;
    int line = 0;
    std::string name;
    std::map<std::string, std::vector<std::string>> fields;  // lines of a field; those of a tree keep their indent

    bool has(const std::string &field) const { return fields.contains(field); }
    std::string text(const std::string &field, const std::string &otherwise = "") const;  // the first line
};

// Throws std::runtime_error with file and line. `fields` are the names that a file may use.
std::vector<Case> read_cases(const std::string &file, const std::vector<std::string> &fields);

// The same with every field that there is.
std::vector<Case> read_cases(const std::string &file);

// The lines of a field as a tree text, and the request kind that a word stands for.
std::string tree_of(const Case &it, const std::string &field);
uint32_t number_of_kind(const std::string &text);

// The items of the system database that a case names.
std::vector<platform::DatabaseRecord> records_of(const Case &it);

// Registers each case of each file as a test of its own.
void register_cases(const std::vector<std::string> &files);

}  // namespace support
