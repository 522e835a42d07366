// edit_password TEXT: what an edit of a neighbor's password becomes.
#include <cstdio>

#include "one_edit.h"

int main(int argc, char **argv)
{
    if (argc != 2) return std::fputs("usage: edit_password TEXT\n", stderr), 64;
    return map_neighbor_edit({"config", "auth-password"}, argv[1]);
}
