#include "trip_test.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "exchange.h"
#include "get_request.h"
#include "mapped_request.h"
#include "router.h"
#include "tree_lines.h"
#include "tree_text.h"
#include "trip.h"
#include "write.h"

namespace trips {

namespace {

namespace fs = std::filesystem;

std::string join(const std::vector<std::string> &lines)
{
    std::string text;
    for (const std::string &line : lines) text += line + "\n";
    return text;
}

std::string file_text(const std::string &file)
{
    std::ifstream in(file);
    return {std::istreambuf_iterator<char>(in), {}};
}

// In memory if there is such a folder: the router waits for the disk with each commit.
fs::path some_folder()
{
    const char memory[] = "/dev/shm";
    return access(memory, W_OK) == 0 ? memory : fs::temp_directory_path();
}

// A router in a folder of its own, and the last refusal.
class Traveller {
public:
    Traveller() : folder_(some_folder() / ("ocbgp-trip-" + std::to_string(getpid())))
    {
        fs::remove_all(folder_);
        router::Router::create(folder_);
        router_ = std::make_unique<router::Router>(folder_, std::chrono::milliseconds(0));
    }
    ~Traveller() { fs::remove_all(folder_); }
    Traveller(const Traveller &) = delete;
    Traveller &operator=(const Traveller &) = delete;

    void go(const Step &step)
    {
        if (step.verb == "refused") return check_refusal(step);
        expect_no_refusal();
        if (step.verb == "edit") edit(step);
        if (step.verb == "native") edit_natively(step);
        if (step.verb == "operational") load_operational(step);
        if (step.verb == "get") read(step, VMF_REQ_GET);
        if (step.verb == "get-config") read(step, VMF_REQ_GET_CONFIG);
    }

    void expect_no_refusal() { EXPECT_EQ(refusal_, ""); }

private:
    // From the XML that a client would send to the configuration on disk.
    void edit(const Step &step)
    {
        const std::string xml =
            io::write_xml(tree_of(nodes_of_edit(step)).root(), io::Envelope::config, io::Secrets::shown);
        framework::MappedRequest mapped({.read = [&] { return io::read_xml(xml, "edit"); },
                                         .kind = VMF_REQ_EDIT,
                                         .database = &router_->database()});
        if (mapped.outcome() != VMF_RC_OK) {
            refusal_ = mapped.refusal().reason;
            return;
        }
        commit(mapped.native());
    }

    void edit_natively(const Step &step) { commit(io::read_tree(join(step.lines)).root()); }

    void commit(const Datatree &native)
    {
        try {
            router_->edit(native);
            router_->commit();
        } catch (const router::Refused &refused) {
            refusal_ = refused.violations.front().rule;
            router_->discard();
        }
    }

    void load_operational(const Step &step)
    {
        if (step.text.ends_with(".xml"))
            router_->load_operational(file_text(SOURCE_DIR "/" + step.text), step.text);
        else
            router_->load_operational(
                std::string("<bgp xmlns=\"") + ZR_BGP_OPER_NS +
                    "\"><instances><instance><instance-name>default</instance-name><instance-active><default-vrf>" +
                    (step.text.starts_with("<") ? step.text + join(step.lines) : families_of(step)) +
                    "</default-vrf></instance-active></instance></instances></bgp>",
                "operational");
    }

    static std::string families_of(const Step &step)
    {
        std::string families;
        std::vector<std::string> lines = step.lines;
        lines.insert(lines.begin(), step.text);
        for (const std::string &line : lines) {
            std::istringstream words(line);
            std::string name, paths, prefixes;
            words >> name >> paths >> prefixes;
            families += "<af><af-name>" + name + "</af-name><global-af-process-info><global><scan-prefixes>" +
                        prefixes + "</scan-prefixes></global></global-af-process-info><af-process-info><global>" +
                        "<paths-num>" + paths + "</paths-num></global></af-process-info></af>";
        }
        return "<afs>" + families + "</afs>";
    }

    void read(const Step &step, uint32_t kind)
    {
        const std::string xml =
            io::write_xml(tree_of(nodes_of_read(step)).root(), io::Envelope::filter, io::Secrets::shown);
        const auto read = [&] {
            io::Document document = io::read_xml(xml, "filter");
            io::complete_keys(document);
            return document;
        };
        framework::MappedRequest mapped({.read = read, .kind = kind, .database = &router_->database()});
        if (mapped.outcome() != VMF_RC_OK) {
            refusal_ = mapped.refusal().reason;
            return;
        }
        platform::Tree answer;
        ASSERT_EQ(cli::answer_of(*router_, mapped, router::Datastore::running, answer), uint32_t{VMF_RC_OK});
        std::vector<std::string> expected = answer_of_read(step);
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(join(lines_of(answer.root())), join(expected));
        expect_same_when_read_again(answer.root());
    }

    // What is printed reads back, in both formats.
    static void expect_same_when_read_again(const Datatree &answer)
    {
        if (platform::children_of(answer).empty()) return;
        const std::string xml = io::write_xml(answer, io::Envelope::data, io::Secrets::shown);
        const std::string json = io::write_json(answer, io::Secrets::shown);
        for (const std::string &text : {xml, json}) {
            const io::Document again = io::read_request(text, "answer");
            platform::Tree holder;
            *platform::append_child(holder.root(), nullptr, nullptr) = again.bgp.root();
            EXPECT_EQ(join(lines_of(holder.root())), join(lines_of(answer))) << text;
            platform::children_of(holder.root()).front() = {};  // the document's
        }
    }

    void check_refusal(const Step &step)
    {
        // One message begins with a blank.
        const size_t begin = std::min(refusal_.find_first_not_of(' '), refusal_.size());
        EXPECT_TRUE(!refusal_.empty() && refusal_.substr(begin).starts_with(step.text)) << "refusal: " << refusal_;
        refusal_.clear();
    }

    fs::path folder_;
    std::unique_ptr<router::Router> router_;
    std::string refusal_;
};

class TripTest : public testing::Test {
public:
    explicit TripTest(Trip trip) : trip_(std::move(trip)) {}

    void TestBody() override
    {
        Traveller traveller;
        if (trip_.steps.front().verb != "empty") traveller.go({"edit", trip_.line, "config/as = 65001", {}, ""});
        for (const Step &step : trip_.steps) {
            SCOPED_TRACE(trip_.file + ":" + std::to_string(step.line) + ": " + step.verb + " " + step.text);
            traveller.go(step);
        }
        traveller.expect_no_refusal();
    }

private:
    Trip trip_;
};

std::string test_name(std::string words)
{
    for (char &c : words)
        if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
    return words;
}

}  // namespace

void register_trips()
{
    for (const Trip &trip : all_trips())
        testing::RegisterTest("Trip", test_name(trip.name).c_str(), nullptr, nullptr, trip.file.c_str(), trip.line,
                              [trip]() -> testing::Test * { return new TripTest(trip); });
}

}  // namespace trips
