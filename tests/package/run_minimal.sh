#!/usr/bin/env bash
# run_minimal.sh PROGRAM
#
# Starts the smallest host on the display, gives its three commands, ends it as a user would and
# checks what it keeps.
set -euo pipefail
program=$1

home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_DATA_HOME="$home" XDG_CONFIG_HOME="$home"
"$program" &
host=$!

window=
for _ in $(seq 300); do
    window=$(xdotool search --onlyvisible --pid "$host" 2>/dev/null | tail -n 1) && [ -n "$window" ] && break
    sleep 0.1
done
[ -n "$window" ] || { echo "no window came up" >&2; exit 1; }
xdotool windowfocus --sync "$window"
xdotool key ctrl+g
xdotool key alt+F4

code=0
wait "$host" || code=$?
[ "$code" -eq 0 ] || { echo "the host ended with $code" >&2; exit 1; }
for kept in "Preferences/1.0.0.0" "GuiProfiles/1.0.0.0/uiprofile.minimal.bin"; do
    [ -e "$home/Tarnix/$kept" ] || { echo "not kept: $kept" >&2; find "$home" -type f >&2; exit 1; }
done
echo "the host came and went, and kept its preferences and its profile"
