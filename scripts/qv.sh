# The commands behind ./qv. Runs in the top folder.
set -euo pipefail

JOBS="${QV_JOBS:-$(nproc)}"

BUILD_PACKAGES=(git cmake ninja-build g++ ccache pkg-config libfmt-dev libsqlite3-dev libpq-dev unixodbc-dev
  mdbtools-dev libglib2.0-dev libcups2-dev nlohmann-json3-dev qt6-base-dev qt6-svg-dev libqt6svg6 qt6-qpa-plugins
  qt6-image-formats-plugins qt6-translations-l10n libgl1-mesa-dev fonts-noto-core)
TEST_PACKAGES=(libgtest-dev libgmock-dev postgresql unixodbc libsqliteodbc odbc-postgresql odbc-mdbtools)
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix clang lld wine wine64 googletest)
BENCH_PACKAGES=(libqt6sql6-sqlite)
LINT_PACKAGES=(clang-format clang-tidy python3)
FUZZ_PACKAGES=(clang libclang-rt-dev)

say() { printf '%s\n' "$*"; }

# Installs what is missing of the named packages; asks apt only then.
need() {
  local missing=() package
  for package in "$@"; do
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true) == installed ]] || missing+=("$package")
  done
  [[ ${#missing[@]} -eq 0 ]] && return
  say "Installing: ${missing[*]}"
  local root=()
  if [[ $(id -u) -ne 0 ]]; then
    command -v sudo >/dev/null || { say "Not root, and sudo is missing. As root: apt-get install ${missing[*]}"; exit 1; }
    root=(sudo)
  fi
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

configure() { # preset [cmake options]
  local preset="$1"
  shift
  cmake --preset "$preset" "$@" >"build-$preset.log" 2>&1 || { cat "build-$preset.log"; rm -f "build-$preset.log"; exit 1; }
  rm -f "build-$preset.log"
}

build() { # preset [targets]
  local preset="$1"
  shift
  cmake --build --preset "$preset" -j "$JOBS" ${*:+--target "$@"}
}

# A register to try the program on, with files, in a home of its own: the user's own settings stay untouched.
SAMPLE=build/sample
make_sample() {
  export XDG_DATA_HOME="$PWD/$SAMPLE/data" XDG_CONFIG_HOME="$PWD/$SAMPLE/config"
  local drives="$XDG_DATA_HOME/quelvarn/laufwerke"
  local database="$drives/w/Konstruktion/Werk.mdb"
  [[ -e "$database" ]] && return
  mkdir -p "$drives/w/Konstruktion" "$drives/c/Dokumente und Einstellungen Quelvarnis/Datenbank_Pfad" "$XDG_CONFIG_HOME"
  build/release/bin/qvadmin sample "$database" --files "$drives/w"
  printf 'W:\\Konstruktion\\Werk.mdb\r\n' >"$drives/c/Dokumente und Einstellungen Quelvarnis/Datenbank_Pfad/Quelvarnis.ini"
}

command_run() {
  need "${BUILD_PACKAGES[@]}"
  configure release
  build release quelvarn qvadmin quelvarn-scenario
  make_sample
  if [[ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]]; then
    say "There is no display here, so no window can be opened. Pictures of the pages instead:"
    pictures "$PWD/build/pictures"
    return
  fi
  exec build/release/bin/quelvarn
}

# What the cross build finds nowhere else, from packages that carry it: the one big source of SQLite, and PostgreSQL's
# client library with those it needs.
CROSS_PACKAGES=(better-sqlite3@12.11.1 @embedded-postgres/windows-x64@15.18.0-beta.17)
CROSS_SQLITE=(deps/sqlite3/sqlite3.c deps/sqlite3/sqlite3.h)
CROSS_LIBPQ=(native/bin/{libpq,libssl-3-x64,libcrypto-3-x64,libintl-9,libiconv-2,libwinpthread-1,zlib1}.dll)

unpack() { # folder archive files
  local folder="$1" archive="$2"
  shift 2
  mkdir -p "$folder"
  tar -xzf "$archive" -C "$folder" --transform 's,.*/,,' "${@/#/package/}"
}

fetch_cross_libraries() { # into build/sqlite and build/libpq
  [[ -e build/sqlite/sqlite3.h && -e build/libpq/libpq.dll ]] && return
  command -v npm >/dev/null || need npm
  say "Fetching SQLite and PostgreSQL's client library for Windows ..."
  mkdir -p build/npm
  npm pack --loglevel=error --pack-destination build/npm "${CROSS_PACKAGES[@]}" >/dev/null
  unpack build/sqlite build/npm/better-sqlite3-*.tgz "${CROSS_SQLITE[@]}"
  unpack build/libpq build/npm/embedded-postgres-*.tgz "${CROSS_LIBPQ[@]}"
  rm -r build/npm
}

# Runs ctest, and names in the end what was skipped: a skipped test is a passed one for ctest.
run_tests() { # preset command...
  local reports="$PWD/build/$1/reports" drive="" status=0
  [[ "$1" == windows ]] && drive=Z: # Where Wine shows this machine's folders.
  shift
  rm -rf "$reports"
  mkdir -p "$reports"
  GTEST_OUTPUT="xml:$drive$reports/" "$@" || status=$?
  local skipped
  skipped="$(awk -F'"' '
    /<testcase/ { for (i = 1; i < NF; i += 2) { if ($i ~ / name=$/) test = $(i + 1); if ($i ~ / classname=$/) suite = $(i + 1) } }
    /<skipped message=/ { reason = $2; sub(/^.*&#x0A;/, "", reason); print "  " suite "." test ": " reason }
  ' "$reports"/*.xml | sort -u)"
  [[ -n "$skipped" ]] && printf 'Skipped here:\n%s\n' "$skipped"
  return "$status"
}

# The core for Windows, built here and run under Wine.
test_windows() { # [ctest options]
  need "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}"
  fetch_cross_libraries
  scripts/wine_prefix.sh & # Takes ten seconds the first time, mostly of waiting.
  local prefix=$!
  configure windows
  build windows
  wait "$prefix"
  configure release
  build release qvadmin # For the tests that hold both systems against each other.
  local status=0
  run_tests windows scripts/with_postgres.sh ctest --preset windows -j "$JOBS" "$@" || status=$?
  scripts/wine_prefix.sh stop
  return "$status"
}

command_test() { # [--sanitize|--debug|--windows] [ctest options]
  local preset=release options=()
  while [[ $# -gt 0 ]]; do
    case "$1" in
      --sanitize) preset=sanitize ;;
      --debug) preset=debug ;;
      --windows) preset=windows ;;
      *) options+=("$1") ;;
    esac
    shift
  done
  if [[ "$preset" == windows ]]; then
    test_windows "${options[@]}"
    return
  fi
  need "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${BENCH_PACKAGES[@]}"
  configure "$preset"
  build "$preset"
  run_tests "$preset" ctest --preset "$preset" -j "$JOBS" "${options[@]}"
}

command_bench() {
  need "${BUILD_PACKAGES[@]}" "${BENCH_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
  configure release
  build release quelvarn-bench
  exec build/release/bin/quelvarn-bench "$@"
}

command_lint() { # [--quick]: without clang-tidy; [--since COMMIT] [--seconds N]: clang-tidy on what changed
  need "${LINT_PACKAGES[@]}"
  local files
  mapfile -t files < <(git ls-files '*.cpp' '*.h')
  say "Layering ..."
  python3 scripts/check_layering.py
  say "Names ..."
  python3 scripts/check_names.py
  say "Format ..."
  clang-format --dry-run --Werror "${files[@]}"
  [[ "${1:-}" == --quick ]] && return
  need "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
  configure lint
  say "clang-tidy ..."
  python3 scripts/tidy.py --jobs "$JOBS" "$@"
  say "Clean."
}

# Starts one program on its seeds, and on what earlier runs have found worth keeping.
start_fuzzing() { # program seconds [seed]
  local name
  name="$(basename "$1")"
  mkdir -p "build/fuzz/corpus/$name"
  local options=(-max_total_time="$2" -timeout=10 -rss_limit_mb=1024 -artifact_prefix="build/fuzz/$name-")
  [[ -n "${3:-}" ]] && options+=(-seed="$3")
  [[ -e "fuzz/$name.dict" ]] && options+=(-dict="fuzz/$name.dict")
  "$1" "${options[@]}" "build/fuzz/corpus/$name" "fuzz/seeds/$name" >"build/fuzz/$name.log" 2>&1
}

# Fails when a program finds something; the input lies in build/fuzz. With a seed a run on a fresh clone tries the same
# texts each time, so that a change is blamed for its own faults only.
command_fuzz() { # [SECONDS [SEED]]
  local seconds="${1:-20}" program status=0
  need "${BUILD_PACKAGES[@]}" "${FUZZ_PACKAGES[@]}"
  configure fuzz
  build fuzz
  local -A running=()
  for program in build/fuzz/bin/fuzz_*; do
    start_fuzzing "$program" "$seconds" "${2:-}" &
    running[$program]=$!
  done
  for program in "${!running[@]}"; do
    if wait "${running[$program]}"; then
      say "$(basename "$program"): $(grep -E '^Done' "build/fuzz/$(basename "$program").log")"
    else
      tail -n 40 "build/fuzz/$(basename "$program").log"
      say "$(basename "$program"): a finding, see build/fuzz/$(basename "$program")-*"
      status=1
    fi
  done
  return "$status"
}

pictures() { # folder
  mkdir -p "$1"
  QT_QPA_PLATFORM=offscreen build/release/bin/quelvarn-scenario --pictures "$1" tests/scenarios/pictures/*.scenario
  find "$1" -name '*.png' | sort
}

command_pictures() {
  need "${BUILD_PACKAGES[@]}"
  configure release
  build release qvadmin quelvarn-scenario
  pictures "${1:-$PWD/build/pictures}"
}

command_admin() {
  if [[ ! -x build/release/bin/qvadmin ]]; then
    need "${BUILD_PACKAGES[@]}"
    configure release
    build release qvadmin
  fi
  exec build/release/bin/qvadmin "$@"
}

usage() {
  cat <<'TEXT'
./qv run                     install what is missing, build, make a sample register, open the window on it
./qv test [--sanitize]       build and run all tests; further options go to ctest (-R name ...)
./qv test --windows          build the core for Windows and run its tests under Wine
./qv bench [--documents N] [--json FILE]
                             measure against peers in the same run
./qv lint [--quick]          layering, names, clang-format, clang-tidy (not with --quick)
./qv lint --since COMMIT [--seconds N]
                             clang-tidy only on what changed since, begun within N seconds
./qv fuzz [SECONDS [SEED]]   random texts for parsers and sessions, with sanitizers (Clang); 20 seconds unless told
./qv pictures [FOLDER]       pictures of every page, light and dark
./qv admin ...               the administrator's tool (./qv admin --help)
TEXT
}

name="${1:-help}"
[[ $# -gt 0 ]] && shift
case "$name" in
  run | test | bench | lint | fuzz | pictures | admin) "command_$name" "$@" ;;
  help | -h | --help) usage ;;
  *)
    usage
    exit 2
    ;;
esac
