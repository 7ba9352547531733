#!/bin/sh
# Runs a Windows program of the cross build. `wine_prefix.sh` has made its Windows before.
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/wine_environment.sh"
exec "$WINE" "$@"
