// One request of a management client, from the framework's side: the calls of the mapping's entries, in their order,
// and what they leave to their caller. Also the shortest example of an embedding.
#pragma once

#include <cstdint>

#include "contexts.h"
#include "tree.h"

namespace framework {

class Request {
public:
    // As Contexts.
    Request(uint32_t kind, const platform::Database &database, platform::Log &log) : contexts_(kind, database, log) {}

    // Maps the request tree `bgp` into native request trees below `native`. Gives the mapping's outcome; what was added
    // before a failure stays. The mapping writes into `bgp`: a second run needs a fresh tree.
    uint32_t map(Datatree &bgp, Datatree &native);

    // Whether the native operational request has to be executed too.
    bool wants_operational() const { return contexts_.request.oper_wanted != 0; }

    // Maps the native trees below `response` back into `answer`, which gets one `bgp` child, or none if there is
    // nothing to say. Once for each request that was mapped. Gives the mapping's outcome; the trees are released
    // whatever it is.
    uint32_t answer(platform::Tree response, platform::Tree &answer);

    // What the request named, and what was refused.
    RequestContext &context() { return contexts_.request; }

private:
    Contexts contexts_;
};

}  // namespace framework
