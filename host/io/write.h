// Trees of the platform as text: XML, JSON (RFC 7951 where the models are known), and a plain tree.
#pragma once

#include <string>

#include "vmf_map_types.h"

namespace io {

enum class Secrets { hidden, shown };  // hidden: a password is written as "***"

// What stands around the trees in XML: the place that a NETCONF client would put them in.
enum class Envelope { config, filter, data };

// `holder` is a record whose children are the trees to write, any number of them, of one or several models.
std::string write_xml(const Datatree &holder, Envelope envelope, Secrets secrets);

// The trees are requests, which JSON of data does not foresee: what repeats is an array, and a leaf without a value is
// [null]. Siblings of one name are gathered where the first stands.
std::string write_json(const Datatree &holder, Secrets secrets);

std::string write_tree(const Datatree &holder, Secrets secrets);

}  // namespace io
