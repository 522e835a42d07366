// Writers: each gives the whole text of one file.
#pragma once

#include <ostream>
#include <string>

#include "node.h"

// ---- What writers share ---------------------------------------------------------------------

// The two lines that say what made a file; `comment` begins a line.
std::string made_by(const std::string &module, const char *comment);

std::string padded(std::string text, size_t width);
std::string with_underscores(std::string text);

// The width of the widest of these texts.
size_t widest(const Model &nodes, const std::vector<size_t> &places, std::string (*text)(const Node &));

// The name of a node's rows within its file.
std::string local_name(const Node &node);
std::string quoted_tag(const Node &node);

// ---- Requests -------------------------------------------------------------------------------

// The parts of the request tree that have files of their own; the first is the root alone.
extern const char *const subtrees[4];

std::string write_request_walkers(const Model &nodes, const std::string &subtree);
std::string write_request_defaults(const Model &nodes, const std::string &subtree);
std::string write_walker_declarations(const Model &nodes);

// ---- Responses ------------------------------------------------------------------------------

std::string write_response_walkers(const Tree &tree, const Model &nodes);
std::string write_response_defaults(const Tree &tree, const Model &nodes);

// ---- Lists ----------------------------------------------------------------------------------

std::string write_handler_declarations(const Tree &tree, const Model &nodes);
std::string write_exports(const std::vector<Model> &trees, const std::vector<std::string> &services);
std::string write_node_list(const Model &nodes);
std::string write_node_table(const Model &nodes, const std::vector<std::string> &identities);
std::string write_native_table(const Model &configuration, const Model &operational);
