// A router that every hostile input of a test program is thrown at; none may leave a trace in it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "command.h"

class HostileTest : public testing::Test {
protected:
    static void SetUpTestSuite();  // a router that runs BGP, with a neighbor
    static void TearDownTestSuite();

    // A line of a shell, with `$ocbgp` for the command, ends with this code and these words on standard error, prints
    // nothing else, and leaves the router's folder as it was.
    static void expect_refusal(const std::string &line, const std::string &input, int code, const std::string &error);
};
