// What the tests read: the list of the model's nodes, and the library's sources.
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "library_test.h"

namespace library_test {

std::vector<Node> *read_nodes(const char *module)
{
    auto *list = new std::vector<Node>;
    for (const auto &node :
         nlohmann::json::parse(std::ifstream(std::string(SOURCE_DIR "/models/") + module + ".nodes.json"))) {
        const auto field = [&](const char *name) { return node.value(name, std::string()); };
        list->push_back({field("path"), field("kind"), field("key"), field("walker"), field("handler"),
                         field("binding"), field("default"), field("man")});
    }
    return list;
}

const std::map<std::string, SourceFile> &sources()
{
    static const auto *const files = [] {
        namespace fs = std::filesystem;
        auto *all = new std::map<std::string, SourceFile>;
        for (const auto &entry :
             fs::recursive_directory_iterator(SOURCE_DIR "/manageability/yang/framework/mapping/src")) {
            if (entry.path().extension() != ".cpp") continue;
            SourceFile &file = (*all)[fs::relative(entry.path(), SOURCE_DIR).string()];
            std::ifstream in(entry.path());
            for (std::string line; std::getline(in, line);) file.push_back(line);
        }
        return all;
    }();
    return *files;
}

}  // namespace library_test
