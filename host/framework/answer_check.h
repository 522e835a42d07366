// Holds an answer against the OpenConfig model. The mapping writes some native words and paths that the model does not
// know; a person should be told.
#pragma once

#include <string>
#include <vector>

#include "vmf_map_types.h"

namespace framework {

// Gives the identities below the holder `answer` that come without their module the one that the model has them in.
void qualify_identities(Datatree &answer);

// Takes out what the model says is no configuration.
void drop_state(Datatree &answer);

// A line for each node below the holder `answer` that the model does not have, or whose value does not fit its type.
std::vector<std::string> check_answer(const Datatree &answer);

}  // namespace framework
