// An embedded router in a folder of its own, named to the command by its environment variable.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "command.h"

// An OpenConfig edit with these nodes below /bgp/global.
std::string global_edit(const std::string &inside);

class RouterFolder : public testing::Test {
protected:
    void SetUp() override;  // makes the router, without any configuration
    void TearDown() override;

    // Runs a command that has to succeed without a word on standard error, but for the notes of `edit` and `translate`;
    // gives what it prints.
    static std::string succeed(const std::string &arguments, const std::string &input = "");

    static void expect(const Ran &ran, int code, const std::string &err);

    // What native configuration and operational data there is, as text.
    static std::string running() { return succeed("show running"); }
    static std::string candidate() { return succeed("show candidate"); }

    // The router's files, by name.
    std::map<std::string, std::string> files() const;

    std::string path(const std::string &name) const { return folder_ + "/" + name; }
    const std::string &router() const { return router_; }

private:
    std::string folder_;
    std::string router_;
};
