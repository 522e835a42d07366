// Inputs beyond all bounds: refused before they take much memory.
#include "router.h"
#include "sanitizers.h"

namespace {

// A sanitizer's shadow memory alone needs more address space than any limit. In kilobytes.
constexpr const char *limited = is_sanitized ? "" : "ulimit -v 2097152; ";

class Large : public HostileTest {
protected:
    static void expect(const std::string &made_by, const std::string &error, const std::string &command = "edit -")
    {
        expect_refusal(limited + ("{ " + made_by + "; } 2>/dev/null | $ocbgp " + command), "", 2,
                       "ocbgp: " + error + "\n");
    }
};

constexpr char bgp_tag[] = "echo '<bgp xmlns=\"http://openconfig.net/yang/bgp\">'; ";

}  // namespace

TEST_F(Large, AGibibyteOfNothing) { expect("head -c 1G /dev/zero", "-: larger than 268435456 bytes"); }

TEST_F(Large, AGibibyteOfAFile)
{
    const std::string file = "large-$$";
    expect_refusal(limited + ("cd ${TMPDIR:-/tmp} && truncate -s 1G " + file + " && { $ocbgp edit " + file +
                              " 2>&1 | sed s/-[0-9]*:/:/ >&2; rm " + file + "; }"),
                   "", 0, "ocbgp: large: larger than 268435456 bytes\n");
}

TEST_F(Large, AGibibyteOfElements)
{
    expect(std::string(bgp_tag) + "yes '<neighbors/>' | head -c 1G", "-: larger than 268435456 bytes");
}

TEST_F(Large, AGibibyteOfOperationalData)
{
    expect("yes '<a/>' | head -c 1G", "-: larger than 268435456 bytes", "load-operational -");
}

TEST_F(Large, MillionsOfElements)
{
    expect(std::string(bgp_tag) + "yes '<a/>' | head -n 17000000", "-:16777217:1: more than 16777216 elements");
}

TEST_F(Large, MillionsOfJsonValues)
{
    expect("printf '{\"a:b\": ['; yes '0,' | head -n 17000000", "-: /a:b: more than 16777216 values");
}

TEST_F(Large, MillionsOfElementsOfOperationalData)
{
    expect(
        "echo '<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\">'; yes '<a/>' | head -n 17000000",
        "-:16777217:1: more than 16777216 elements", "load-operational -");
}

TEST_F(Large, AValueOfManyMegabytes)
{
    expect(std::string(bgp_tag) + "printf '<global>'; yes | head -c 20M",
           "-:2:1: a value of more than 65536 bytes in <global>");
}

TEST_F(Large, ACommentOfManyMegabytes)
{
    expect(std::string(bgp_tag) + "printf '<!--'; yes | head -c 20M",
           "-:10485762:1: not well-formed XML: Comment not terminated");
}

TEST_F(Large, AnEntryThatStandsAMillionTimes)
{
    expect("echo '<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\"><instances>'; "
           "yes '<instance><instance-name>a</instance-name></instance>' | head -n 1000000",
           "-:1002:1: more than 1000 times the same <instance>", "load-operational -");
}

TEST_F(Large, ALeafThatStandsAMillionTimes)
{
    expect("echo '<bgp xmlns=\"http://zorvex.example/ns/yang/Zorvex-ZR-ipv4-bgp-oper\"><instances><instance>'; "
           "yes '<instance-name>a</instance-name>' | head -n 1000000",
           "-:1002:1: more than 1000 times the same <instance-name>", "load-operational -");
}
