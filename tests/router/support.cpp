#include "support.h"

#include <unistd.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "tree_text.h"

namespace fs = std::filesystem;
using router::Datastore;
using router::Router;

namespace test {

static fs::path new_folder()
{
    const fs::path memory = "/dev/shm";  // where there is no disk to wait for
    const bool has_memory = access(memory.c_str(), W_OK) == 0;
    std::string name = ((has_memory ? memory : fs::temp_directory_path()) / "router-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return name;
}

Folder::Folder() : path_(new_folder()) {}
Folder::~Folder() { fs::remove_all(path_); }

std::string read_file(const fs::path &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void write_file(const fs::path &path, const std::string &text) { std::ofstream(path, std::ios::binary) << text; }

static const fs::path &created(const fs::path &folder)
{
    Router::create(folder);
    return folder;
}

TestRouter::TestRouter() : router(created(folder.path()), std::chrono::milliseconds(0)) {}

// ---- Trees ----------------------------------------------------------------------------------

std::string below(const std::string &levels, const std::string &lines)
{
    const size_t last = levels.rfind('\n', levels.size() - 2) + 1;  // 0 if there is one level only
    const std::string indent(levels.find_first_not_of(' ', last) - last + 2, ' ');
    std::string text = levels;
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);) text += indent + line + "\n";
    return text;
}

std::string in_instance(const std::string &lines, const std::string &instance)
{
    return below("bgp zr-cfg\n  instance\n", "instance-name = " + instance + "\n" + lines);
}

std::string in_as(const std::string &lines, const std::string &as)
{
    return in_instance("instance-as\n  as = 0\n" + below("  four-byte-as\n", "as = " + as + "\n" + lines));
}

std::string in_vrf(const std::string &lines) { return in_as(below("default-vrf\n", lines)); }
std::string in_global(const std::string &lines) { return in_vrf(below("global\n", lines)); }
std::string in_neighbors(const std::string &lines) { return in_vrf(below("bgp-entity\n  neighbors\n", lines)); }
std::string in_groups(const std::string &lines) { return in_vrf(below("bgp-entity\n  neighbor-groups\n", lines)); }

void edit(Router &router, const std::string &tree_text) { router.edit(io::read_tree(tree_text).root()); }

std::string refusal_of(Router &router, const std::string &tree_text)
{
    return error_of<router::Refused>([&] { edit(router, tree_text); });
}

static std::string text_of(const Router &router, Datastore from)
{
    return io::write_tree(router.config(from).root(), io::Secrets::shown);
}

std::string candidate_of(const Router &router) { return text_of(router, Datastore::candidate); }
std::string running_of(const Router &router) { return text_of(router, Datastore::running); }

}  // namespace test
