// A platform that fails at its k-th operation, for every k: the outcome passes up or is got over, nothing leaks,
// nothing is released twice, and no half answer is given.
#include <gtest/gtest.h>

#include <cctype>

#include "observer.h"
#include "trees.h"

namespace {

constexpr uint32_t failure = 0x77;

// Fails one operation while it lives.
class FailingPlatform {
public:
    explicit FailingPlatform(size_t failing) : failing_(failing), outer_(platform::observe(&observer_)) {}
    ~FailingPlatform() { platform::observe(outer_); }
    FailingPlatform(const FailingPlatform &) = delete;
    FailingPlatform &operator=(const FailingPlatform &) = delete;

    bool has_failed() const { return count_ >= failing_; }

private:
    static uint32_t before(void *self, const platform::Operation & /*operation*/)
    {
        auto &watch = *static_cast<FailingPlatform *>(self);
        return ++watch.count_ == watch.failing_ ? failure : 0;
    }

    size_t failing_;
    size_t count_ = 0;
    platform::Observer observer_ = {before, this};
    const platform::Observer *outer_;
};

constexpr char family[] = "            global-afs\n"
                          "              global-af\n"
                          "                af-name = ipv4-unicast\n"
                          "                enable\n"
                          "                ebgp\n"
                          "                  paths-value = 4\n";

struct SweepCase {
    const char *name;
    uint32_t kind;
    uint32_t response_pending;
    std::string request;
    std::string native;
};

std::vector<SweepCase> sweep_cases()
{
    const std::string all = "  global\n";
    const std::string config = "  global\n    config\n      as\n      router-id\n";
    const std::string one_family = "  global\n    afi-safis\n      afi-safi\n        afi-safi-name = "
                                   "bgp-types:IPV4_UNICAST\n";
    const std::string edit = "  global\n"
                             "    config\n"
                             "      as = 65001\n"
                             "    confederation\n"
                             "      config\n"
                             "        identifier = 64512\n"
                             "        member-as = 65010\n"
                             "    default-route-distance\n"
                             "      config\n"
                             "        external-route-distance = 20\n";
    const std::string other = "system <urn:other>\n  hostname = r1\n";
    const std::string both = other + configuration(family) + operational();
    const std::string refused = configuration() + "bgp zr-oper\n  instances\n    instance\n";
    return {
        {"an edit", VMF_REQ_EDIT, 1, edit, ""},
        {"a refused edit", VMF_REQ_EDIT, 1, edit + "      colour\n", ""},
        {"a configuration", VMF_REQ_GET_CONFIG, 1, config, configuration()},
        {"a configuration among others", VMF_REQ_GET_CONFIG, 1, config, both},
        {"a get of configuration", VMF_REQ_GET, 1, config, configuration()},
        {"a get of both models", VMF_REQ_GET, 1, all, both},
        {"a get of one family", VMF_REQ_GET, 1, one_family, both},
        {"a get of operational data alone", VMF_REQ_GET, 1, all, other + operational()},
        {"a get of configuration alone", VMF_REQ_GET, 1, all, configuration(family)},
        {"a refused answer", VMF_REQ_GET, 1, all, refused},
        {"beside: a configuration", VMF_REQ_GET_CONFIG, 0, config, both},
        {"beside: a get", VMF_REQ_GET, 0, all, both},
        {"beside: operational data alone", VMF_REQ_GET, 0, all, operational()},
        {"beside: a refused answer", VMF_REQ_GET, 0, all, refused},
    };
}

struct Ran {
    uint32_t outcome;
    std::string native;
    std::string answer;
};

Ran run(const SweepCase &it)
{
    Exchange exchange(it.kind, it.request);
    exchange.request.context().response_pending = it.response_pending;
    uint32_t outcome = exchange.outcome;
    if (outcome == VMF_RC_OK) outcome = exchange.answer(it.native);
    return {outcome, text_of(exchange.native), text_of(exchange.answered)};
}

class Sweep : public testing::TestWithParam<SweepCase> {};

}  // namespace

TEST_P(Sweep, SurvivesEveryFailureOfThePlatform)
{
    const Ran whole = run(GetParam());
    size_t failures = 0;
    for (size_t failing = 1;; failing++) {
        const FailingPlatform platform(failing);
        const Ran ran = run(GetParam());
        if (!platform.has_failed()) {
            EXPECT_EQ(ran.answer, whole.answer);
            EXPECT_EQ(ran.native, whole.native);
            break;
        }
        failures += ran.outcome != whole.outcome ? 1 : 0;
        EXPECT_TRUE(ran.outcome == VMF_RC_OK || ran.answer.empty()) << "operation " << failing;
        ASSERT_LT(failing, 2000u);
    }
    EXPECT_GT(failures, 0u);
}

INSTANTIATE_TEST_SUITE_P(Requests, Sweep, testing::ValuesIn(sweep_cases()),
                         [](const testing::TestParamInfo<SweepCase> &it) {
                             std::string name = it.param.name;
                             for (char &c : name)
                                 if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
                             return name;
                         });
