#include "outcome_names.h"

#include "vmf_map_platform.h"

namespace framework {

const char *constant_of_outcome(uint32_t outcome)
{
    switch (outcome) {
    case VMF_RC_BAD_TREE: return "VMF_RC_BAD_TREE";
    case VMF_RC_BAD_ARGS: return "VMF_RC_BAD_ARGS";
    case VMF_RC_NO_MEMORY: return "VMF_RC_NO_MEMORY";
    case VMF_RC_UNSUPPORTED: return "VMF_RC_UNSUPPORTED";
    case VMF_RC_BAD_KEY: return "VMF_RC_BAD_KEY";
    case VMF_RC_KEY_OPERATION: return "VMF_RC_KEY_OPERATION";
    case SYSDB_NOTHING_FOUND: return "SYSDB_NOTHING_FOUND";
    case SYSDB_END_OF_PART: return "SYSDB_END_OF_PART";
    default: return nullptr;
    }
}

}  // namespace framework
