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

platform::Tree execute(const router::Router &router, framework::MappedRequest &mapped, router::Datastore from)
{
    platform::Tree response = router.read_config(mapped.native(), from);
    if (mapped.request().wants_operational()) add_trees(response, router.read_operational(mapped.native()));
    return response;
}

}  // namespace

uint32_t answer_of(const router::Router &router, framework::MappedRequest &mapped, router::Datastore from,
                   platform::Tree &answer)
{
    const uint32_t outcome = mapped.request().answer(execute(router, mapped, from), answer);
    if (outcome == VMF_RC_OK) framework::qualify_identities(answer.root());
    return outcome;
}

}  // namespace cli
