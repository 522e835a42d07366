#include "observer.h"

#include <functional>
#include <thread>

#include "support.h"
#include "system_database.h"

using platform::Operation;
using test::text_of;

namespace {

// Watches its thread while it lives; lets every operation fail with `outcome`, if that is not 0.
class Watch {
public:
    explicit Watch(uint32_t outcome = 0) : outcome_(outcome) { platform::observe(&observer_); }
    ~Watch() { platform::observe(nullptr); }
    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;

    std::vector<Operation> seen;

private:
    static uint32_t before(void *self, const Operation &operation)
    {
        auto *watch = static_cast<Watch *>(self);
        watch->seen.push_back(operation);
        return watch->outcome_;
    }

    const uint32_t outcome_;
    const platform::Observer observer_ = {before, this};
};

// What the operations work on. Each of them succeeds in it.
struct World {
    World()
    {
        database.put({.location = "/as", .words = {1}});
        sessions.open(1, database);
        backend = sessions.find(1)->me_session->backend_sessions[0];
        sysdb_backend_find_data(backend, "/as", SYSDB_FIND_FLAGS, &found, 1);
        sysdb_backend_result_set_iterate_next(backend, found, &result);
    }
    ~World()
    {
        sysdb_backend_result_free(result);
        sysdb_backend_result_set_iterate_finish(found);
    }
    World(const World &) = delete;
    World &operator=(const World &) = delete;

    Datatree *node() { return &platform::children_of(tree.root())[0]; }

    platform::Tree tree = io::read_tree("afi-safi oc-bgp [remove]\n  afi-safi-name = bgp-types:IPV4_UNICAST\n");
    platform::SystemDatabase database;
    platform::Sessions sessions;
    VmfContext context = {.framework_state = &sessions, ._debug_ctx = {}};
    SysdbBackendSession *backend = nullptr;
    SysdbResultSet *found = nullptr;
    SysdbResult *result = nullptr;
    char buffer[16] = "text";
};

constexpr uint32_t failure = 0xbad;

// The outcome of an operation that gives a pointer, which is the caller's to release.
template<class Release>
uint32_t outcome_of(void *given, Release release)
{
    release(given);
    return given != nullptr ? VMF_RC_OK : failure;
}

// The outcome of an operation whose results are no outcomes.
uint32_t outcome_of(int32_t result) { return result == 0 ? VMF_RC_OK : failure; }

struct Row {
    const char *name;
    std::function<uint32_t(World &)> call;
};

const Row operations_that_can_fail[] = {
    {"vmf_map_datatree_add_subtree",
     [](World &w) {
         return vmf_map_datatree_add_subtree(nullptr, &w.tree.root(), "afi-safi", OC_BGP_NS, "1", &test::plain_write,
                                             nullptr, 0);
     }},
    {"vmf_map_datatree_add_path",
     [](World &w) {
         return vmf_map_datatree_add_path(nullptr, &w.tree.root(), "afi-safi/config/enabled", OC_BGP_NS, "true",
                                          &test::plain_write, nullptr, 0);
     }},
    {"vmf_map_datatree_add_path_common",
     [](World &w) {
         return vmf_map_datatree_add_path_common(nullptr, &w.tree.root(), "list[key]/leaf", OC_BGP_NS, "1",
                                                 &test::plain_write, nullptr, 1);
     }},
    {"vmf_map_datatree_add_list_node",
     [](World &w) {
         return vmf_map_datatree_add_list_node(nullptr, &w.tree.root(), "afi-safi", OC_BGP_NS, "name", "1", nullptr);
     }},
    {"vmf_map_datatree_add_data_ns",
     [](World &w) { return vmf_map_datatree_add_data_ns(nullptr, w.node(), "afi-safi/afi-safi-name", OC_BGP_NS); }},
    {"vmf_map_get_subtrees",
     [](World &w) {
         Datatree *children = nullptr;
         int32_t count = 0;
         return vmf_map_get_subtrees(nullptr, &w.tree.root(), &children, &count);
     }},
    {"vmf_map_validate_data_ns",
     [](World &w) {
         return vmf_map_validate_data_ns(nullptr, &platform::children_of(*w.node())[0], OC_BGP_TYPES_NS, 0);
     }},
    {"vmf_map_update_current_list_node",
     [](World &) { return vmf_map_update_current_list_node(nullptr, "/bgp/neighbors/neighbor", 1); }},
    {"vmf_strdup", [](World &) { return outcome_of(vmf_strdup("text", "VMF MAP"), vmf_gpb_free); }},
    {"vmf_safe_strncpy", [](World &w) { return vmf_safe_strncpy(w.buffer, sizeof w.buffer, "new", 3); }},
    {"kos_named_calloc_", [](World &) { return outcome_of(kos_named_calloc_(1, 8, "VMF MAP", 0), kos_named_free); }},
    {"strcpy_s", [](World &w) { return outcome_of(strcpy_s(w.buffer, sizeof w.buffer, "new")); }},
    {"strcat_s", [](World &w) { return outcome_of(strcat_s(w.buffer, sizeof w.buffer, "new")); }},
    {"__strcat_s_to_buf",
     [](World &w) { return outcome_of(__strcat_s_to_buf(sizeof w.buffer, w.buffer, sizeof w.buffer, "new")); }},
    {"vmf_session_find", [](World &w) { return outcome_of(vmf_session_find(&w.context, 1), [](void *) {}); }},
    {"sysdb_backend_find_data",
     [](World &w) {
         SysdbResultSet *found = nullptr;
         const uint32_t outcome = sysdb_backend_find_data(w.backend, "/as", SYSDB_FIND_FLAGS, &found, 1);
         sysdb_backend_result_set_iterate_finish(found);
         return outcome;
     }},
    {"sysdb_backend_result_set_iterate_start",
     [](World &w) { return sysdb_backend_result_set_iterate_start(w.backend, w.found); }},
    {"sysdb_backend_result_set_iterate_next",
     [](World &w) {
         sysdb_backend_result_free(w.result);
         w.result = nullptr;
         return sysdb_backend_result_set_iterate_next(w.backend, w.found, &w.result);
     }},
    {"sysdb_backend_result_set_iterate_next_part",
     [](World &w) { return sysdb_backend_result_set_iterate_next_part(w.backend, w.found); }},
    {"sysdb_backend_result_get_location",
     [](World &w) {
         const char *location = nullptr;
         return sysdb_backend_result_get_location(w.backend, w.result, &location);
     }},
    {"me_bk_sysdb_packed_data_unpack",
     [](World &w) {
         void *tuple = nullptr;
         uint32_t count = 0;
         uint32_t context[72] = {};
         return me_bk_sysdb_packed_data_unpack(w.result->packed_data, &tuple, &count, context);
     }},
};

}  // namespace

