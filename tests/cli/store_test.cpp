// The commands that look after the embedded router, and the states in which its folder can be.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "router_folder.h"

namespace fs = std::filesystem;

namespace {

// Every command that opens the router, as it would be called.
const std::string of_a_router[] = {
    "edit examples/global-edit.xml",
    "get --config",
    "reset",
    "commit",
    "discard",
    "diff",
    "show running",
    "load-operational examples/operational.xml",
    "backup no-such-folder",
};

class Store : public RouterFolder {
protected:
    void SetUp() override
    {
        RouterFolder::SetUp();
        succeed("edit examples/global-edit.xml");
    }

    // Holds the router as another process would.
    class Holder {
    public:
        explicit Holder(const std::string &router)
            : number_(::open((router + "/lock").c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0600))
        {
            EXPECT_EQ(::flock(number_, LOCK_EX | LOCK_NB), 0);
        }
        ~Holder() { ::close(number_); }
        Holder(const Holder &) = delete;
        Holder &operator=(const Holder &) = delete;

    private:
        int number_;
    };
};

using Folder = Store;
using Lock = Store;
using Damage = Store;
using Operational = Store;
using Backup = Store;

}  // namespace

// ---- Which router ---------------------------------------------------------------------------

TEST_F(Folder, IsNamedByTheOptionBeforeTheEnvironment)
{
    succeed("init --router " + path("other"));
    EXPECT_EQ(succeed("show running --router " + path("other")), "");
    EXPECT_NE(succeed("show running"), "");
}

TEST_F(Folder, IsTheOneAtHandWhenNobodyNamesIt)
{
    unsetenv("OCBGP_ROUTER");
    EXPECT_EQ(run_ocbgp("init", "", path("")).code, 0);
    EXPECT_TRUE(fs::exists(path("ocbgp-router")));
    EXPECT_EQ(run_ocbgp("show running", "", path("")).code, 0);
}

TEST_F(Folder, WithARouterIsNotMadeAnew)
{
    const std::string before = running();
    expect(run_ocbgp("init"), 5, "ocbgp: " + router() + ": a router is here already\n");
    EXPECT_EQ(running(), before);
}

TEST_F(Folder, ThatIsAFileHoldsNoRouter)
{
    std::ofstream(path("file")) << "x";
    const Ran ran = run_ocbgp("init --router " + path("file"));
    EXPECT_EQ(ran.code, 5);
    EXPECT_TRUE(ran.err.starts_with("ocbgp: " + path("file"))) << ran.err;
}

TEST_F(Folder, WithoutARouterIsToldToEveryCommand)
{
    for (const std::string &command : of_a_router)
        expect(run_ocbgp(command + " --router " + path("none")), 5,
               "ocbgp: no router in " + path("none") + "; make one with ocbgp init\n");
    EXPECT_FALSE(fs::exists(path("none")));
}

// ---- Another process ------------------------------------------------------------------------

TEST_F(Lock, OfAnotherProcessStopsEveryCommand)
{
    const auto before = files();
    const Holder holder(router());
    for (const std::string &command : of_a_router)
        expect(run_ocbgp(command + " --wait 0"), 4,
               "ocbgp: " + router() + ": another process holds the router; waited 0 ms for it\n");
    EXPECT_EQ(files(), before);
}

TEST_F(Lock, IsWaitedFor)
{
    auto holder = std::make_unique<Holder>(router());
    std::thread leaves([&holder] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        holder.reset();
    });
    EXPECT_NE(succeed("show running --wait 60"), "");
    leaves.join();
}

TEST_F(Lock, IsNotTakenToTranslate)
{
    const Holder holder(router());
    succeed("translate examples/global-edit.xml");
}

// ---- Damage ---------------------------------------------------------------------------------

TEST_F(Damage, IsToldWithTheFileAndExitsWithFive)
{
    const std::pair<std::string, std::string> cases[] = {
        {"running.xml", "<bgp"},
        {"running.xml", "<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg\"><colour/></bgp>"},
        {"operational.xml", ""},
        {"candidate.xml", "<bgp"},
        {"format", "2\n"},
        {"format", "colour\n"},
    };
    for (const auto &[file, text] : cases) {
        const std::string name = router() + "/" + file;
        const std::string whole = read_file(name);
        std::ofstream(name) << text;
        const Ran ran = run_ocbgp("get --config");
        EXPECT_EQ(ran.code, 5) << file << " " << text;
        EXPECT_EQ(ran.out, "");
        EXPECT_TRUE(ran.err.starts_with("ocbgp: " + name + ":")) << ran.err;
        if (whole.empty())
            fs::remove(name);
        else
            std::ofstream(name) << whole;
    }
    fs::remove(router() + "/running.xml");
    expect(run_ocbgp("show running"), 5, "ocbgp: " + router() + "/running.xml: damaged: the file is missing\n");
}

// A limit on the size of files stands for a disk without room.
TEST_F(Damage, OfAFullDiskLosesNothing)
{
    const auto before = files();
    const Ran ran = run_shell("{ (trap '' XFSZ; ulimit -f 0; " OCBGP
                              " edit examples/confederation-edit.xml 2>&1; echo code $?) | cat; }");
    EXPECT_TRUE(ran.out.starts_with("ocbgp: " + router() + "/running.xml: cannot be written: ")) << ran.out;
    EXPECT_TRUE(ran.out.ends_with("code 5\n")) << ran.out;
    EXPECT_EQ(files(), before);
}

