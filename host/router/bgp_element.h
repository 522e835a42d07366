// Operational data comes as a NETCONF client got it: in the `data` of a reply, or without.
#pragma once

#include <string>
#include <string_view>

namespace router {

// The text with white space in place of all that is not the `bgp` element of `ns`, which stands alone or in NETCONF's
// `data`; an empty such element if `data` is empty. What libyang says of a line then fits the text as it was. `file` is
// the name for messages. Throws io::InputError for what is no XML, Refused for any other element.
std::string bgp_element(std::string_view text, const std::string &file, const char *ns);

}  // namespace router
