#include "mapped_request.h"

#include <cstring>

#include "edit_notes.h"
#include "nodes.h"
#include "observer.h"
#include "origins.h"
#include "vmf_map_platform.h"
#include "walk_follower.h"

namespace framework {

// What a walk that is followed leaves. The mapping writes into its request; the client's paths are told by another.
struct MappedRequest::Followed {
    explicit Followed(io::Document read) : as_written(std::move(read)), follower(as_written.bgp.root()) {}

    io::Document as_written;
    WalkFollower follower;
    Origins origins;
};

MappedRequest::MappedRequest(Setting setting) : setting_(std::move(setting)), trace_(0)
{
    if (setting_.trace) {
        run_followed();
    } else {
        run();
        if (outcome_ != VMF_RC_OK) run_followed();  // once more, to see where
    }
    if (followed_ == nullptr) return;
    const char *tag = request_->context().rejected_tag;
    const std::string &reason = followed_->follower.reason();
    refusal_ = {outcome_, reason.empty() ? cerr_strerror(outcome_) : reason, tag != nullptr ? tag : "",
                followed_->follower.path_of_end()};
}

MappedRequest::~MappedRequest() = default;

void MappedRequest::map(io::Document &document)
{
    notes_ = document.notes;
    std::vector<std::string> of_edit;
    if (setting_.kind == VMF_REQ_EDIT) of_edit = edit_notes(document.bgp.root());
    outcome_ = request_->map(document.bgp.root(), native_.root());
    if (outcome_ == VMF_RC_OK) std::move(of_edit.begin(), of_edit.end(), std::back_inserter(notes_));
}

void MappedRequest::run()
{
    io::Document document = setting_.read();
    request_ = std::make_unique<Request>(setting_.kind, *setting_.database, log_);
    map(document);
}

void MappedRequest::run_followed()
{
    followed_ = std::make_unique<Followed>(setting_.read());
    io::Document document = setting_.read();
    native_ = {};
    bool walks = true;
    trace_.listener = [&](std::string_view line) {
        if (walks) followed_->follower.follow(line);
        if (setting_.trace) setting_.trace(line);
    };
    log_.trace = &trace_;
    request_ = std::make_unique<Request>(setting_.kind, *setting_.database, log_);
    {
        const OriginWatch watch(followed_->origins, followed_->follower);
        map(document);
    }
    walks = false;
    // The way back is traced only if somebody listens.
    trace_.listener = setting_.trace;
}

std::string MappedRequest::origin_of(const std::string &native_path)
{
    if (followed_ == nullptr) {
        MappedRequest again({setting_.read, setting_.kind, setting_.database, [](std::string_view) {}});
        return again.origin_of(native_path);
    }
    return followed_->origins.find(native_path);
}

}  // namespace framework
