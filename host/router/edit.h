// Edits: native request trees executed on the configuration.
#pragma once

#include <memory>

#include "records.h"
#include "vmf_map_types.h"

namespace router {

// The configuration as the native trees among the children of `request` make it from `config`, which stays as it is.
// Both are the root of the module. Throws Refused.
std::shared_ptr<Branch> edited(const std::shared_ptr<Branch> &config, const Datatree &request);

}  // namespace router
