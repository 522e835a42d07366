// A read request and the embedded router: what a management framework does between the two halves of the mapping.
#pragma once

#include <cstdint>

#include "mapped_request.h"
#include "router.h"

namespace cli {

// What a datastore and, if it is wanted, the operational data answer to native request trees.
platform::Tree response_to(const router::Router &router, const Datatree &native, bool wants_operational,
                           router::Datastore from);

// Executes what a read request became natively, on a datastore and, if the request wants it, on the operational data,
// and maps what came back into `answer`. Gives the outcome of the way back. Once for each request.
uint32_t answer_of(const router::Router &router, framework::MappedRequest &mapped, router::Datastore from,
                   platform::Tree &answer);

}  // namespace cli
