#!/bin/sh
# What stands below the scratch root's /usr, and what `cmake --install` puts in a prefix, held against the list of it.
#   files_test.sh CMAKE BUILD SCRATCH VERSION LIBDIR
set -eu
cmake=$1
build=$2
scratch=$3
version=$4
libdir=$5
wanted=$(sed "s|@VERSION@|$version|; s|@MAJOR@|${version%%.*}|; s|^lib/|$libdir/|" "$(dirname "$0")/files.txt" | LC_ALL=C sort)

# is_there FOLDER: but for the examples, and with one name for the folder that zsh looks into.
is_there() {
    (cd "$1" && find . \( -type f -o -type l \) ! -path './share/doc/*/examples/*' | sed 's|^\./||') |
        sed 's|/vendor-completions/_ocbgp$|/site-functions/_ocbgp|' | LC_ALL=C sort
}

# hold FOLDER WHAT
hold() {
    is_there "$1" >"$scratch/there.txt"
    echo "$wanted" | diff - "$scratch/there.txt" || { echo "$2 is not as tests/install/files.txt says"; exit 1; }
    [ -e "$1/share/doc/vmf_map_oc_bgp/examples/global-edit.xml" ] || { echo "$2 lacks the examples"; exit 1; }
}

"$cmake" --install "$build" --prefix "$scratch/prefix" >"$scratch/install.log" || { cat "$scratch/install.log"; exit 1; }
hold "$scratch/root/usr" "the package"
hold "$scratch/prefix" "cmake --install"
[ -e "$scratch/root/usr/share/zsh/vendor-completions/_ocbgp" ] || { echo "Debian's zsh does not find it"; exit 1; }
