// What an edit does besides what it says: other leaves of the configuration that read otherwise afterwards.
#pragma once

#include <set>
#include <string>

#include "explanation.h"

namespace explain {

struct Effects {
    std::set<std::string> gone;     // schema paths: of leaves, or of a subtree that has gone with all its leaves
    std::set<std::string> written;  // "PATH as \"VALUE\""
};

// Of an accepted edit, what stands below the target left out. A removal is tried on a router on which all is
// configured, everything else on one that has the entries alone.
Effects effects_of(const Target &target, const Request &request);

}  // namespace explain
