#include "recording.h"

#include <new>

#include "answer_check.h"
#include "edit_notes.h"
#include "vmf_map_platform.h"
#include "walk_follower.h"

namespace framework {

namespace {

void copy_below(Datatree &to, const Datatree &from)
{
    for (const Datatree &child : platform::children_of(from)) {
        Datatree *copy = platform::append_child(to, platform::tag_of(child), platform::namespace_of(child));
        if (copy == nullptr) throw std::bad_alloc();
        if (const char *value = platform::value_of(child))
            if (!platform::set_value(*copy, value)) throw std::bad_alloc();
        if (platform::has_operation(child)) platform::set_operation(*copy, child.operation);
        if (const char *ns = platform::data_namespace_of(child)) platform::set_data_namespace(*copy, ns);
        copy_below(*copy, child);
    }
}

platform::Log log_into(platform::TraceBuffer &trace)
{
    platform::Log log;
    log.trace = &trace;
    return log;
}

}  // namespace

platform::Tree copy_of(const Datatree &holder)
{
    platform::Tree copy;
    copy_below(copy.root(), holder);
    return copy;
}

Datatree holder_of(const Datatree &tree)
{
    Datatree holder = {};
    holder.subtrees = const_cast<Datatree *>(&tree);
    holder.subtree_count = 1;
    holder.present[0] = VMF_DT_SUBTREES;
    return holder;
}

io::Document copy_of_request(const Datatree &bgp)
{
    const Datatree holder = holder_of(bgp);
    platform::Tree copy = copy_of(holder);
    io::Document document;
    std::swap(document.bgp.root(), platform::children_of(copy.root()).front());
    return document;
}

class RecordedRequest::WatchedDatabase final : public platform::Database {
public:
    WatchedDatabase(const platform::Database &database, std::vector<Query> &queries)
        : database_(database), queries_(queries)
    {
    }

    std::vector<platform::DatabaseRecord> find(std::string_view pattern, bool merged) const override
    {
        queries_.push_back({std::string(pattern), merged, database_.find(pattern, merged)});
        return queries_.back().records;
    }

private:
    const platform::Database &database_;
    std::vector<Query> &queries_;
};

RecordedRequest::RecordedRequest(const std::function<io::Document()> &read, uint32_t kind,
                                 const platform::Database &database)
    : recording_{.kind = kind, .request = read()},
      database_(std::make_unique<WatchedDatabase>(database, recording_.queries)), trace_(0), log_(log_into(trace_)),
      request_(kind, *database_, log_)
{
    io::Document document = read();
    recording_.notes = document.notes;
    const Datatree &bgp = recording_.request.bgp.root();
    WalkFollower follower(bgp);
    WalkRecorder recorder({&bgp, 1}, request_.context());
    trace_.listener = [&](std::string_view line) {
        follower.follow(line);
        recorder.follow(line);
    };
    recording_.outcome = request_.map(document.bgp.root(), recording_.native.root());
    trace_.listener = {};
    recording_.walk = recorder.take();
    recording_.wants_operational = request_.wants_operational();
    if (recording_.outcome != VMF_RC_OK) {
        const char *tag = request_.context().rejected_tag;
        const std::string &reason = follower.reason();
        recording_.refusal = {recording_.outcome, reason.empty() ? cerr_strerror(recording_.outcome) : reason,
                              tag != nullptr ? tag : "", follower.path_of_end()};
    }
    if (recording_.outcome == VMF_RC_OK && kind == VMF_REQ_EDIT)
        for (std::string &note : edit_notes(bgp)) recording_.notes.push_back(std::move(note));
    recording_.flags = request_.context();
}

RecordedRequest::~RecordedRequest() = default;

void RecordedRequest::answer(platform::Tree response)
{
    recording_.response = copy_of(response.root());
    recording_.was_answered = true;
    WalkRecorder recorder(platform::children_of(recording_.response.root()), request_.context());
    trace_.listener = [&](std::string_view line) { recorder.follow(line); };
    recording_.answer_outcome = request_.answer(std::move(response), recording_.answer);
    trace_.listener = {};
    recording_.way_back = recorder.take();
    if (recording_.answer_outcome == VMF_RC_OK) qualify_identities(recording_.answer.root());
}

}  // namespace framework
