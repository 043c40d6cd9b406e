#!/usr/bin/env bash
# with_display.sh [--size WIDTHxHEIGHT] COMMAND...
#
# Runs a command on a virtual X server of its own, with a window manager, and ends both after it.
# Answers with the command's exit code.
set -euo pipefail

size=1600x1000
if [ "${1:-}" = --size ]; then
    size=$2
    shift 2
fi

folder=$(mktemp -d)
server=
manager=
finish() {
    [ -n "$manager" ] && kill "$manager" 2>/dev/null || true
    [ -n "$server" ] && kill "$server" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$folder"
}
trap finish EXIT

# The server chooses a free display number and writes it down when it is ready.
mkfifo "$folder/display"
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset 3>"$folder/display" >"$folder/server.log" 2>&1 &
server=$!
if ! read -r -t 30 number <"$folder/display"; then
    echo "The virtual X server did not start:" >&2
    cat "$folder/server.log" >&2
    exit 1
fi
export DISPLAY=":$number"

openbox >"$folder/manager.log" 2>&1 &
manager=$!
for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
    sleep 0.05
done

code=0
QT_QPA_PLATFORM=xcb "$@" || code=$?
exit "$code"
