#include "exchange.h"

#include <utility>

#include "answer_check.h"

namespace cli {

// A response holds a tree for each native model.
platform::Tree response_to(const router::Router &router, const Datatree &native, bool wants_operational,
                           router::Datastore from)
{
    platform::Tree response = router.read_config(native, from);
    if (wants_operational) platform::move_trees(response, router.read_operational(native));
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
