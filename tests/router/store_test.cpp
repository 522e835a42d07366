// The router's folder: what is kept, and what stands in the way of keeping it.
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <memory>
#include <new>
#include <random>
#include <thread>

#include "support.h"
#include "tree_text.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace test;
using router::Locked;
using router::Refused;
using router::Router;
using router::StoreError;

namespace {

constexpr char empty_config[] = "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg\">\n</bgp>\n";

std::string running_after_reopening(const fs::path &folder) { return running_of(Router(folder, 0ms)); }
std::string candidate_after_reopening(const fs::path &folder) { return candidate_of(Router(folder, 0ms)); }

std::string error_of_opening(const fs::path &folder)
{
    return error_of<StoreError>([&] { const Router opened(folder, 0ms); });
}

std::string error_of_creating(const fs::path &folder)
{
    return error_of<StoreError>([&] { Router::create(folder); });
}

const std::string with_router_id = in_global("router-id = 10.0.0.1");
const std::string with_another = in_global("router-id = 10.0.0.2");

}  // namespace

// ---- What is kept ---------------------------------------------------------------------------

TEST(Store, WhatIsCommittedIsThereNextTime)
{
    const Folder folder;
    Router::create(folder.path());
    {
        Router router(folder.path(), 0ms);
        EXPECT_EQ(running_of(router), "");
        edit(router, with_router_id);
        router.commit();
        EXPECT_EQ(running_of(router), with_router_id);
        EXPECT_FALSE(router.candidate_differs());
    }
    EXPECT_EQ(running_after_reopening(folder.path()), with_router_id);
    EXPECT_EQ(candidate_after_reopening(folder.path()), with_router_id);
}

TEST(Store, ACandidateThatIsNotKeptIsGone)
{
    const Folder folder;
    Router::create(folder.path());
    {
        Router router(folder.path(), 0ms);
        edit(router, with_router_id);
    }
    EXPECT_EQ(candidate_after_reopening(folder.path()), "");
}

TEST(Store, ACandidateIsKeptUntilItIsCommittedOrDiscarded)
{
    for (const bool is_committed : {true, false}) {
        const Folder folder;
        Router::create(folder.path());
        {
            Router router(folder.path(), 0ms);
            edit(router, with_router_id);
            router.keep_candidate();
            EXPECT_EQ(running_of(router), "");
        }
        {
            Router router(folder.path(), 0ms);
            EXPECT_EQ(candidate_of(router), with_router_id);
            EXPECT_TRUE(router.candidate_differs());
            is_committed ? router.commit() : router.discard();
            EXPECT_FALSE(router.candidate_differs());
            EXPECT_EQ(candidate_of(router), is_committed ? with_router_id : "");
        }
        EXPECT_EQ(running_after_reopening(folder.path()), is_committed ? with_router_id : "");
        EXPECT_EQ(candidate_after_reopening(folder.path()), is_committed ? with_router_id : "");
        EXPECT_FALSE(fs::exists(folder / "candidate.xml"));
    }
}

TEST(Store, AKeptCandidateIsOverwrittenByTheNext)
{
    const Folder folder;
    Router::create(folder.path());
    {
        Router router(folder.path(), 0ms);
        edit(router, with_router_id);
        router.keep_candidate();
        edit(router, with_another);
        router.keep_candidate();
    }
    EXPECT_EQ(candidate_after_reopening(folder.path()), with_another);
    {
        Router router(folder.path(), 0ms);
        edit(router, with_router_id);
        router.commit();
    }
    EXPECT_EQ(running_after_reopening(folder.path()), with_router_id);
    EXPECT_FALSE(fs::exists(folder / "candidate.xml"));
}

TEST(Store, ACandidateThatIsEditedBackToWhatRunsNeedsNoFile)
{
    for (const bool is_committed : {true, false}) {
        TestRouter made;
        edit(made.router, with_router_id);
        made.router.keep_candidate();
        edit(made.router, "bgp zr-cfg [remove]\n");
        is_committed ? made.router.commit() : made.router.keep_candidate();
        EXPECT_FALSE(fs::exists(made.folder / "candidate.xml"));
    }
}

TEST(Store, DiscardTakesTheCandidateBackToWhatRuns)
{
    TestRouter made;
    edit(made.router, with_router_id);
    made.router.commit();
    edit(made.router, with_another);
    made.router.discard();
    EXPECT_EQ(candidate_of(made.router), with_router_id);
    EXPECT_EQ(running_of(made.router), with_router_id);
}

