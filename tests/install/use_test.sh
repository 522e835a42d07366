#!/bin/sh
# Uses what was installed, after it was moved: the command, and the library by CMake and by pkg-config.
#   use_test.sh SCRATCH SOURCE CMAKE CXX VERSION LIBDIR
set -eu
scratch=$1
source=$2
cmake=$3
cxx=$4
version=$5
libdir=$6
consumer=$source/tests/install/consumer
fail() {
    echo "$*"
    exit 1
}

# hold WHAT FILE: the file of that name in tests/install/consumer says what comes out.
hold() {
    diff "$2" "$scratch/said" || fail "$1 says something else than $2"
}

rm -rf "$scratch/moved" "$scratch/consumer"
cp -a "$scratch/root/usr" "$scratch/moved"
cd "$scratch"
export LC_ALL=C

# ---- The command finds its library beside itself ----

env -i "$scratch/moved/bin/ocbgp" translate --format tree \
    "$scratch/moved/share/doc/vmf_map_oc_bgp/examples/global-edit.xml" >said
hold "the installed command" "$source/tests/cli/golden/global-edit.xml.tree"
env -i LD_TRACE_LOADED_OBJECTS=1 "$scratch/moved/bin/ocbgp" |
    grep -q "libvmf_map_oc_bgp.so.${version%%.*} => $scratch/moved/" || fail "the command takes another library"
[ "$(env -i "$scratch/moved/bin/ocbgp" --version)" = "ocbgp $version" ] || fail "the command is not of version $version"

# ---- CMake ----

# configure FOLDER ARGUMENTS...
configure() {
    folder=$1
    shift
    "$cmake" -S "$consumer" -B "$scratch/consumer/$folder" -G Ninja -DCMAKE_CXX_COMPILER="$cxx" \
        -DCMAKE_PREFIX_PATH="$scratch/moved" "$@" >cmake.log 2>&1
}

configure built "-DWANTED=$version" || { cat cmake.log; fail "CMake does not find the library"; }
"$cmake" --build consumer/built >cmake.log 2>&1 || { cat cmake.log; fail "the program does not build"; }
env -i consumer/built/consumer >said
hold "the program built by CMake" "$consumer/said.txt"

if "$cmake" --build consumer/built --target without_platform >cmake.log 2>&1; then
    fail "a program without a platform links"
fi
grep -q "undefined reference to .vmf_map_datatree_add_subtree" cmake.log || { cat cmake.log; fail "but not for its platform"; }

if configure refused -DWANTED=$((${version%%.*} + 1)).0; then
    fail "CMake takes $version for the next major version"
fi
grep -q "version: $version" cmake.log || { cat cmake.log; fail "but not for its version"; }

# ---- pkg-config ----

export PKG_CONFIG_PATH="$scratch/moved/$libdir/pkgconfig"
[ "$(pkg-config --modversion vmf_map_oc_bgp)" = "$version" ] || fail "pkg-config does not know version $version"
# shellcheck disable=SC2046 # the flags are words
"$cxx" -std=c++20 "$consumer/consumer.cpp" -o consumer/by_pkg_config $(pkg-config --cflags --libs vmf_map_oc_bgp-platform)
env -i LD_LIBRARY_PATH="$scratch/moved/$libdir" consumer/by_pkg_config >said
hold "the program built by pkg-config" "$consumer/said.txt"
