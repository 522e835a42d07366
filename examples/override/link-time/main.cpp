// edit_hold_time SECONDS: what an edit of a neighbor's hold time becomes.
#include <cstdio>

#include "one_edit.h"

int main(int argc, char **argv)
{
    if (argc != 2) return std::fputs("usage: edit_hold_time SECONDS\n", stderr), 64;
    return map_neighbor_edit({"timers", "config", "hold-time"}, argv[1]);
}
