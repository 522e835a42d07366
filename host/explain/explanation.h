// All there is to say about a node of the OpenConfig tree: what requests for it become, who answers, what comes back.
// Every word of it is the outcome of made requests, run through the mapping and through a made router.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "answers.h"
#include "handlers.h"
#include "run.h"
#include "target.h"

namespace explain {

enum class Kind {
    read,         // <get>
    read_config,  // <get-config>; told only where it becomes something else than <get> does
    merge,
    replace,
    remove,  // an edit with the operation "delete"
};
std::string_view name_of(Kind kind);
std::optional<Kind> kind_of_name(std::string_view name);

struct Request {
    Kind kind;
    std::optional<std::string> value;  // of a leaf that is written
    uint32_t outcome;
    std::vector<NativeNode> native;
    std::vector<std::string> messages;  // why it was refused; what a person should know of it
    // Only told where it becomes something else on a router on which everything is configured.
    bool on_configured_router = false;
    // What a read gives on a router that has carried the edit out: null if that refuses it, or for no merge of a leaf.
    std::optional<std::vector<std::string>> reads_back = std::nullopt;
};

// The request of that kind about a target.
Saying saying_of(Kind kind, const std::optional<std::string> &value);
bool writes(Kind kind);  // merge and replace

enum class Acceptance { writable, read_only, refused };
std::string_view name_of(Acceptance acceptance);

struct Explanation {
    Target target;
    Acceptance acceptance;
    Handler handler;  // of a list that of its key, which stands for it
    std::vector<Request> requests;
    std::vector<Answer> answers;
    std::vector<std::string> oddities;
    std::vector<std::string> families;  // with which the mapping takes the node, if it lies below a family
};

Explanation explain_node(const Target &target);

// Whether the mapping takes the node: writable if an edit of it is mapped, read-only if only a read is.
Acceptance acceptance_of(const Target &target);

// ---- What explain_node is made of -----------------------------------------------------------

std::vector<Request> made_requests(const Target &target);

// Marks what goes along with the target: beside native nodes that take its value, those that do not; beside nodes that
// it is read from, those that it is not.
void mark_companions(const Target &target, std::vector<Request> &requests);

// A router with the target's entries, on which every leaf has a value; of those that its type takes the first, or the
// last.
enum class Filled { with_first_values, with_last_values };
std::unique_ptr<MadeRouter> configured_router(const Target &target, Filled filled);

// What a person would not expect, a line each, told by comparing.
std::vector<std::string> oddities_of(const Target &target, const std::vector<Request> &requests,
                                     const std::vector<Answer> &answers);

}  // namespace explain
