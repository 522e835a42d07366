#include "device.h"

#include <unistd.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "exchange.h"
#include "generator.h"
#include "get_request.h"
#include "mapped_request.h"
#include "tree_lines.h"
#include "tree_text.h"
#include "write.h"

namespace properties {

namespace fs = std::filesystem;

// In memory if there is such a folder.
static fs::path some_folder()
{
    const char memory[] = "/dev/shm";
    return access(memory, W_OK) == 0 ? memory : fs::temp_directory_path();
}

Device::Device() : folder_(some_folder() / ("ocbgp-properties-" + std::to_string(getpid())))
{
    fs::remove_all(folder_);
    router::Router::create(folder_);
    router_ = std::make_unique<router::Router>(folder_, std::chrono::milliseconds(0));
    if (!edit({{"/bgp/global/config/as", "", "65001", true}}).empty()) throw std::runtime_error("no AS");
    router_->commit();
}

Device::~Device() { fs::remove_all(folder_); }

std::string Device::edit(const Nodes &nodes)
{
    const std::string xml = io::write_xml(trips::tree_of(nodes).root(), io::Envelope::config, io::Secrets::shown);
    framework::MappedRequest mapped(
        {.read = [&] { return io::read_xml(xml, "edit"); }, .kind = VMF_REQ_EDIT, .database = &router_->database()});
    if (mapped.outcome() != VMF_RC_OK) return mapped.refusal().path + ": " + mapped.refusal().reason;
    try {
        router_->edit(mapped.native());
        router_->validate();
        return {};
    } catch (const router::Refused &refused) {
        return refused.violations.front().path + ": " + refused.violations.front().rule;
    }
}

void Device::reset() { router_->discard(); }

std::vector<std::string> Device::read(const Nodes &nodes)
{
    const std::string xml = io::write_xml(trips::tree_of(nodes).root(), io::Envelope::filter, io::Secrets::shown);
    const auto read_filter = [&] {
        io::Document document = io::read_xml(xml, "filter");
        io::complete_keys(document);
        return document;
    };
    framework::MappedRequest mapped(
        {.read = read_filter, .kind = VMF_REQ_GET_CONFIG, .database = &router_->database()});
    platform::Tree answer;
    if (mapped.outcome() != VMF_RC_OK ||
        cli::answer_of(*router_, mapped, router::Datastore::candidate, answer) != VMF_RC_OK)
        return {"refused"};
    return trips::lines_of(answer.root());
}

std::string Device::native() const
{
    return io::write_tree(router_->config(router::Datastore::candidate).root(), io::Secrets::shown);
}

void Device::load_everything()
{
    Generator generator(1);
    for (int i = 0; i < 8; i++)
        if (const std::string why = edit(generator.configuration()); !why.empty()) throw std::runtime_error(why);
    const std::string file = SOURCE_DIR "/examples/neighbors-operational.xml";
    std::ifstream in(file);
    router_->load_operational(std::string{std::istreambuf_iterator<char>(in), {}}, file);
}

}  // namespace properties
