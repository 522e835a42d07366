// Where an edit becomes something else than it says: for the person who sends it.
#pragma once

#include <string>
#include <vector>

#include "vmf_map_types.h"

namespace framework {

// One note a rule that the edit meets, in the order of the rules, with the client's path to the first node that meets
// it: "/bgp/global/config/as: takes all of BGP away". `bgp` is the edit as it was read.
std::vector<std::string> edit_notes(const Datatree &bgp);

}  // namespace framework
