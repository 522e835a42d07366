// Writes an edit of so many neighbors as a document, with the AS number and the group that they need.
//
//   bench_document NEIGHBORS > edit.xml
#include <cstdio>
#include <cstdlib>

#include "names.h"
#include "tree.h"
#include "workload.h"
#include "xml.h"

static Datatree &add(Datatree &parent, const char *tag, const char *value = nullptr)
{
    Datatree &child = *platform::append_child(parent, platform::intern(tag), platform::intern(OC_BGP_NS));
    if (value != nullptr) platform::set_value(child, value);
    return child;
}

int main(int argc, char **argv)
{
    const size_t neighbors = argc == 2 ? std::strtoul(argv[1], nullptr, 10) : 0;
    if (neighbors == 0) {
        std::fputs("usage: bench_document NEIGHBORS > edit.xml\n", stderr);
        return 2;
    }
    platform::Tree tree = bench::openconfig_neighbors(neighbors);
    add(add(add(tree.root(), "global"), "config"), "as", "65001");
    add(add(add(tree.root(), "peer-groups"), "peer-group"), "peer-group-name", "CUSTOMERS");
    const bench::XmlDocument document = bench::xml_of(tree.root(), OC_BGP_NS);
    return xmlDocFormatDump(stdout, document.get(), 1) > 0 ? 0 : 1;
}
