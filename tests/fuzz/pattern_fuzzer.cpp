// Any pattern of the system database and any location, in two lines: against a plain reading of what a pattern means,
// and against the items of a router, which are found without looking at all of them.
#include <algorithm>

#include "checks.h"
#include "fuzzer.h"
#include "items.h"
#include "native_xml.h"
#include "system_database.h"
#include "text_mutation.h"

namespace fuzz {
namespace {

using Elements = std::vector<std::string>;
using Records = std::vector<platform::DatabaseRecord>;

Elements elements_of(std::string_view path)
{
    Elements elements(1);
    for (const char c : path) {
        if (c == '/')
            elements.emplace_back();
        else
            elements.back() += c;
    }
    return elements;
}

// An element at a time, each literal or any one; a pattern that ends in "/" meets all that has something behind it.
bool should_meet(std::string_view pattern, std::string_view location)
{
    const Elements wanted = elements_of(pattern);
    const Elements given = elements_of(location);
    const bool is_open = wanted.size() > 1 && wanted.back().empty();
    const size_t fixed = wanted.size() - (is_open ? 1 : 0);
    if (given.size() < fixed) return false;
    for (size_t i = 0; i < fixed; i++)
        if (wanted[i] != ".*" && wanted[i] != given[i]) return false;
    if (!is_open) return given.size() == fixed;
    return given.size() > fixed + 1 || (given.size() == fixed + 1 && !given.back().empty());
}

// ---- A router -------------------------------------------------------------------------------

constexpr const char *configuration = R"(<bgp xmlns="http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg">
<instance><instance-name>default</instance-name><instance-as><as>0</as><four-byte-as><as>65001</as><bgp-running/>
<default-vrf><bgp-entity><neighbors>
<neighbor><neighbor-address>10.0.0.1</neighbor-address><neighbor-afs>
<neighbor-af><af-name>ipv4-unicast</af-name><activate/><maximum-prefixes><prefix-limit>100</prefix-limit></maximum-prefixes></neighbor-af>
<neighbor-af><af-name>vp-nv4-unicast</af-name><activate/></neighbor-af></neighbor-afs></neighbor>
<neighbor><neighbor-address>2001:db8::1</neighbor-address><neighbor-afs>
<neighbor-af><af-name>ipv6-unicast</af-name><activate/><maximum-prefixes><prefix-limit>7</prefix-limit></maximum-prefixes></neighbor-af>
</neighbor-afs></neighbor></neighbors><neighbor-groups>
<neighbor-group><neighbor-group-name>a/b</neighbor-group-name><create/><neighbor-group-afs>
<neighbor-group-af><af-name>l2vpnevpn</af-name><activate/><maximum-prefixes><prefix-limit>1</prefix-limit></maximum-prefixes></neighbor-group-af>
</neighbor-group-afs></neighbor-group>
<neighbor-group><neighbor-group-name>ord_s</neighbor-group-name><create/><neighbor-group-afs>
<neighbor-group-af><af-name>ipv4-unicast</af-name><activate/></neighbor-group-af></neighbor-group-afs></neighbor-group>
</neighbor-groups></bgp-entity></default-vrf></four-byte-as></instance-as></instance></bgp>
)";

const router::Items &items()
{
    using Data = std::shared_ptr<router::Branch>;
    static const Data data = router::read_xml(configuration, router::models().config, router::Check::structure);
    static const router::Items the_items(data, data);
    return the_items;
}

const Records &all_items()
{
    static const Records all = items().find("/", true);
    return all;
}

bool has(const Records &records, const std::string &location)
{
    return std::any_of(records.begin(), records.end(), [&](const auto &record) { return record.location == location; });
}

// ---- What holds -----------------------------------------------------------------------------

void check_pattern(std::string_view text)
{
    const size_t end = std::min(text.find('\n'), text.size());
    const std::string_view pattern = text.substr(0, end);
    const std::string_view location = text.substr(std::min(end + 1, text.size()));
    if (platform::meets(pattern, location) != should_meet(pattern, location))
        fail("a pattern means what it says", std::string(pattern), std::string(location));

    require(all_items().size() == 9, "the router has its items");
    const Records found = items().find(pattern, true);
    for (const platform::DatabaseRecord &record : found)
        if (!should_meet(pattern, record.location)) fail("what is found is met", std::string(pattern), record.location);
    for (const platform::DatabaseRecord &record : all_items())
        if (should_meet(pattern, record.location) != has(found, record.location))
            fail("what is met is found", std::string(pattern), record.location);
}

// ---- Mutation -------------------------------------------------------------------------------

std::string joined(const Elements &elements)
{
    std::string path;
    for (const std::string &element : elements)
        path.append(path.empty() && &element == &elements.front() ? "" : "/").append(element);
    return path;
}

void change_path(std::string &path, Random &random)
{
    constexpr const char *others[] = {".*",  "",      ".*", "..",       ".",           "*",       ".*x",
                                      "0x0", "ord_s", "a",  "10.0.0.1", "2001:DB8::1", "________"};
    if (below(random, 6) == 0) path = any_of(random, all_items()).location;
    Elements elements = elements_of(path);
    const auto at = elements.begin() + static_cast<std::ptrdiff_t>(below(random, elements.size()));
    switch (below(random, 6)) {
    case 0: elements.erase(at); break;
    case 1: elements.insert(at, any_of(random, others)); break;
    case 2: elements.emplace_back(); break;
    case 3: elements.erase(at + 1, elements.end()); break;
    default: *at = any_of(random, others);
    }
    path = joined(elements);
}

size_t mutate_pattern(uint8_t *data, size_t size, size_t most, Random &random)
{
    if (below(random, 6) == 0) return LLVMFuzzerMutate(data, size, most);
    const std::string_view text = text_of(data, size);
    const size_t end = std::min(text.find('\n'), text.size());
    std::string pattern(text.substr(0, end));
    std::string location(text.substr(std::min(end + 1, text.size())));
    if (below(random, 8) == 0) location = pattern;
    for (size_t count = 1 + below(random, 4); count > 0; count--)
        change_path(below(random, 2) == 0 ? pattern : location, random);
    return put(pattern + "\n" + location, data, most);
}

}  // namespace
}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::check_pattern(fuzz::text_of(data, size));
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t most, unsigned seed)
{
    fuzz::Random random(seed);
    return fuzz::mutate_pattern(data, size, most, random);
}
