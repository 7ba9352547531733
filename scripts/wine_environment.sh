# Where Wine lies, and a Windows of our own for it. Sourced by the other wine_ scripts.
WINE=/usr/lib/wine/wine64
WINESERVER=/usr/lib/wine/wineserver
export WINEPREFIX="${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/quelvarn-windows}"
export WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"
# File names and arguments are read in the locale; TZ is misread by the run-time library.
export LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY TZ
