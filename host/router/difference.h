// The difference of two data trees, for people.
#pragma once

#include <string>

#include "vmf_map_types.h"
#include "write.h"

namespace router {

// Both are records whose children are the trees, as the router's answers are: native or OpenConfig data.
//
// A line a node that is only in one of them, "- PATH = VALUE" or "+ PATH = VALUE", in the order of the trees; a value
// that changed is both. A leaf without a value, and a list entry before what stands in it, is a path alone; its keys
// stand in the path. List entries are met by their keys, which the models tell. The values of a leaf-list are a set,
// but where the model leaves the order to the user, another order shows as all values gone and all values new. Empty:
// no difference. Takes time in proportion to the trees, however long their lists.
std::string difference(const Datatree &before, const Datatree &after, io::Secrets secrets);

}  // namespace router
