// Test cases of the handlers of the way back, as text (the notation of fields is that of support/cases.h).
//
//   case     the AS is written under both                 the behaviour in words; the test's name
//   each     $node=router-id $leaf=router-id              the case once for each of these lines, with these words in it
//   with     $peer=neighbor                               and for each of these
//   node     cfg global/router-id = 10.0.0.1              the model, the node whose handler runs, and its value if
//                                                         it has one
//   stale    7                                            a value that lies in the node without its presence bit
//   tag      peer                                         another tag for the node
//   children 2                                            the child count that a container's handler is told; else 0
//   calls    default                                      "default" or "man" in the place of the public handler
//   before   as_high=1 list=afi-safi af_key=ipv4-unicast  words that are set; entries ("list", "af", "matched") by
//   their
//            distance_texts=20,-,20,-,20,-,20,-           tag; texts, "-": null
//   over     glb_af_bitmap=0,1,0xfff                      the values that a word takes, if not 0 and 1
//   where    kept: unless glb_af_filter or if glb_af_bitmap=1,0xfff
//                                                         a name for a condition, to be used like a word
//   adds     /bgp/global/config/as = 65537 | unless state_named
//   logs     TRC No subtrees                              what the handler says between "Start" and "End"; "*" stands
//                                                         for any text
//   words    as_high=7                                    what words hold afterwards; all others are as they were
//   holds    list = 2                                     what entries and texts are afterwards: what the line of this
//            af_key = ipv4-unicast                        number added, another entry, a text, "-"
//   returns  VMF_RC_BAD_TREE                              if absent, the outcome of the last add, 0 if none was made
//   gives                                                 the tree below the output root, with all words of the
//                                                         conditions 0
//
// An add is a line:
//
//   /bgp/global            below the output root
//   list:state             below an entry of the run ("af", "matched"), "null:" below none
//   2:state, 2?list:state  below what the second line of "adds" gave; if it gave nothing, below "list"
//   entry 1:afi-safi = X   an entry of a list, with the value of its key
//   data-ns 2:afi-safi/x   a data namespace
//   ... repeat             the repeat flag
//
// A line of "adds", "logs", "words", "holds" and "returns" holds under the condition behind its bar:
//
//   if WORD ...     each of them is set; "if WORD=0,4": it has one of these values
//   unless WORD ... none of them is
//   made 1          the first line of "adds" was added;  lost 1: it was not
//   ok              no add has failed, or another one was made since
//   or              between two conditions
//   dropped         of an add: it does not count in the outcome
//
// The case is run with each combination of the words that stand in its conditions, and again with all other words of
// the request set, the request an edit and the node a deletion, which must make no difference; and with each of its
// adds failing once.
//
// A whole walk has a native tree in the place of a node:
//
//   case     families that agree
//   walk     cfg global                                   the model, the place that the lines of the tree lie in
//   native
//            router-id = 10.0.0.1
//   mapped                                                what the output root holds already; if absent, nothing
//   gives
//            bgp oc-bgp
//   logs     ERR ...                                      all lines of levels 0 and 2
#pragma once

#include <string>

namespace response {

// Registers the cases of the folder's files whose names begin like that as tests; to be called before the tests run.
bool register_cases(const std::string &prefix);

}  // namespace response
