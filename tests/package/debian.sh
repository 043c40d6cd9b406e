#!/usr/bin/env bash
# debian.sh BUILD WORK EXAMPLE
#
# Makes the Debian packages of a build, unpacks them into a root of their own, checks that each holds
# what it should, and builds and runs the smallest host with nothing else.
set -euo pipefail
build=$1
work=$2
example=$3

rm -rf "$work"
mkdir -p "$work/root"
cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work" >"$work/cpack.log" || { cat "$work/cpack.log" >&2; exit 1; }

fail() {
    echo "$*" >&2
    exit 1
}

only() { # name of a package -> its file
    local found=("$work"/"$1"_*.deb)
    [ "${#found[@]}" -eq 1 ] && [ -f "${found[0]}" ] || fail "no package $1, or several"
    echo "${found[0]}"
}

# Into a file first: a grep that has seen enough would end the one that writes.
contents() {
    dpkg-deb --contents "$(only "$1")" >"$work/$1.txt"
}

holds() { # package, pattern of a path in it
    contents "$1" && grep -qE "$2" "$work/$1.txt" || fail "$1 lacks $2"
}

lacks() {
    contents "$1" && ! grep -qE "$2" "$work/$1.txt" || fail "$1 has $2"
}

holds libovk1 '/libovk\.so\.1'
lacks libovk1 '\.h$|\.cmake$|/bin/|/libovk\.so( |$)'
dpkg-deb --field "$(only libovk1)" Depends | grep -q libqt5widgets5 || fail "the library's dependencies were not computed"
holds libovk-dev '/include/ovk/ovk\.h'
holds libovk-dev '/OvkConfig\.cmake'
holds libovk-dev '/libovk\.so'
lacks libovk-dev '_p\.h$|/libovk\.so\.'
dpkg-deb --field "$(only libovk-dev)" Depends | grep -q 'libovk1 (= ' || fail "the development files go with any library"
holds ovk-tools '/usr/bin/ovk-profile'
if grep -q 'COMPONENTS_ALL .*Designer' "$build/CPackConfig.cmake"; then
    holds ovk-designer-plugin '/designer/'
fi

for package in "$work"/*.deb; do
    dpkg-deb --extract "$package" "$work/root"
done
cmake -S "$example" -B "$work/minimal" -G Ninja -DCMAKE_PREFIX_PATH="$work/root/usr" >"$work/build.log" &&
    cmake --build "$work/minimal" >>"$work/build.log" || { cat "$work/build.log" >&2; exit 1; }
LD_LIBRARY_PATH=$(dirname "$(find "$work/root/usr/lib" -name 'libovk.so.1')")
export LD_LIBRARY_PATH
"$work/root/usr/bin/ovk-profile" --help >"$work/help.txt" || fail "the tool does not run"
bash "$(dirname "$0")/run_minimal.sh" "$work/minimal/Tarnix"
