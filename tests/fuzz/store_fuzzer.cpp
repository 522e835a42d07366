// Any files in a router's folder. A text is all of them, each below a line with its name: "=== running.xml".
#include <libxml/parser.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

#include "checks.h"
#include "fuzzer.h"
#include "router.h"
#include "store.h"
#include "text_mutation.h"
#include "tree_input.h"

namespace fuzz {
namespace {

using router::Datastore;
using router::Router;
using router::Store;

// ---- The folder -----------------------------------------------------------------------------

constexpr const char *names[] = {Store::format, Store::running, Store::candidate, Store::operational};
using Files = std::array<std::optional<std::string>, std::size(names)>;

// In memory, if there is such a place: what is written is forced to the disk.
std::filesystem::path make_folder()
{
    const std::filesystem::path memory = "/dev/shm";
    const bool is_usable = ::access(memory.c_str(), W_OK) == 0;
    std::string name = (is_usable ? memory : std::filesystem::temp_directory_path()) / "fuzz-store-XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) fail("a folder can be made", name);
    static const std::string made = name;
    std::atexit([] { std::filesystem::remove_all(made); });
    return made;
}

const std::filesystem::path &folder()
{
    static const std::filesystem::path made = make_folder();
    return made;
}

Files read_files(std::string_view text)
{
    Files files;
    std::optional<std::string> *file = nullptr;
    while (!text.empty()) {
        const std::string_view line =
            text.substr(0, text.find('\n') == std::string_view::npos ? text.size() : text.find('\n') + 1);
        text.remove_prefix(line.size());
        if (line.starts_with("=== ")) {
            for (size_t i = 0; i < files.size(); i++)
                if (line.substr(4).starts_with(names[i])) file = &files[i];
            if (file != nullptr) *file = "";
        } else if (file != nullptr) {
            file->value() += line;
        }
    }
    return files;
}

std::string write_files(const Files &files)
{
    std::string text;
    for (size_t i = 0; i < files.size(); i++) {
        if (!files[i]) continue;
        if (!text.empty() && !text.ends_with('\n')) text += '\n';
        text.append("=== ").append(names[i]).append("\n").append(*files[i]);
    }
    return text;
}

void put_into_folder(const Files &files)
{
    for (size_t i = 0; i < files.size(); i++) {
        std::filesystem::remove(folder() / names[i]);
        if (files[i]) std::ofstream(folder() / names[i], std::ios::binary) << *files[i];
    }
}

// ---- What holds -----------------------------------------------------------------------------

std::optional<std::string> refusal_of(const Router &router)
{
    try {
        router.validate();
        return std::nullopt;
    } catch (const router::Refused &refused) {
        require(!refused.violations.empty(), "a refusal says what is wrong");
        for (const router::Violation &violation : refused.violations)
            require(!violation.rule.empty(), "a violation says why");
        return refused.what();
    }
}

struct Content {
    explicit Content(const Router &router)
        : candidate(router.config(Datastore::candidate)), running(router.config(Datastore::running)),
          operational(router.operational())
    {
        for (const platform::Tree *tree : {&candidate, &running, &operational}) check_well_formed(tree->root());
    }

    void check_equal(const Content &other, const char *when) const
    {
        const auto check = [when](const platform::Tree &a, const platform::Tree &b) {
            if (!are_same(a.root(), b.root())) fail(when, text_of(a.root()), text_of(b.root()));
        };
        check(candidate, other.candidate);
        check(running, other.running);
        check(operational, other.operational);
    }

