// `--rpc-error`: what a framework would answer to a NETCONF client, on standard output, where a command fails.
#pragma once

#include <functional>
#include <string>

#include "mapped_request.h"
#include "router.h"

namespace cli {

// `bgp` is the request as it was written.
void print_rpc_error(const framework::Refusal &refusal, const Datatree &bgp);

// The mapping did not take what the router answered. `tag` may be null.
void print_rpc_error_of_answer(uint32_t outcome, const char *tag);

// As print_violations; `bgp` may be null.
void print_rpc_errors(const router::Refused &refused, const Datatree *bgp,
                      const std::function<std::string(const std::string &native_path)> &origin_of = {});

// Does the work of a command. What it throws is thrown on; if `wanted`, it is told as an error of NETCONF before:
// what the reader refuses (refusal_errors.h), what the router refuses and a damaged or missing router as
// "operation-failed", a router that another process has as "in-use", a lack of memory as "resource-denied".
int telling_rpc_errors(bool wanted, const std::function<int()> &work);

}  // namespace cli