TEST(Observer, SeesEachOperationOnce)
{
    for (const Row &row : operations_that_can_fail) {
        World world;
        const Watch watch;
        EXPECT_EQ(row.call(world), VMF_RC_OK) << row.name;
        ASSERT_EQ(watch.seen.size(), 1u) << row.name;
        EXPECT_STREQ(watch.seen[0].name, row.name);
    }
}

TEST(Observer, LetsEachOperationFailBeforeItDoesAnything)
{
    for (const Row &row : operations_that_can_fail) {
        World world;
        const std::string before = text_of(world.tree);
        const Datatree *node = world.node();
        const Watch watch(failure);
        EXPECT_EQ(row.call(world), failure) << row.name;
        EXPECT_EQ(watch.seen.size(), 1u) << row.name;
        EXPECT_EQ(text_of(world.tree), before) << row.name;
        EXPECT_EQ(world.node(), node) << row.name;
        EXPECT_STREQ(world.buffer, "text") << row.name;
    }
}

TEST(Observer, SeesTheArgumentsOfAnAdd)
{
    platform::Tree tree;
    const Watch watch;
    vmf_map_datatree_add_path(nullptr, &tree.root(), "/neighbor[address]/as", ZR_BGP_CFG_NS, "10.0.0.1", &test::removal,
                              nullptr, 1);
    vmf_map_datatree_add_subtree(nullptr, &tree.root(), "bgp", ZR_BGP_OPER_NS, nullptr, nullptr, nullptr, 0);
    vmf_map_datatree_add_list_node(nullptr, &tree.root(), "neighbor", ZR_BGP_CFG_NS, "address", "10.0.0.2", nullptr);
    ASSERT_EQ(watch.seen.size(), 3u);

    const Operation &path = watch.seen[0];
    EXPECT_EQ(path.parent, &tree.root());
    EXPECT_STREQ(path.path, "/neighbor[address]/as");
    EXPECT_STREQ(path.ns, ZR_BGP_CFG_NS);
    EXPECT_STREQ(path.value, "10.0.0.1");
    EXPECT_EQ(path.operation_source, &test::removal);
    EXPECT_EQ(path.repeat, 1u);

    const Operation &child = watch.seen[1];
    EXPECT_EQ(child.parent, &tree.root());
    EXPECT_STREQ(child.path, "bgp");
    EXPECT_STREQ(child.ns, ZR_BGP_OPER_NS);
    EXPECT_EQ(child.value, nullptr);
    EXPECT_EQ(child.operation_source, nullptr);
    EXPECT_EQ(child.repeat, 0u);

    const Operation &entry = watch.seen[2];
    EXPECT_EQ(entry.parent, &tree.root());
    EXPECT_STREQ(entry.path, "neighbor");
    EXPECT_STREQ(entry.ns, ZR_BGP_CFG_NS);
    EXPECT_STREQ(entry.value, "10.0.0.2");
}

