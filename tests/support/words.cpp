#include "words.h"

namespace support {

namespace {

struct Word {
    const char *name;
    uint32_t RequestContext::*of_request;
    uint32_t MapContext::*of_run;
};

#define REQ(word)                                                                                                      \
    {                                                                                                                  \
#word, &RequestContext::word, nullptr                                                                          \
    }
#define RUN(word)                                                                                                      \
    {                                                                                                                  \
#word, nullptr, &MapContext::word                                                                              \
    }

constexpr Word words[] = {
    REQ(global_as_named),
    REQ(multipath_named),
    REQ(response_pending),
    REQ(config_named),
    REQ(state_named),
    REQ(oper_wanted),
    REQ(global_prefixes_wanted),
    REQ(af_prefixes_wanted),
    REQ(global_paths_wanted),
    REQ(af_paths_wanted),
    REQ(nbr_af_filter),
    REQ(grp_af_filter),
    REQ(glb_af_filter),
    REQ(glb_af_no_config),
    REQ(glb_af_no_state),
    REQ(nbr_no_config),
    REQ(nbr_no_state),
    REQ(nbr_af_no_config),
    REQ(nbr_af_no_state),
    REQ(grp_no_config),
    REQ(grp_no_state),
    REQ(grp_af_no_config),
    REQ(grp_af_no_state),
    REQ(key_leaf_named),
    REQ(af_name_leaf_named),
    REQ(nbr_af_bitmap),
    REQ(grp_af_bitmap),
    REQ(glb_af_bitmap),
    REQ(confederation_state_named),
    REQ(multipath_state_named),
    REQ(af_multipath_state_named),
    REQ(global_afisafis_named),
    REQ(replace_scope),
    REQ(replace_scope_owner),
    RUN(list_op_present),
    RUN(list_op),
    RUN(as_high),
    RUN(as_low),
    RUN(as_written),
    RUN(password_disabled),
    RUN(af_seen_bitmap),
    RUN(af_option_bitmap),
    RUN(ebgp_paths_count),
    RUN(ibgp_paths_count),
    RUN(local_address_seen),
    RUN(four_byte_sent),
    RUN(four_byte_received),
    RUN(oper_wanted_in_state),
    RUN(total_paths),
    RUN(total_prefixes),
    RUN(prefix_limit_added),
    RUN(list_child_count),
    RUN(af_mapped),
};

#undef REQ
#undef RUN

}  // namespace

bool set_word(const std::string &name, uint32_t value, RequestContext &request, MapContext &run)
{
    if (name == "private_as_state") {  // the only signed word
        run.private_as_state = static_cast<int32_t>(value);
        return true;
    }
    for (const Word &word : words) {
        if (name != word.name) continue;
        if (word.of_request != nullptr)
            request.*word.of_request = value;
        else
            run.*word.of_run = value;
        return true;
    }
    return false;
}

std::map<std::string, uint32_t> words_of(const RequestContext &request, const MapContext &run)
{
    std::map<std::string, uint32_t> values = {{"private_as_state", static_cast<uint32_t>(run.private_as_state)}};
    for (const Word &word : words)
        values[word.name] = word.of_request != nullptr ? request.*word.of_request : run.*word.of_run;
    return values;
}

}  // namespace support
