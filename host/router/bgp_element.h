// Operational data comes as a NETCONF client got it: in the `data` of a reply, or without.
#pragma once

#include <string>
#include <string_view>

#include "native_schema.h"

namespace router {

// The text with white space in place of all that is not the `bgp` element of the module of `root`, which stands alone
// or in NETCONF's `data`; an empty such element if `data` is empty. What libyang says of a line then fits the text as
// it was. `file` is the name for messages. Throws Refused for any other element, and io::InputError for what is no XML,
// is beyond the bounds of io/document.h, or would take libyang for ever: a node that stands a thousand times in one
// place.
std::string bgp_element(std::string_view text, const std::string &file, const Schema &root);

}  // namespace router