TEST(Store, TextsComeBackAsTheyWere)
{
    const Folder folder;
    Router::create(folder.path());
    std::string neighbors;
    int number = 0;
    for (const char *text : {"<bgp attribute=\\\"'&amp;'\\\">]]>&", "\\ttab, \\n line, \\r carriage return\\r\\n",
                             " blanks ", " ", "\\n", "", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", "[remove]", "\\\\"})
        neighbors += "neighbor\n  neighbor-address = 10.0.0." + std::to_string(++number) + "\n  description = \"" +
                     text + "\"\n";
    std::string written;
    {
        Router router(folder.path(), 0ms);
        edit(router, in_neighbors(neighbors));
        router.commit();
        written = running_of(router);
    }
    EXPECT_EQ(running_after_reopening(folder.path()), written);
    EXPECT_NE(written.find("carriage return\\r\\n"), std::string::npos);
}

TEST(Store, EveryKindOfNodeComesBack)
{
    const Folder folder;
    Router::create(folder.path());
    const std::string all = in_as("bgp-running\ndefault-vrf\n  bgp-entity\n    neighbors\n      neighbor\n"
                                  "        neighbor-address = 2001:db8::1\n        password\n          password = x\n"
                                  "        neighbor-afs\n          neighbor-af\n            af-name = ipv6-unicast\n"
                                  "            activate\n            route-policy-in = b\n"
                                  "            route-policy-in = a\n"
                                  "    neighbor-groups\n      neighbor-group\n        neighbor-group-name = z\n"
                                  "        create\n      neighbor-group\n        neighbor-group-name = a\n"
                                  "  global\n    confederation-peer-ases\n      confederation-peer-as\n"
                                  "        as-xx = 0\n        as-yy = 7\n      confederation-peer-as\n"
                                  "        as-xx = 0\n        as-yy = 3\n");
    {
        Router router(folder.path(), 0ms);
        edit(router, all);
        router.commit();
    }
    EXPECT_EQ(running_after_reopening(folder.path()), all);
}

TEST(Store, NobodyElseMayReadTheFiles)
{
    TestRouter made;
    edit(made.router, with_router_id);
    made.router.commit();
    edit(made.router, with_another);
    made.router.keep_candidate();
    for (const char *file : {"format", "lock", "running.xml", "candidate.xml", "operational.xml"})
        EXPECT_EQ(fs::status(made.folder / file).permissions() & fs::perms::mask, fs::perms(0600)) << file;
}

// ---- Making a router ------------------------------------------------------------------------

TEST(Creation, MakesTheFoldersOnTheWay)
{
    const Folder folder;
    Router::create(folder.path() / "a" / "b");
    EXPECT_EQ(running_after_reopening(folder.path() / "a" / "b"), "");
    EXPECT_EQ(read_file(folder.path() / "a" / "b" / "format"), "1\n");
}

TEST(Creation, RefusesAFolderWithARouter)
{
    const TestRouter made;
    const Folder folder;
    Router::create(folder.path());
    EXPECT_EQ(error_of_creating(folder.path()), folder.path().string() + ": a router is here already");
    EXPECT_NE(error_of_creating(made.folder.path()), "") << "also while that is open";
}

TEST(Creation, GoesOnWhereAKilledOneStopped)
{
    const Folder folder;
    write_file(folder / "running.xml", empty_config);
    write_file(folder / "operational.xml.new", "<bgp");
    EXPECT_EQ(error_of_creating(folder.path()), "");
    EXPECT_EQ(running_after_reopening(folder.path()), "");
}

TEST(Creation, DoesNotOverwriteWhatLooksLikeARouter)
{
    for (const char *file : {"running.xml", "candidate.xml", "operational.xml"}) {
        const Folder folder;
        write_file(folder / file, "something");
        EXPECT_EQ(error_of_creating(folder.path()), (folder / file).string() + ": stands there without a router");
        EXPECT_EQ(read_file(folder / file), "something");
    }
}

TEST(Creation, SaysWhereAFileStandsInTheWay)
{
    const Folder folder;
    write_file(folder / "file", "");
    const fs::path place = folder.path() / "file" / "router";
    EXPECT_EQ(error_of_creating(place), place.string() + ": cannot be made: Not a directory");
}

TEST(Creation, OnAFullDiskLeavesNoRouter)
{
    const Folder folder;
    fs::create_symlink("/dev/full", folder / "operational.xml.new");
    EXPECT_EQ(error_of_creating(folder.path()),
              (folder / "operational.xml").string() + ": cannot be written: No space left on device");
    EXPECT_EQ(error_of_opening(folder.path()), "no router in " + folder.path().string() + "; make one with ocbgp init");
    EXPECT_EQ(error_of_creating(folder.path()), "") << "once there is room";
}

// ---- Opening --------------------------------------------------------------------------------

TEST(Opening, SaysThatThereIsNoRouter)
{
    const Folder folder;
    write_file(folder / "file", "");
    for (const fs::path &path : {folder.path(), folder.path() / "missing", folder.path() / "file"})
        EXPECT_EQ(error_of_opening(path), "no router in " + path.string() + "; make one with ocbgp init");
    EXPECT_FALSE(fs::exists(folder / "lock")) << "nothing is made there";
}

TEST(Opening, SaysThatAFormatIsUnknown)
{
    const Folder folder;
    Router::create(folder.path());
    const std::string format = (folder / "format").string();
    write_file(format, "2\n");
    EXPECT_EQ(error_of_opening(folder.path()), format + ": the router has format 2; this program reads format 1");
    for (const char *damaged : {"", "one\n", "\n", "-1\n", "1", "1\n1\n"}) {
        write_file(format, damaged);
        EXPECT_EQ(error_of_opening(folder.path()), format + ": damaged: no number of a format") << damaged;
    }
}

TEST(Opening, SaysThatAFileIsMissing)
{
    for (const char *file : {"running.xml", "operational.xml"}) {
        const Folder folder;
        Router::create(folder.path());
        fs::remove(folder / file);
        EXPECT_EQ(error_of_opening(folder.path()), (folder / file).string() + ": damaged: the file is missing");
    }
}

TEST(Opening, ClearsAwayWhatWasHalfWritten)
{
    const Folder folder;
    Router::create(folder.path());
    for (const char *file : {"running.xml.new", "candidate.xml.new", "operational.xml.new"})
        write_file(folder / file, "<bgp xmlns=\"half");
    EXPECT_EQ(error_of_opening(folder.path()), "");
    for (const char *file : {"running.xml.new", "candidate.xml.new", "operational.xml.new"})
        EXPECT_FALSE(fs::exists(folder / file)) << file;
}

TEST(Opening, ACandidateThatCameToRunIsNoneAnyMore)
{
    const Folder folder;
    Router::create(folder.path());
    fs::copy(folder / "running.xml", folder / "candidate.xml");
    Router router(folder.path(), 0ms);
    EXPECT_FALSE(router.candidate_differs());
    router.keep_candidate();
    EXPECT_FALSE(fs::exists(folder / "candidate.xml"));
}

namespace {

struct DamageCase {
    const char *name;
    std::string text;   // "CFG" is the namespace
    std::string begin;  // of the error behind the file's name, before libyang's own words
    std::string part = ": damaged: ";
};

std::string in_default_vrf(const std::string &elements)
{
    return "<bgp xmlns=\"CFG\">\n<instance>\n<instance-name>default</instance-name>\n<instance-as>\n<as>0</as>\n"
           "<four-byte-as>\n<as>65001</as>\n<bgp-running/>\n<default-vrf>\n" +
           elements + "</default-vrf>\n</four-byte-as>\n</instance-as>\n</instance>\n</bgp>\n";
}

const DamageCase damages[] = {
    {"EmptyFile", "", ": damaged: not well-formed XML with one bgp element"},
    {"Zeros", std::string(100, '\0'), ": damaged: not well-formed XML with one bgp element"},
    {"ZerosBehindTheText", std::string(empty_config) + std::string(100, '\0'),
     ": damaged: not well-formed XML with one bgp element"},
    {"TextThatEndsTooEarly", "<bgp xmlns=\"CFG\">\n<instance>\n<instance-na",
     ":3: damaged: not well-formed XML with one bgp element"},
    {"TagThatIsNotClosed", "<bgp xmlns=\"CFG\">\n<instance>\n</bgp>\n",
     ":3: damaged: not well-formed XML with one bgp element"},
    {"NoXml", "colour", ":1: damaged: not well-formed XML with one bgp element"},
    {"AnotherElement", "<colour/>", ":1: damaged: "},
    {"UnknownNode",
     "<bgp xmlns=\"CFG\">\n<instance>\n<instance-name>x</instance-name>\n<colour/>\n</instance>\n</bgp>\n",
     ":4: damaged: /bgp/instance[instance-name='x']: "},
    {"ValueOutOfItsType",
     "<bgp xmlns=\"CFG\">\n<instance>\n<instance-name>x</instance-name>\n<instance-as>\n<as>red</as>\n</instance-as>\n"
     "</instance>\n</bgp>\n",
     ":5: damaged: /bgp/instance[instance-name='x']/instance-as", "red"},
    {"ValueOutOfItsTypeFarBelow", in_default_vrf("<global>\n<router-id>red</router-id>\n</global>\n"),
     ":11: damaged: " + vrf_path + "/global", "red"},
    {"ValueWithLineEndsInALine", in_default_vrf("<global>\n<router-id>\nred\n</router-id>\n</global>\n"), ":",
     "damaged: " + vrf_path + "/global/router-id: "},
    {"UnknownNodeFarBelow", in_default_vrf("<global>\n<colour/>\n</global>\n"),
     ":11: damaged: " + vrf_path + "/global: ", "colour"},
    {"LeafTwiceFarBelow", in_default_vrf("<global>\n<graceful-restart/>\n<graceful-restart/>\n</global>\n"), ":",
     "damaged: " + vrf_path + "/global/graceful-restart: "},
    {"EmptyContainerTwice", in_default_vrf("<global/>\n<global/>\n"), ":", "damaged: " + vrf_path + "/global: "},
    {"EntryWithoutItsKey", "<bgp xmlns=\"CFG\">\n<instance>\n</instance>\n</bgp>\n",
     ":3: damaged: /bgp/instance: ", "instance-name"},
    {"TwoTrees", "<bgp xmlns=\"CFG\"/><bgp xmlns=\"CFG\"/>", ": damaged: "},
    {"EntryTwice",
     "<bgp xmlns=\"CFG\">\n<instance>\n<instance-name>x</instance-name>\n</instance>\n<instance>\n"
     "<instance-name>x</instance-name>\n</instance>\n</bgp>\n",
     ":", ": damaged: /bgp/instance[instance-name='x']: "},
};

class Damage : public testing::TestWithParam<DamageCase> {};

std::string damaged_text(const DamageCase &row)
{
    std::string text = row.text;
    for (size_t at = text.find("\"CFG\""); at != std::string::npos; at = text.find("\"CFG\""))
        text.replace(at + 1, 3, ZR_BGP_CFG_NS);
    return text;
}

}  // namespace

TEST_P(Damage, IsNamedWithFileAndLine)
{
    for (const char *name : {"running.xml", "candidate.xml"}) {
        const Folder folder;
        Router::create(folder.path());
        write_file(folder / name, damaged_text(GetParam()));
        const std::string error = error_of_opening(folder.path());
        const std::string begin = (folder / name).string() + GetParam().begin;
        EXPECT_EQ(error.substr(0, begin.size()), begin);
        EXPECT_NE(error.find(GetParam().part), std::string::npos) << error;
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
        EXPECT_EQ(read_file(folder / name), damaged_text(GetParam())) << "a person may want to mend it";
    }
}

INSTANTIATE_TEST_SUITE_P(All, Damage, testing::ValuesIn(damages), name_of_case<DamageCase>);

// libyang lets an empty container go when it checks a model, but a candidate is not checked before it is committed.
TEST(Opening, RefusesACandidateThatHasAContainerTwiceThoughOneIsEmpty)
{
    const Folder folder;
    Router::create(folder.path());
    const std::string empty = "<global>\n<global-afs/>\n</global>\n";
    const std::string filled = "<global>\n<graceful-restart/>\n</global>\n";
    for (const std::string &twice : {empty + filled, filled + empty, empty + empty}) {
        write_file(folder / "candidate.xml", damaged_text({"", in_default_vrf(twice), ""}));
        EXPECT_EQ(error_of_opening(folder.path()),
                  (folder / "candidate.xml").string() + ": damaged: " + vrf_path + "/global: data that stands twice");
    }
}

TEST(Opening, DoesNotQuoteADamagedPassword)
{
    const Folder folder;
    Router::create(folder.path());
    {
        Router router(folder.path(), 0ms);
        edit(router, in_neighbors("neighbor\n  neighbor-address = 10.0.0.1\n  password\n    password = s3cret\n"));
        router.commit();
    }
    const std::string text = read_file(folder / "running.xml");
    const size_t secret = text.find("s3cret");
    ASSERT_NE(secret, std::string::npos);
    for (const std::string &damaged : {text.substr(0, secret + 6), text.substr(0, secret + 6) + "<s3cret" + text}) {
        write_file(folder / "running.xml", damaged);
        const std::string error = error_of_opening(folder.path());
        EXPECT_NE(error, "");
        EXPECT_EQ(error.find("s3cret"), std::string::npos) << error;
    }
}

// ---- The lock -------------------------------------------------------------------------------

TEST(Lock, HoldsTheRouterAgainstOthers)
{
    const TestRouter made;
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(error_of<Locked>([&] { const Router second(made.folder.path(), 30ms); }),
              made.folder.path().string() + ": another process holds the router; waited 30 ms for it");
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 30ms);
}

TEST(Lock, IsWaitedFor)
{
    const Folder folder;
    Router::create(folder.path());
    auto first = std::make_unique<Router>(folder.path(), 0ms);
    std::thread leaving([&] {
        std::this_thread::sleep_for(20ms);
        first.reset();
    });
    EXPECT_EQ(error_of<Locked>([&] { const Router second(folder.path(), 60s); }), "");
    leaving.join();
}

namespace {

// Runs in a process of its own and gives its exit code. What it throws is 99.
template<class Work>
pid_t start(Work work)
{
    const pid_t child = fork();
    if (child != 0) return child;
    try {
        _exit(work());
    } catch (...) {
        _exit(99);
    }
}

int exit_code_of(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

std::string time_of(int number) { return in_global("graceful-restart-time = " + std::to_string(number)); }

// The number of such a datastore.
int time_in(const std::string &tree)
{
    const std::string name = "graceful-restart-time = ";
    const size_t at = tree.find(name);
    return at != std::string::npos ? std::stoi(tree.substr(at + name.size())) : 0;
}

}  // namespace

TEST(Lock, TwoProcessesDoNotInterleave)
{
    constexpr int rounds = 20;
    const Folder folder;
    Router::create(folder.path());
    const auto count = [&] {
        for (int i = 0; i < rounds; i++) {
            Router router(folder.path(), 60s);
            edit(router, time_of(time_in(running_of(router)) + 1));
            std::this_thread::sleep_for(1ms);  // in which the other would find the old number
            router.commit();
        }
        return 0;
    };
    const pid_t first = start(count);
    const pid_t second = start(count);
    EXPECT_EQ(exit_code_of(first), 0);
    EXPECT_EQ(exit_code_of(second), 0);
    EXPECT_EQ(running_after_reopening(folder.path()), time_of(2 * rounds));
}

// ---- Disks and folders that do not take it --------------------------------------------------

namespace {

constexpr char operational_data[] =
    "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\"><instances><instance>"
    "<instance-name>default</instance-name></instance></instances></bgp>";

// What stands in the way of writing a file, while the object is there.
struct Obstacle {
    virtual ~Obstacle() = default;
};

// Holds for processes of root too.
struct FullDisk : Obstacle {
    explicit FullDisk(const fs::path &file) : beside(file.string() + ".new")
    {
        fs::create_symlink("/dev/full", beside);
    }
    ~FullDisk() override { fs::remove(beside); }
    fs::path beside;
};

struct FileSizeLimit : Obstacle {
    explicit FileSizeLimit(const fs::path & /*file*/)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit = {40, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() override { setrlimit(RLIMIT_FSIZE, &before); }
    rlimit before = {};
};

struct FolderInTheWay : Obstacle {
    explicit FolderInTheWay(const fs::path &file) : beside(file.string() + ".new") { fs::create_directory(beside); }
    ~FolderInTheWay() override { fs::remove(beside); }
    fs::path beside;
};

struct ObstacleKind {
    const char *name;
    std::unique_ptr<Obstacle> (*put)(const fs::path &file);
    const char *reason;
};

template<class Kind>
std::unique_ptr<Obstacle> put(const fs::path &file)
{
    return std::make_unique<Kind>(file);
}

const ObstacleKind obstacles[] = {
    {"full disk", put<FullDisk>, "No space left on device"},
    {"disk that fills up on the way", put<FileSizeLimit>, "File too large"},
    {"folder in the way", put<FolderInTheWay>, "Is a directory"},
};

// What writes a file.
struct Writing {
    const char *name;
    bool has_kept_candidate;
    const char *file;
    void (*write)(Router &router);
};

const Writing writings[] = {
    {"commit", false, "running.xml", [](Router &router) { router.commit(); }},
    {"commit over a kept candidate", true, "candidate.xml", [](Router &router) { router.commit(); }},
    {"keeping the candidate", false, "candidate.xml", [](Router &router) { router.keep_candidate(); }},
    {"keeping another candidate", true, "candidate.xml", [](Router &router) { router.keep_candidate(); }},
    {"loading operational data", false, "operational.xml",
     [](Router &router) { router.load_operational(operational_data, "data"); }},
};

std::string state_of(const Router &router)
{
    return running_of(router) + candidate_of(router) + io::write_tree(router.operational().root(), io::Secrets::shown);
}

// What another process would find, if this one ended now.
std::string state_on_disk(const fs::path &folder)
{
    const Folder copy;
    fs::copy(folder, copy.path());
    return state_of(Router(copy.path(), 0ms));
}

// Runs one configuration, and is about to get another.
struct Busy : TestRouter {
    explicit Busy(bool has_kept_candidate)
    {
        edit(router, with_router_id);
        router.commit();
        edit(router, with_another);
        if (has_kept_candidate) router.keep_candidate();
        edit(router, time_of(5));
    }
};

}  // namespace

TEST(Writing, ThatFailsChangesNothingAndSucceedsLater)
{
    for (const Writing &writing : writings) {
        for (const ObstacleKind &obstacle : obstacles) {
            SCOPED_TRACE(std::string(writing.name) + ", " + obstacle.name);
            Busy busy(writing.has_kept_candidate);
            const std::string in_memory = state_of(busy.router);
            const std::string on_disk = state_on_disk(busy.folder.path());
            const fs::path file = busy.folder / writing.file;
            {
                const auto standing = obstacle.put(file);
                const std::string error = error_of<StoreError>([&] { writing.write(busy.router); });
                EXPECT_EQ(error, file.string() + ": cannot be written: " + obstacle.reason);
            }
            EXPECT_EQ(state_of(busy.router), in_memory);
            EXPECT_EQ(state_on_disk(busy.folder.path()), on_disk);
            EXPECT_FALSE(fs::exists(file.string() + ".new"));
            EXPECT_EQ(error_of<StoreError>([&] { writing.write(busy.router); }), "");
            EXPECT_NE(state_on_disk(busy.folder.path()), on_disk);
        }
    }
}

TEST(Writing, ThatCannotTakeItsPlaceLeavesWhatRuns)
{
    for (const bool has_kept_candidate : {false, true}) {
        Busy busy(has_kept_candidate);
        const fs::path running = busy.folder / "running.xml";
        fs::remove(running);
        fs::create_directory(running);
        EXPECT_EQ(error_of<StoreError>([&] { busy.router.commit(); }),
                  running.string() + ": cannot be written: Is a directory");
        EXPECT_EQ(running_of(busy.router), with_router_id);
        EXPECT_TRUE(busy.router.candidate_differs());
        fs::remove(running);
        busy.router.commit();
        EXPECT_EQ(running_of(busy.router), candidate_of(busy.router));
        EXPECT_EQ(state_on_disk(busy.folder.path()), state_of(busy.router));
    }
}

TEST(Writing, ThatCannotTakeTheCandidateAwayLeavesIt)
{
    Busy busy(true);
    const std::string before = candidate_of(busy.router);
    const fs::path candidate = busy.folder / "candidate.xml";
    fs::remove(candidate);
    fs::create_directory(candidate);
    EXPECT_EQ(error_of<StoreError>([&] { busy.router.discard(); }),
              candidate.string() + ": cannot be removed: Is a directory");
    EXPECT_EQ(candidate_of(busy.router), before);
}

// Root may write anywhere, and so a process that is not root tries.
TEST(Writing, InAFolderForReadingAloneSaysSoAndReadingGoesOn)
{
    constexpr uid_t nobody = 65534;
    const Folder folder;
    Router::create(folder.path());
    {
        Router router(folder.path(), 0ms);
        edit(router, with_router_id);
        router.commit();
    }
    for (const char *file : {"format", "lock", "running.xml", "operational.xml"})
        fs::permissions(folder / file, fs::perms(0444));
    fs::permissions(folder.path(), fs::perms(0555));
    const int code = exit_code_of(start([&] {
        if (geteuid() == 0 && setresuid(nobody, nobody, nobody) != 0) return 6;
        Router router(folder.path(), 0ms);
        if (running_of(router) != with_router_id) return 1;
        edit(router, with_another);
        const std::string denied = ": cannot be written: Permission denied";
        if (error_of<StoreError>([&] { router.commit(); }) != (folder / "running.xml").string() + denied) return 2;
        if (running_of(router) != with_router_id) return 3;
        if (error_of<StoreError>([&] { router.keep_candidate(); }) != (folder / "candidate.xml").string() + denied)
            return 4;
        if (error_of_creating(folder.path() / "another").find(": cannot be made: Permission denied") ==
            std::string::npos)
            return 5;
        return 0;
    }));
    fs::permissions(folder.path(), fs::perms(0755));
    EXPECT_EQ(code, 0);
    EXPECT_EQ(running_after_reopening(folder.path()), with_router_id);
}

// ---- Sudden ends ----------------------------------------------------------------------------

namespace {

constexpr int neighbor_count = 12;

// Each neighbor carries the number, so that half of one and half of another would show.
std::string generation(int number)
{
    std::string neighbors;
    for (int i = 1; i <= neighbor_count; i++)
        neighbors += "neighbor\n  neighbor-address = 10.0.0." + std::to_string(i) +
                     "\n  description = " + std::to_string(number) + "\n";
    return in_neighbors(neighbors);
}

// The number of a whole generation; -1 if it is none.
int number_of(const std::string &tree)
{
    if (tree.empty()) return 0;
    const std::string name = "description = ";
    const int number = std::stoi(tree.substr(tree.find(name) + name.size()));
    return tree == generation(number) ? number : -1;
}

// What the killed process says of itself, in memory that outlives it.
struct Progress {
    std::atomic<bool> is_running;
    std::atomic<int> begun;  // the last number that it set out to commit
    std::atomic<int> done;   // the last one whose commit returned
};

// Commits a generation, each in another of the ways that there are.
void commit_next(const fs::path &folder, Progress &progress)
{
    const int number = progress.begun + 1;
    Router router(folder, 60s);
    if (number % 4 == 1) {
        edit(router, generation(number + 1000000));
        router.keep_candidate();
    }
    if (number % 4 == 2) router.discard();
    edit(router, generation(number));
    if (number % 4 == 3) router.keep_candidate();
    progress.begun = number;
    router.commit();
    progress.done = number;
}

[[noreturn]] void commit_for_ever(const fs::path &folder, Progress &progress)
{
    progress.is_running = true;
    for (;;) commit_next(folder, progress);
}

}  // namespace

TEST(Kill, AtAnyMomentLeavesTheOldConfigurationOrTheNewOneWhole)
{
    constexpr int kills = 200;
    const Folder folder;
    Router::create(folder.path());
    void *memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    auto &progress = *new (memory) Progress{};

    // Moments that are spread over the time of a few commits, however fast the machine is.
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < 4; i++) commit_next(folder.path(), progress);
    std::uniform_real_distribution<double> part(0, 1);
    std::mt19937 random(1);
    const std::chrono::duration<double> longest =
        std::min<std::chrono::duration<double>>(std::chrono::steady_clock::now() - begin, 20ms);

    for (int i = 0; i < kills && !HasFailure(); i++) {
        progress.is_running = false;
        const pid_t child = start([&]() -> int { commit_for_ever(folder.path(), progress); });
        while (!progress.is_running) std::this_thread::sleep_for(100us);
        std::this_thread::sleep_for(longest * part(random));
        kill(child, SIGKILL);
        ASSERT_EQ(exit_code_of(child), -SIGKILL) << "it ended by itself";

        const Router router(folder.path(), 0ms);
        const int number = number_of(running_of(router));
        EXPECT_TRUE(number == progress.done || number == progress.begun)
            << "found " << number << ", committed " << progress.done << ", begun " << progress.begun;
        EXPECT_NE(number_of(candidate_of(router)), -1);
        progress.done = number;
    }
    EXPECT_GT(progress.done, kills / 10) << "it hardly ever came to a commit";
    munmap(memory, sizeof(Progress));
}