    platform::Tree candidate;
    platform::Tree running;
    platform::Tree operational;
};

Router open() { return {folder(), std::chrono::milliseconds(0)}; }

// Every item of the database is found at its own place.
void check_items(const Router &router)
{
    for (const bool merged : {true, false}) {
        for (const platform::DatabaseRecord &item : router.database().find("/", merged)) {
            bool is_found = false;
            for (const platform::DatabaseRecord &found : router.database().find(item.location, merged))
                is_found = is_found || (found.location == item.location && found.words == item.words);
            if (!is_found) fail("an item is found at its place", item.location);
        }
    }
}

void check_opened()
{
    Content before(open());
    Content(open()).check_equal(before, "the same when it is opened again");
    bool is_valid = false;
    {
        Router router = open();
        check_items(router);
        const bool differs = router.candidate_differs();
        is_valid = !refusal_of(router);
        if (!differs) require(is_valid, "what runs is valid");
        router.keep_candidate();
        Content(router).check_equal(before, "the same when the candidate was kept");
    }
    {
        Router router = open();
        Content(router).check_equal(before, "the same when the kept candidate is opened");
        if (is_valid)
            router.commit();
        else
            router.discard();
        require(!router.candidate_differs(), "what was committed or discarded runs");
        require(!refusal_of(router), "what runs is valid");
        before = Content(router);
    }
    const Router router = open();
    Content(router).check_equal(before, "the same when what was committed is opened");
}

void check_store(const Files &files)
{
    put_into_folder(files);
    try {
        const Router router = open();
    } catch (const router::StoreError &error) {
        const std::string_view reason = error.what();
        if (reason.find(folder().string()) == std::string_view::npos) fail("a damage names the folder", error.what());
        if (reason.find('\n') != std::string_view::npos) fail("a damage is a line", error.what());
        return;
    }
    check_opened();
}

// ---- Mutation -------------------------------------------------------------------------------

constexpr const char *tokens[] = {
    "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg\">",
    "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\">",
    "</bgp>",
    "<neighbor>",
    "</neighbor>",
    "<enable/>",
    "\n=== candidate.xml\n",
    "\n=== format\n1\n",
    "2",
    "<![CDATA[x]]>",
    "<!-- x -->",
    "<?x y?>",
    "<!DOCTYPE x [<!ENTITY e \"e\">]>",
    "&e;",
    "&amp;",
    "&#13;",
    " xmlns=\"\"",
    " x=\"y\"",
    " ",
    "\xEF\xBB\xBF",
    "\xED\xA0\x80",
    "\x01",
};

void add_lines(std::vector<Line> &lines, const xmlNode *node, size_t depth)
{
    for (; node != nullptr; node = node->next) {
        if (node->type == XML_TEXT_NODE && node->next == nullptr && node->prev == nullptr && !lines.empty())
            lines.back().value = reinterpret_cast<const char *>(node->content);
        if (node->type != XML_ELEMENT_NODE) continue;
        Line line;
        line.depth = depth;
        line.tag = reinterpret_cast<const char *>(node->name);
        lines.push_back(std::move(line));
        add_lines(lines, node->children, depth + 1);
    }
}

std::vector<Line> lines_of_xml(const std::string &text, char ns)
{
    std::vector<Line> lines;
    constexpr int options = XML_PARSE_RECOVER | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET;
    xmlDoc *document = xmlReadMemory(text.data(), static_cast<int>(text.size()), "", nullptr, options);
    if (document == nullptr) return lines;
    add_lines(lines, xmlDocGetRootElement(document), 0);
    xmlFreeDoc(document);
    if (!lines.empty()) lines.front().ns = ns;
    return lines;
}

void write_escaped(std::string &out, std::string_view text)
{
    for (const char c : text) {
        if (c == '<' || c == '&')
            out += c == '<' ? "&lt;" : "&amp;";
        else
            out += c;
    }
}

void write_xml(std::string &out, const Datatree &node, const char *ns)
{
    out.append("<").append(node.tag);
    if (ns != nullptr) out.append(" xmlns=\"").append(ns).append("\"");
    out += ">";
    if (platform::value_of(node) != nullptr) write_escaped(out, platform::value_of(node));
    if (!platform::children_of(node).empty()) out += "\n";
    for (const Datatree &child : platform::children_of(node)) write_xml(out, child, nullptr);
    out.append("</").append(node.tag).append(">\n");
}

void mutate_tree(std::string &file, Model model, Random &random)
{
    const bool is_config = model == Model::cfg;
    TreeInput input;
    input.lines = lines_of_xml(file, is_config ? 'c' : 'p');
    mutate(input, {{model}, {}, true}, random);
    const platform::Tree tree = build(input.lines);
    file.clear();
    for (const Datatree &root : platform::children_of(tree.root()))
        write_xml(file, root, is_config ? ZR_BGP_CFG_NS : ZR_BGP_OPER_NS);
}

size_t mutate_store(uint8_t *data, size_t size, size_t most, Random &random)
{
    const size_t kind = below(random, 10);
    if (kind == 0) return LLVMFuzzerMutate(data, size, most);
    Files files = read_files(text_of(data, size));
    const size_t which = 1 + below(random, files.size() - 1);
    std::optional<std::string> &file = files[which];
    if (kind == 1) {
        if (below(random, 2) == 0) {
            if (which == 2) file.reset();
        } else {
            file = files[1 + below(random, files.size() - 1)];
        }
    } else if (kind == 2) {
        file = mutate_tokens(file.value_or(""), tokens, random);
    } else {
        if (!file) file.emplace();
        mutate_tree(*file, which == 3 ? Model::oper : Model::cfg, random);
    }
    return put(write_files(files), data, most);
}

}  // namespace
}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::check_store(fuzz::read_files(fuzz::text_of(data, size)));
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t most, unsigned seed)
{
    fuzz::Random random(seed);
    return fuzz::mutate_store(data, size, most, random);
}

extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t *a, size_t a_size, const uint8_t *b, size_t b_size,
                                            uint8_t *out, size_t most, unsigned seed)
{
    fuzz::Random random(seed);
    fuzz::Files files = fuzz::read_files(fuzz::text_of(a, a_size));
    const fuzz::Files others = fuzz::read_files(fuzz::text_of(b, b_size));
    for (size_t i = 0; i < files.size(); i++)
        if (fuzz::below(random, 2) == 0) files[i] = others[i];
    return fuzz::put(fuzz::write_files(files), out, most);
}
