#include "exchange.h"

#include <new>
#include <utility>

#include "answer_check.h"

namespace cli {

namespace {

// A response holds a tree for each native model.
void add_trees(platform::Tree &to, platform::Tree from)
{
    for (Datatree &tree : platform::children_of(from.root())) {
        Datatree *taken = platform::append_child(to.root(), tree.tag, tree.namespace_);
        if (taken == nullptr) throw std::bad_alloc();
        std::swap(taken->subtrees, tree.subtrees);
        std::swap(taken->subtree_count, tree.subtree_count);
        std::swap(taken->present[0], tree.present[0]);
    }
}

}  // namespace

platform::Tree response_to(const router::Router &router, const Datatree &native, bool wants_operational,
                           router::Datastore from)
{
    platform::Tree response = router.read_config(native, from);
    if (wants_operational) add_trees(response, router.read_operational(native));
    return response;
}

uint32_t answer_of(const router::Router &router, framework::MappedRequest &mapped, router::Datastore from,
                   platform::Tree &answer)
{
    platform::Tree response = response_to(router, mapped.native(), mapped.request().wants_operational(), from);
    const uint32_t outcome = mapped.request().answer(std::move(response), answer);
    if (outcome == VMF_RC_OK) framework::qualify_identities(answer.root());
    return outcome;
}

}  // namespace cli
