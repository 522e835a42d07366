// Native data as XML: what the router keeps on disk, and what it is given.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "records.h"
#include "router.h"

namespace router {

// One `bgp` element, a line a node; an empty one if there is nothing.
std::string write_xml(const Branch &data, const Schema &root);

// What libyang does not take.
struct BadXml : std::runtime_error {
    BadXml(Violation what, std::string line_, bool is_malformed_);
    Violation violation;
    std::string line;   // its number; empty: of no line
    bool is_malformed;  // it is no XML, or one without the shape of data
};

// structure: names, types, keys, and that nothing stands twice. model: all that the model says.
enum class Check { structure, model };

// The data of a text with one `bgp` element. Throws BadXml.
std::shared_ptr<Branch> read_xml(const std::string &text, const Schema &root, Check check);

// Holds a text of write_xml() against the models. No other: it is read in the belief that everything stands in the
// order of the model. Throws BadXml.
void check_xml(const std::string &text);

}  // namespace router
