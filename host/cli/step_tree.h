// The steps of a walk as a tree for people: a node of the request or of the answer a line, with the handler that took
// it, and below it what the handler did and the nodes inside.
#pragma once

#include <string>
#include <vector>

#include "recording.h"
#include "write.h"

namespace cli {

struct StepStyle {
    bool is_coloured = false;
    io::Secrets secrets = io::Secrets::hidden;
    const std::vector<framework::Query> *queries = nullptr;  // of the walk, with what was answered; null: not told
    std::vector<std::string> passwords = {};                 // that the mapping may quote, where secrets are hidden
};

// `walk` is what WalkRecorder::take gave. "+" is an add, "~" a flag of the request's record, "?" a query of the system
// database, "-" a remark, "!" what failed or was refused, "call" a handler that another one called for the same node.
std::string write_steps(const framework::Step &walk, const StepStyle &style);

// The walks of a request and of its answer as JSON, every function of the mapping included. An answer may be null.
std::string write_steps_json(const framework::Step &request, const framework::Step *answer, const StepStyle &style);

// The commands of a terminal for colours, or none.
struct Paint {
    const char *node = "";
    const char *symbol = "";
    const char *added = "";
    const char *flagged = "";
    const char *refused = "";
    const char *aside = "";
    const char *end = "";
};
const Paint &paint_of(bool is_coloured);

}  // namespace cli
