// The forms of a handler on the way back: each writes what a native node says into the OpenConfig tree. `mapped` is the
// holder of that tree; paths go there, or below the entry at hand.
#pragma once

#include "forms.h"

// ---- Where an OpenConfig path hangs ---------------------------------------------------------

constexpr Native oc(const char *path) { return {nullptr, OC_BGP_NS, path, 0, true, false}; }
constexpr Native oc_list(const char *path) { return {&Ctx::list_node, OC_BGP_NS, path, 0, true, false}; }

// Below a family: its entry is not there when the answer leaves the family out, and then nothing is written.
constexpr Native oc_family(const char *path) { return {&Ctx::list_node, OC_BGP_NS, path, 0, true, true}; }
constexpr Native oc_af(const char *path) { return {&Ctx::af_node, OC_BGP_NS, path, 0, true, true}; }

// Below an entry that must be there: one that could not be made is reported.
constexpr Native held(Native native)
{
    native.may_hang_nowhere = false;
    return native;
}

// A leaf that OpenConfig has twice: as configuration, and as state that mirrors it.
struct Copies {
    Native config, state;
};
#define COPIES(before, after) before "config" after, before "state" after
constexpr Copies oc_copies(const char *config, const char *state) { return {oc(config), oc(state)}; }
constexpr Copies oc_list_copies(const char *config, const char *state) { return {oc_list(config), oc_list(state)}; }
constexpr Copies oc_family_copies(const char *config, const char *state)
{
    return {oc_family(config), oc_family(state)};
}
constexpr Copies oc_af_copies(const char *config, const char *state) { return {oc_af(config), oc_af(state)}; }
constexpr Copies repeated(const Copies &copies) { return {repeated(copies.config), repeated(copies.state)}; }

// A request that named a `state` gets no `config/` copies, one that named a `config` no `state/` copies.
bool wants_config(const MapContext *ctx);
bool wants_state(const MapContext *ctx);

// Writes a text at one path, or both copies of it; the last add that is made gives the outcome, 0 if none is.
[[nodiscard]] uint32_t write_text(MapContext *ctx, Datatree *mapped, const Native &place, const char *text,
                                  Datatree **result = nullptr);
[[nodiscard]] uint32_t write_copies(MapContext *ctx, Datatree *mapped, const Copies &copies, const char *text);

// ---- Forms ----------------------------------------------------------------------------------

// Both copies of the node's value, or of a constant that the node's presence stands for.
uint32_t copy_value(MapContext *ctx, Datatree *node, Datatree *mapped, const Copies &copies, const At &at = here());
uint32_t copy_constant(MapContext *ctx, Datatree *node, Datatree *mapped, const Copies &copies, const char *text,
                       const At &at = here());

// The node's value at one path; the path without a value.
uint32_t whole_path(MapContext *ctx, Datatree *node, Datatree *mapped, const Native &place, const At &at = here());
uint32_t open_path(MapContext *ctx, Datatree *node, Datatree *mapped, const Native &place, const At &at = here());

// The key of a list: a new OpenConfig entry, left in `held` for the nodes below, and its key leaf.
uint32_t entry_key(MapContext *ctx, Datatree *node, Datatree *mapped, Datatree *Ctx::*held, const Native &entry,
                   const Native &key, const At &at = here());

// A container that is empty in the native tree is empty in the answer.
uint32_t empty_container(MapContext *ctx, Datatree *node, int32_t subtree_count, Datatree *mapped, const Native &place,
                         const At &at = here());

// A family that is on: its switch, and its name where that was asked for below `config` or `state`. The name stands
// there as the native word.
uint32_t family_switch(MapContext *ctx, Datatree *node, Datatree *mapped, const Copies &enabled, const Copies &name,
                       const char *Ctx::*native_name, const At &at = here());

// Adds the name of a family, with the module that it is an identity of: below `place`, at a path that begins with the
// entry's own tag.
[[nodiscard]] uint32_t write_family_name(MapContext *ctx, Datatree *mapped, const Native &place, const char *name,
                                         const char *path_from_entry);

// ---- AS numbers -----------------------------------------------------------------------------

// The high half of an AS number, kept for its low half.
uint32_t keep_as_high(MapContext *ctx, Datatree *node, Datatree *mapped, const At &at = here());

// The decimal text of a whole AS number.
struct AsText {
    char text[11];
};
AsText as_text(uint32_t number);

// The number of a low half: with the high half that was kept, or 0 if the node has no value.
AsText composed_as(const MapContext *ctx, const Datatree *low);

// A text as a number, in base 10; null is 0.
long number_of(const char *text);