TEST(Observer, SeesTheArgumentsOfTheOthers)
{
    World world;
    const Watch watch;
    vmf_map_datatree_add_data_ns(nullptr, world.node(), "afi-safi/afi-safi-name", OC_BGP_NS);
    vmf_map_validate_data_ns(nullptr, world.node(), OC_BGP_TYPES_NS, 0);
    vmf_map_update_current_list_node(nullptr, "/bgp/neighbors/neighbor", 1);
    vmf_gpb_free(vmf_strdup("a text", "VMF MAP"));
    kos_named_free(kos_named_calloc_(1, 8, "sysdb path", 0));
    SysdbResultSet *found = nullptr;
    sysdb_backend_find_data(world.backend, "/no/such/path", SYSDB_FIND_FLAGS, &found, 1);
    ASSERT_EQ(watch.seen.size(), 6u);

    EXPECT_EQ(watch.seen[0].parent, world.node());
    EXPECT_STREQ(watch.seen[0].path, "afi-safi/afi-safi-name");
    EXPECT_STREQ(watch.seen[0].ns, OC_BGP_NS);
    EXPECT_EQ(watch.seen[1].parent, world.node());
    EXPECT_STREQ(watch.seen[1].ns, OC_BGP_TYPES_NS);
    EXPECT_STREQ(watch.seen[2].path, "/bgp/neighbors/neighbor");
    EXPECT_STREQ(watch.seen[3].path, "a text");
    EXPECT_STREQ(watch.seen[4].path, "sysdb path");
    EXPECT_STREQ(watch.seen[5].path, "/no/such/path");
}

TEST(Observer, SeesAlsoWhatIsRefused)
{
    const Watch watch;
    EXPECT_EQ(vmf_map_datatree_add_path(nullptr, nullptr, "a", ZR_BGP_CFG_NS, nullptr, nullptr, nullptr, 0),
              VMF_RC_BAD_ARGS);
    EXPECT_EQ(watch.seen.size(), 1u);
}

TEST(Observer, SeesNothingMoreAfterItsEnd)
{
    const Watch watch(failure);
    platform::observe(nullptr);
    for (const Row &row : operations_that_can_fail) {
        World world;
        EXPECT_EQ(row.call(world), VMF_RC_OK) << row.name;
    }
    EXPECT_TRUE(watch.seen.empty());
}

TEST(Observer, TheNextOneTakesItsPlace)
{
    World world;
    const Watch first(failure);
    const Watch second;
    EXPECT_EQ(operations_that_can_fail[0].call(world), VMF_RC_OK);
    EXPECT_TRUE(first.seen.empty());
    EXPECT_EQ(second.seen.size(), 1u);
}

TEST(Observer, WatchesItsOwnThreadOnly)
{
    const Watch watch(failure);
    uint32_t outcome = failure;
    std::thread([&] {
        World world;
        outcome = operations_that_can_fail[0].call(world);
    }).join();
    EXPECT_EQ(outcome, VMF_RC_OK);
    EXPECT_TRUE(watch.seen.empty());
}

TEST(Observer, OperationsThatCannotFailAskNobody)
{
    const platform::Tree tree = io::read_tree("as zr-cfg [remove]\n");
    const Datatree *node = &platform::children_of(tree.root())[0];
    char text[11];
    const VmfDebugContext debug = {};
    const Watch watch(failure);
    EXPECT_NE(vmf_map_do_these_match("a", "a"), 0u);
    EXPECT_NE(vmf_map_is_request_delete(node), 0u);
    EXPECT_EQ(vmf_map_is_request_replace(node), 0u);
    EXPECT_NE(vmf_map_is_valid_ipv4_addr("1.2.3.4"), 0u);
    EXPECT_EQ(vmf_map_set_bitmap(0, 1), 2u);
    EXPECT_STREQ(itoa(1, text, 10), "1");
    EXPECT_STREQ(cerr_strerror(0), "success");
    EXPECT_EQ(vmf_debug_should_log(&debug, 0), 0u);
    ret_nc_vmf_trace_index_incr();
    EXPECT_TRUE(watch.seen.empty());
}