// ---- Native data ----------------------------------------------------------------------------

TEST_F(Store, ShowsNativeDataInEveryFormat)
{
    succeed("load-operational examples/operational.xml");
    EXPECT_EQ(succeed("show running --format xml"),
              "<data xmlns=\"urn:ietf:params:xml:ns:netconf:base:1.0\">\n"
              "  <bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-cfg\">\n"
              "    <instance>\n"
              "      <instance-name>default</instance-name>\n"
              "      <instance-as>\n"
              "        <as>0</as>\n"
              "        <four-byte-as>\n"
              "          <as>65001</as>\n"
              "          <bgp-running/>\n"
              "          <default-vrf>\n"
              "            <global>\n"
              "              <router-id>192.0.2.1</router-id>\n"
              "            </global>\n"
              "          </default-vrf>\n"
              "        </four-byte-as>\n"
              "      </instance-as>\n"
              "    </instance>\n"
              "  </bgp>\n"
              "</data>\n");
    expect_golden("show-operational.json", succeed("show operational --format json"));
    EXPECT_EQ(succeed("show candidate"), succeed("show running --format tree"));
}

TEST_F(Store, IsEmptyAfterAReset)
{
    succeed("load-operational examples/operational.xml");
    succeed("edit --candidate examples/confederation-edit.xml");
    succeed("reset");
    for (const char *what : {"running", "candidate", "operational"})
        EXPECT_EQ(succeed(std::string("show ") + what), "") << what;
}

TEST_F(Operational, IsReplacedByWhatIsLoadedAndStaysIfThatIsRefused)
{
    succeed("load-operational -", read_file(SOURCE_DIR "/examples/operational.xml"));
    const std::string loaded = succeed("show operational");
    const std::string ns = "http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper";
    expect(run_ocbgp("load-operational no-such-file"), 2,
           "ocbgp: no-such-file: cannot be read: No such file or directory\n");
    EXPECT_EQ(run_ocbgp("load-operational -", "<bgp xmlns=\"" + ns + "\">").code, 2);
    expect(run_ocbgp("load-operational -", "<bgp xmlns=\"" + ns + "\"><colour/></bgp>"), 3,
           "ocbgp: refused by the router: Node \"colour\" not found as a child of \"bgp\" node. (-:1)\n"
           "  native: /bgp\n");
    expect(run_ocbgp("load-operational examples/global-edit.xml"), 3,
           "ocbgp: refused by the router: <rpc> of urn:ietf:params:xml:ns:netconf:base:1.0; expected bgp of " + ns +
               ", or data of NETCONF that holds it\n");
    EXPECT_EQ(succeed("show operational"), loaded);
    succeed("load-operational -", "<bgp xmlns=\"" + ns + "\"/>");
    EXPECT_EQ(succeed("show operational"), "");
}

// ---- Backups --------------------------------------------------------------------------------

TEST_F(Backup, BringsBackWhatRanAndWhatWasCounted)
{
    succeed("edit examples/families-edit.xml");
    succeed("load-operational examples/operational.xml");
    const std::string ran = running();
    const std::string counted = succeed("show operational");
    succeed("edit --candidate examples/confederation-edit.xml");
    succeed("backup " + path("saved"));
    EXPECT_NE(candidate(), ran);  // a backup leaves the router as it is

    succeed("reset");
    succeed("restore " + path("saved"));
    EXPECT_EQ(running(), ran);
    EXPECT_EQ(candidate(), ran);
    EXPECT_EQ(succeed("show operational"), counted);
}

TEST_F(Backup, IsItselfARouter)
{
    succeed("backup " + path("saved"));
    EXPECT_EQ(succeed("show running --router " + path("saved")), running());
}

TEST_F(Backup, IsRestoredOverAnotherConfigurationAndItsCandidate)
{
    succeed("backup " + path("saved"));
    const std::string saved = running();
    succeed("edit examples/global-delete.xml");
    succeed("edit -", global_edit("<config><as>65002</as></config>"));
    succeed("edit --candidate -", global_edit("<config><router-id>192.0.2.9</router-id></config>"));
    succeed("restore " + path("saved"));
    EXPECT_EQ(running(), saved);
    EXPECT_EQ(candidate(), saved);
}

TEST_F(Backup, GoesToANewFolderOnly)
{
    succeed("backup " + path("saved"));
    expect(run_ocbgp("backup " + path("saved")), 5, "ocbgp: " + path("saved") + ": a router is here already\n");
    expect(run_ocbgp("backup " + router()), 64,
           "ocbgp: " + router() + ": the router's own folder is no place for its backup\n");
}

TEST_F(Backup, IsRestoredFromABackupOnly)
{
    const std::string before = running();
    expect(run_ocbgp("restore " + path("none")), 5, "ocbgp: no backup in " + path("none") + "\n");
    expect(run_ocbgp("restore " + router()), 64,
           "ocbgp: " + router() + ": the router's own folder is no backup of it\n");
    EXPECT_EQ(running(), before);
    succeed("backup " + path("saved"));
    std::ofstream(path("saved") + "/running.xml") << "<bgp";
    EXPECT_EQ(run_ocbgp("restore " + path("saved")).code, 5);
    EXPECT_EQ(running(), before);
}
