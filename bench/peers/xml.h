// Documents of libxml2: made of the benchmark's input, and as text.
#pragma once

#include <libxml/tree.h>

#include <memory>
#include <string>

#include "peer.h"
#include "vmf_map_types.h"

namespace bench {

using XmlDocument = std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)>;

// A document of the node and all below it, in one namespace, without a blank between elements.
XmlDocument xml_of(const Datatree &node, const char *ns);
XmlDocument xml_input(Way way, size_t neighbors);

size_t count_elements(const xmlNode *element);
std::string text_of(xmlNode *element);

}  // namespace bench
