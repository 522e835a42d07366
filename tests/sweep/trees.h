// An exchange of the golden set, run on its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "golden.h"
#include "observer.h"
#include "request.h"
#include "system_database.h"
#include "tree.h"
#include "tree_text.h"
#include "write.h"

namespace sweep {

inline std::string text_of(const platform::Tree &tree) { return io::write_tree(tree.root(), io::Secrets::shown); }

inline void copy(const Datatree &from, Datatree &to)
{
    if (const char *value = platform::value_of(from)) platform::set_value(to, value);
    if (platform::has_operation(from)) platform::set_operation(to, from.operation);
    platform::set_data_namespace(to, platform::data_namespace_of(from));
    for (const Datatree &child : platform::children_of(from))
        copy(child, *platform::append_child(to, platform::tag_of(child), platform::namespace_of(child)));
}

inline platform::Tree copy_of(const platform::Tree &tree)
{
    platform::Tree made;
    copy(tree.root(), made.root());
    return made;
}

// As an exchange has them. The mapping writes into its trees: a run takes copies.
struct Trees {
    explicit Trees(const Exchange &exchange)
        : request(io::read_tree(exchange.request)), response(io::read_tree(exchange.response))
    {
    }
    platform::Tree request;
    platform::Tree response;
};

// The outcome of an operation that is made to fail.
constexpr uint32_t injected = 0x77;

// Counts the operations, and lets the one of this number fail; 0: none.
struct Failing {
    size_t number;
    size_t count = 0;

    static uint32_t before(void *self, const platform::Operation & /*operation*/)
    {
        auto &failing = *static_cast<Failing *>(self);
        return ++failing.count == failing.number ? injected : 0;
    }
};

// An exchange on its way there, and back if its request is mapped and has a response.
class Run {
public:
    Run(const Exchange &exchange, platform::Log &log) : exchange_(exchange), request_(exchange.kind, database_, log)
    {
        for (const platform::DatabaseRecord &record : exchange.records) database_.put(record);
        request_.context().response_pending = exchange.response_pending;
    }

    // `Failing::before` is asked before each operation of the platform.
    template<class Failing>
    void go(const Trees &trees, Failing &failing)
    {
        platform::Tree request = copy_of(trees.request), response = copy_of(trees.response);
        const platform::Observer observer = {Failing::before, &failing, nullptr};
        platform::observe(&observer);
        there = request_.map(platform::children_of(request.root()).front(), native.root());
        comes_back = there == VMF_RC_OK && !exchange_.response.empty();
        if (comes_back) back = request_.answer(std::move(response), answer);
        platform::observe(nullptr);
    }

    // Both outcomes and both trees.
    std::string result() const
    {
        return std::to_string(there) + " " + std::to_string(back) + "\n" + text_of(native) + text_of(answer);
    }

    platform::Tree native;
    platform::Tree answer;
    uint32_t there = 0;
    bool comes_back = false;
    uint32_t back = 0;

private:
    const Exchange &exchange_;
    platform::SystemDatabase database_;
    framework::Request request_;
};

}  // namespace sweep
