#!/bin/sh
# Makes the Windows of the tests, and starts its services: `wine_prefix.sh`; `wine_prefix.sh stop` ends them.
set -e
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/wine_environment.sh"

if [ "${1:-}" = stop ]; then
  "$WINESERVER" -k || true
  exit 0
fi

set_value() { # key name value: also for numbers given as text
  "$WINE" reg add "$1" /v "$2" /d "$3" /f
}

make_prefix() {
  "$WINE" wineboot -i
  "$WINE" winecfg -v win10
  # Windows can be made without a display.
  set_value 'HKCU\Software\Wine\Drivers' Graphics null
  # A crash ends the program with a code instead of waiting for a debugger.
  set_value 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' Auto 1
  set_value 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' Debugger 'C:\none.exe'
  "$here/wine_world.sh"
  "$WINESERVER" -w
}

# The number grows when one made before has to be made anew.
ready="$WINEPREFIX/.ready-2"
if [ ! -f "$ready" ]; then
  [ ! -d "$WINEPREFIX" ] || "$WINESERVER" -k || true
  rm -rf "$WINEPREFIX"
  mkdir -p "$(dirname "$WINEPREFIX")"
  make_prefix </dev/null >/dev/null 2>&1
  touch "$ready"
fi
# Started here, with nothing of ours held open: whoever waits for the end of a test's output would wait for them.
"$WINESERVER" -p </dev/null >/dev/null 2>&1 || true
"$WINE" cmd /c exit 0 </dev/null >/dev/null 2>&1
