// Requests and native answers as trees in text, and a trip between the two without a router.
#pragma once

#include <string>

#include "request.h"
#include "system_database.h"
#include "tree.h"

// A request as it is read.
std::string request_text(const std::string &inside);

// Native answers: configuration with a router id, of `families` too; operational data of one family.
std::string configuration(const std::string &families = "");
std::string operational();

std::string text_of(const platform::Tree &tree);

// A request, and the answer that came of it.
struct Exchange {
    // `request_inside` is what stands below /bgp, a tree text with its own indent.
    Exchange(uint32_t kind, const std::string &request_inside);

    uint32_t answer(const std::string &native_answer);

    platform::SystemDatabase database;
    platform::Log log;
    framework::Request request;
    platform::Tree native;
    platform::Tree answered;
    uint32_t outcome;
};
