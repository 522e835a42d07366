// What a framework reports to a NETCONF client when a request fails: the outcome of the mapping, or what the reader or
// the router refuses, as an error of RFC 6241.
#pragma once

#include "mapped_request.h"
#include "rpc_error.h"

namespace framework {

// outcome                 where                                          error-tag
// VMF_RC_UNSUPPORTED      at a node that the model does not have         unknown-element
//                         at an identity that is not one of the model    invalid-value
//                         at any other                                   operation-not-supported
// VMF_RC_BAD_KEY          in a list entry without its key                missing-element
//                         at a key without a value                       invalid-value
// VMF_RC_KEY_OPERATION    at a key that is taken away                    bad-attribute
// VMF_RC_BAD_ARGS         at a value that cannot be read                 invalid-value
//                         anywhere else                                  operation-failed
// VMF_RC_BAD_TREE                                                        operation-failed
// VMF_RC_NO_MEMORY                                                       resource-denied
// nothing found in the system database                                   data-missing
// any other                                                              operation-failed
io::RpcError error_of(const Refusal &refusal);

// The mapping did not take what the router answered. `tag` may be null.
io::RpcError error_of_answer(uint32_t outcome, const char *tag);

// `reason` in the words of the reader:
//
// not well-formed, empty, or not UTF-8                                   malformed-message
// larger, longer or deeper than this reader takes                        too-big
// a file that cannot be read                                             operation-failed
// anything else that a request cannot hold                               invalid-value
io::RpcError error_of_input(const std::string &reason);

}  // namespace framework
