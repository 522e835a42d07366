#include "mapping_input.h"

#include <algorithm>

#include "checks.h"
#include "vmf_map_platform.h"

namespace fuzz {

std::vector<platform::DatabaseRecord> AnyDatabase::find(std::string_view pattern, bool /*merged*/) const
{
    std::string location;
    const std::string halves[] = {"0", std::to_string(as_)};
    size_t half = 0;
    for (size_t at = 0; at <= pattern.size();) {
        const size_t end = std::min(pattern.find('/', at), pattern.size());
        const std::string_view element = pattern.substr(at, end - at);
        location += element == ".*" ? halves[half++ % 2] : std::string(element);
        if (end != pattern.size()) location += '/';
        at = end + 1;
    }
    if (location.ends_with('/')) location += "max-prefix";
    std::vector<platform::DatabaseRecord> found;
    for (uint32_t i = 0; i < items_ % 5; i++) {
        // The first ones are of no use where there are many.
        if (i == 0 && items_ % 5 == 4) found.push_back({"/cfg/gl/ip-bgp/default/x", {}});
        found.push_back({location, {as_, 80, 0, 0}, i / 2});
    }
    return found;
}

FailingOperations::FailingOperations(const TreeInput &input)
    : left_(input.word("fail")), once_(input.word("once") != 0), observer_{before, this}
{
    if (left_ != 0) platform::observe(&observer_);
}

uint32_t FailingOperations::before(void *self, const platform::Operation & /*operation*/)
{
    auto &failing = *static_cast<FailingOperations *>(self);
    if (failing.left_ > 1) {
        failing.left_--;
        return 0;
    }
    const bool fails = failing.left_ == 1;
    if (failing.once_) failing.left_ = 0;
    return fails ? outcome : 0;
}

constexpr uint32_t all_families = 0xFFF;
const Word request_words[33] = {
    {"global_as_named", &RequestContext::global_as_named, 1},
    {"multipath_named", &RequestContext::multipath_named, 1},
    {"config_named", &RequestContext::config_named, 1},
    {"state_named", &RequestContext::state_named, 1},
    {"oper_wanted", &RequestContext::oper_wanted, 1},
    {"global_prefixes_wanted", &RequestContext::global_prefixes_wanted, 1},
    {"af_prefixes_wanted", &RequestContext::af_prefixes_wanted, 1},
    {"global_paths_wanted", &RequestContext::global_paths_wanted, 1},
    {"af_paths_wanted", &RequestContext::af_paths_wanted, 1},
    {"nbr_af_filter", &RequestContext::nbr_af_filter, 1},
    {"grp_af_filter", &RequestContext::grp_af_filter, 1},
    {"glb_af_filter", &RequestContext::glb_af_filter, 1},
    {"glb_af_no_config", &RequestContext::glb_af_no_config, 1},
    {"glb_af_no_state", &RequestContext::glb_af_no_state, 1},
    {"nbr_no_config", &RequestContext::nbr_no_config, 1},
    {"nbr_no_state", &RequestContext::nbr_no_state, 1},
    {"nbr_af_no_config", &RequestContext::nbr_af_no_config, 1},
    {"nbr_af_no_state", &RequestContext::nbr_af_no_state, 1},
    {"grp_no_config", &RequestContext::grp_no_config, 1},
    {"grp_no_state", &RequestContext::grp_no_state, 1},
    {"grp_af_no_config", &RequestContext::grp_af_no_config, 1},
    {"grp_af_no_state", &RequestContext::grp_af_no_state, 1},
    {"key_leaf_named", &RequestContext::key_leaf_named, 1},
    {"af_name_leaf_named", &RequestContext::af_name_leaf_named, 1},
    {"nbr_af_bitmap", &RequestContext::nbr_af_bitmap, all_families},
    {"grp_af_bitmap", &RequestContext::grp_af_bitmap, all_families},
    {"glb_af_bitmap", &RequestContext::glb_af_bitmap, all_families},
    {"confederation_state_named", &RequestContext::confederation_state_named, 7},
    {"multipath_state_named", &RequestContext::multipath_state_named, 1},
    {"af_multipath_state_named", &RequestContext::af_multipath_state_named, 1},
    {"global_afisafis_named", &RequestContext::global_afisafis_named, 1},
    {"replace_scope", &RequestContext::replace_scope, 1},
    {"replace_scope_owner", &RequestContext::replace_scope_owner, 1},
};

void check_words(const RequestContext &request)
{
    for (const Word &word : request_words)
        if (request.*word.member > word.largest)
            fail(std::string(word.name) + " is at most " + std::to_string(word.largest));
}

bool is_outcome(uint32_t outcome)
{
    constexpr uint32_t known[] = {
        VMF_RC_OK,      VMF_RC_BAD_TREE,      VMF_RC_BAD_ARGS,     VMF_RC_NO_MEMORY,          VMF_RC_UNSUPPORTED,
        VMF_RC_BAD_KEY, VMF_RC_KEY_OPERATION, SYSDB_NOTHING_FOUND, FailingOperations::outcome};
    return std::find(std::begin(known), std::end(known), outcome) != std::end(known);
}

}  // namespace fuzz
