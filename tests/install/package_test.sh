#!/bin/sh
# Makes the Debian package, and installs it into a root of its own below SCRATCH.
#   package_test.sh CPACK BUILD SCRATCH VERSION
set -eu
cpack=$1
build=$2
scratch=$3
version=$4
export PATH="$PATH:/usr/sbin:/sbin" # where dpkg looks for ldconfig, which others than root seldom have
fail() {
    echo "$*"
    exit 1
}

rm -rf "$scratch"
mkdir -p "$scratch/made" "$scratch/root/var/lib/dpkg" "$scratch/root/etc"
"$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$scratch/made" >"$scratch/cpack.log" 2>&1 ||
    { cat "$scratch/cpack.log"; exit 1; }
package=$(ls "$scratch"/made/*.deb)

[ "$(dpkg-deb -f "$package" Version)" = "$version" ] || fail "the package is not of version $version"
depends=$(dpkg-deb -f "$package" Depends)
for library in libc6 libstdc++6 libxml2 libyang2; do
    case ", $depends" in
    *", $library (>= "*) ;;
    *) fail "the package does not depend on $library, but on: $depends" ;;
    esac
done
dpkg-deb --ctrl-tarfile "$package" | tar -xO ./shlibs | grep -q "^libvmf_map_oc_bgp ${version%%.*} vmf-map-oc-bgp " ||
    fail "the package does not tell others what to depend on"

# The scratch root has none of the libraries, so that what the package depends on is missing there.
: >"$scratch/root/var/lib/dpkg/status"
fakeroot dpkg --root="$scratch/root" --force-depends --force-script-chrootless --install "$package" >"$scratch/dpkg.log" 2>&1 ||
    { cat "$scratch/dpkg.log"; exit 1; }
status=$(dpkg-query --admindir="$scratch/root/var/lib/dpkg" -W -f '${Status} ${Version}' vmf-map-oc-bgp)
[ "$status" = "install ok installed $version" ] || fail "the package is: $status"
