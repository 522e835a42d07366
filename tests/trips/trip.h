// Whole trips as text: OpenConfig into the embedded router, and back. A file holds trips one after the other. A step
// begins a line; what is indented below it belongs to it.
//
//   trip     a router id comes back            the behaviour in words; the test's name
//   each     $what|$as  one|1  two|2           a trip for each of these: "$what" stands for "one", then for "two";
//                                              several such steps multiply
//   list     words  one|1  two|2               before the first trip: "each  $what|$as  words" is the same
//   under    neighbor                          where paths begin, of the steps behind it: "global", which is where
//                                              they begin without, "neighbor", a neighbor, "group", a peer group,
//                                              or a whole path
//   empty                                      the router runs no BGP yet; otherwise it has the AS 65001
//   plain    config/router-id = 192.0.2.1      a leaf that is written, reads back as it was written, as configuration
//            config/as = 65001                 and as its twin below `state`, is deleted, and is gone. The leaves in
//                                              the lines below come along, or their twins, each time
//   edit     config/router-id = 192.0.2.1      an edit with this node, and those in the lines below: each with its
//            [IPV4_UNICAST]/config [delete]    operation, then its value. Mapped, applied and committed
//   refused  Unsupported tag is specified      the last step is refused, by the mapping or by the router, and the
//                                              reason or rule begins so
//   get-config  config                         a read with these nodes, in one line, and what comes back in the lines
//            config/as = 65001                 below, whatever its order; "-": an empty bgp; "nothing": no tree. A node
//                                              may have a value, without blanks: config/as=65001
//   get      state config/as                   the same of configuration and state
//   native                                     a native edit, a tree text
//            bgp zr-cfg
//   operational  ipv4-unicast 100 50           native operational data: of each family its paths and prefixes
//            ipv6-unicast 20 10
//   operational  examples/operational.xml      the same from a file of the project
//   operational  <neighbors>...</neighbors>    the same of neighbors, as XML
//
// "." is the node itself where paths begin; others begin with "/bgp". "[IPV4_UNICAST]" at the beginning stands for that
// entry of afi-safis/afi-safi. An entry comes back as a line of its own, its key as nothing else. An identity of the
// module of BGP types is told from a native word: it stands with its prefix, but for keys, which cannot be anything
// else.
#pragma once

#include <string>
#include <vector>

namespace trips {

struct Step {
    std::string verb;
    int line = 0;                    // in the file
    std::string text;                // behind the verb
    std::vector<std::string> lines;  // below it, with their indent to each other
    std::string base = {};           // where its paths begin; empty: below `global`
};

struct Trip {
    std::string file;
    int line = 0;
    std::string name;
    std::vector<Step> steps;  // without any "plain", "each", "under"
};

// Throws std::runtime_error with file and line.
std::vector<Trip> read_trips(const std::string &file);

// All of the folder, by file.
std::vector<Trip> all_trips();

// What an edit step names: each node with its operation and value.
struct Named {
    std::string path;  // whole
    std::string operation;
    std::string value;
    bool has_value = false;
};
std::vector<Named> nodes_of_edit(const Step &step);

// What a read step names, and the lines that come back: paths are whole.
std::vector<Named> nodes_of_read(const Step &step);
std::vector<std::string> answer_of_read(const Step &step);

}  // namespace trips
