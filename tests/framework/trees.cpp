#include "trees.h"

#include "database_items.h"
#include "tree_text.h"
#include "write.h"

std::string request_text(const std::string &inside) { return "bgp oc-bgp\n" + inside; }

std::string configuration(const std::string &families)
{
    return "bgp zr-cfg\n"
           "  instance\n"
           "    instance-name = default\n"
           "    instance-as\n"
           "      as = 0\n"
           "      four-byte-as\n"
           "        as = 65001\n"
           "        default-vrf\n"
           "          global\n"
           "            router-id = 192.0.2.1\n" +
           families;
}

std::string operational()
{
    return "bgp zr-oper\n"
           "  instances\n"
           "    instance\n"
           "      instance-name = default\n"
           "      instance-active\n"
           "        default-vrf\n"
           "          afs\n"
           "            af\n"
           "              af-name = ipv4-unicast\n"
           "              global-af-process-info\n"
           "                global\n"
           "                  scan-prefixes = 50\n"
           "              af-process-info\n"
           "                global\n"
           "                  paths-num = 100\n";
}

std::string text_of(const platform::Tree &tree) { return io::write_tree(tree.root(), io::Secrets::shown); }

Exchange::Exchange(uint32_t kind, const std::string &request_inside) : request(kind, database, log)
{
    database.put(framework::global_as_item(0, 65001));
    const platform::Tree holder = io::read_tree(request_text(request_inside));
    outcome = request.map(platform::children_of(holder.root()).front(), native.root());
}

uint32_t Exchange::answer(const std::string &native_answer)
{
    return request.answer(io::read_tree(native_answer), answered);
}
