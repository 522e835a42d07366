// What the fuzzers of the mapping share: a router that answers any query, operations that fail, words of the request.
#pragma once

#include "contexts.h"
#include "observer.h"
#include "system_database.h"
#include "tree_input.h"

namespace fuzz {

// Has an item wherever somebody asks, as often as `items` says: an AS number, or a prefix limit.
class AnyDatabase final : public platform::Database {
public:
    explicit AnyDatabase(const TreeInput &input) : items_(input.word("items", 1)), as_(input.word("as", 65001)) {}
    std::vector<platform::DatabaseRecord> find(std::string_view pattern, bool merged) const override;

private:
    uint32_t items_;
    uint32_t as_;
};

// Lets operations fail from that number on, as when memory runs out; 0: none. Some handlers go on with the entry of
// before when theirs was not added, which may have moved: that is no input of a request, and nothing to search for
// here.
class FailingOperations {
public:
    explicit FailingOperations(uint32_t number);
    ~FailingOperations() { platform::observe(nullptr); }
    FailingOperations(const FailingOperations &) = delete;
    FailingOperations &operator=(const FailingOperations &) = delete;

    static constexpr uint32_t outcome = 0x77;

private:
    static uint32_t before(void *self, const platform::Operation &operation);

    uint32_t left_;
    platform::Observer observer_;
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
