#include "database_items.h"

namespace framework {

platform::DatabaseRecord global_as_item(uint32_t as_high, uint32_t as_low)
{
    platform::DatabaseRecord item;
    item.location =
        "/cfg/gl/ip-bgp/default/" + std::to_string(as_high) + "/" + std::to_string(as_low) + "/gbl/edm/ord_a/running";
    return item;
}

}  // namespace framework
