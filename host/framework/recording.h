// One request with all that happened to it, from what was asked to what came back: what a trace shows, what is kept to
// be run again, and what tells why something is missing.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "document.h"
#include "mapped_request.h"
#include "system_database.h"
#include "walk_recorder.h"

namespace framework {

// A query of the system database, and what was answered.
struct Query {
    std::string pattern;
    bool merged = false;  // of the candidate configuration; else of the running one alone
    std::vector<platform::DatabaseRecord> records = {};

    bool operator==(const Query &) const = default;
};

struct Recording {
    uint32_t kind = 0;
    io::Document request;             // as it was written
    std::vector<Query> queries = {};  // in their order
    platform::Tree native = {};       // what the request became
    uint32_t outcome = 0;             // of the way in
    Refusal refusal = {};             // if that is not 0
    std::vector<std::string> notes = {};
    bool wants_operational = false;  // the native operational request has to be executed too
    Step walk = {.kind = Step::Kind::function, .name = ""};

    // The way back, of a read that was answered.
    bool was_answered = false;
    platform::Tree response = {};  // what the router said
    uint32_t answer_outcome = 0;
    platform::Tree answer = {};
    Step way_back = {.kind = Step::Kind::function, .name = ""};
    RequestContext flags = {};  // as the way in left them; its pointers are nobody's
};

// Runs a request and writes down what happens.
class RecordedRequest {
public:
    // Maps the request. Throws what `read` throws, which gives the request, each time anew. `database` outlives this.
    RecordedRequest(const std::function<io::Document()> &read, uint32_t kind, const platform::Database &database);
    ~RecordedRequest();
    RecordedRequest(const RecordedRequest &) = delete;
    RecordedRequest &operator=(const RecordedRequest &) = delete;

    // The way back, once, if the request was mapped.
    void answer(platform::Tree response);

    const Recording &recording() const { return recording_; }

private:
    class WatchedDatabase;

    Recording recording_;
    std::unique_ptr<WatchedDatabase> database_;
    platform::TraceBuffer trace_;
    platform::Log log_;
    Request request_;
};

// A copy of what stands below a holder. Throws std::bad_alloc.
platform::Tree copy_of(const Datatree &holder);

// A holder whose one child is `tree`, which it borrows.
Datatree holder_of(const Datatree &tree);

// A request anew, since the mapping writes into it.
io::Document copy_of_request(const Datatree &bgp);

inline bool is_read(uint32_t kind) { return kind == VMF_REQ_GET || kind == VMF_REQ_GET_CONFIG; }

}  // namespace framework
