#!/bin/sh
# Runs a Windows program of the cross build. `wine_prefix.sh` has made its Windows before.
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/wine_environment.sh"
# The first program with a window starts Wine's desktop, which stays while others use it. Were it to hold our output
# open, whoever waits for the end of that would wait for the others.
output="$(mktemp)"
trap 'rm -f "$output"' EXIT
status=0
"$WINE" "$@" >"$output" 2>&1 || status=$?
cat "$output"
exit "$status"
