// What the fuzzers of the mapping share: a router that answers any query, operations that fail, words of the request.
#pragma once

#include "contexts.h"
#include "observer.h"
#include "system_database.h"
#include "tree.h"
#include "tree_input.h"

namespace fuzz {

// What a program of mapping_mutator.cpp changes in its inputs.
extern const Choice mapping_choice;

// Has an item wherever somebody asks, as often as `items` says: an AS number, or a prefix limit.
class AnyDatabase final : public platform::Database {
public:
    explicit AnyDatabase(const TreeInput &input) : items_(input.word("items", 1)), as_(input.word("as", 65001)) {}
    std::vector<platform::DatabaseRecord> find(std::string_view pattern, bool merged) const override;

private:
    uint32_t items_;
    uint32_t as_;
};

// Lets operations fail from the one of the number "fail" on, as when memory runs out, or that one alone if "once" says
// so; 0: none.
class FailingOperations {
public:
    explicit FailingOperations(const TreeInput &input);
    ~FailingOperations() { platform::observe(nullptr); }
    FailingOperations(const FailingOperations &) = delete;
    FailingOperations &operator=(const FailingOperations &) = delete;

    static constexpr uint32_t outcome = 0x77;

private:
    static uint32_t before(void *self, const platform::Operation &operation);

    uint32_t left_;
    bool once_;
    platform::Observer observer_;
};

// Moves every array of children that something is added to.
class MovingArrays {
public:
    explicit MovingArrays(bool moves) { platform::move_arrays_at_every_add(moves); }
    ~MovingArrays() { platform::move_arrays_at_every_add(false); }
    MovingArrays(const MovingArrays &) = delete;
    MovingArrays &operator=(const MovingArrays &) = delete;
};

struct Word {
    const char *name;
    uint32_t RequestContext::*member;
    uint32_t largest;
};

// Every word of a request that the way back can find set.
extern const Word request_words[33];

void check_words(const RequestContext &request);

// Outcomes that the mapping makes itself, or hands on from the platform.
bool is_outcome(uint32_t outcome);

}  // namespace fuzz
