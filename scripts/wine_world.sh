#!/bin/sh
# Gives the Windows of the tests what an office has: a share on a server, mapped to a letter.
# Drives are read when the services start, so this is done before.
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/wine_environment.sh"

drives="$WINEPREFIX/dosdevices"
mkdir -p "$WINEPREFIX/konstruktion" "$drives/unc/server"
ln -sfn "$WINEPREFIX/konstruktion" "$drives/unc/server/konstruktion"
ln -sfn unc/server/konstruktion "$drives/x:"
"$WINE" reg add 'HKLM\Software\Wine\Drives' /v x: /d network /f
