#!/bin/bash
# Runs a command with a PostgreSQL server of its own, which QUELVARN_TEST_POSTGRES tells, and ends the server with it:
# for tests that cannot start one. Where no server is installed the command runs without.
set -euo pipefail

PROGRAMS="$(find /usr/lib/postgresql/*/bin -maxdepth 1 -name initdb -printf '%h\n' 2>/dev/null | sort -V | tail -n 1)"
[[ -n "$PROGRAMS" ]] || exec "$@"

# The server refuses to run as root, and must not outlive this script.
AS_SERVER=(setpriv --pdeathsig INT)
[[ $(id -u) -eq 0 ]] && AS_SERVER+=(--reuid postgres --regid postgres --clear-groups)

folder="$(mktemp -d)"
server=
finish() {
  if [[ -n "$server" ]]; then
    kill -QUIT "$server" 2>/dev/null || true # At once: nothing of it is kept.
    wait "$server" || true
  fi
  rm -rf "$folder"
}
trap finish EXIT
trap 'exit 130' INT TERM HUP

start() { # port; false when it did not come up: another program may have the port
  "${AS_SERVER[@]}" "$PROGRAMS/postgres" -D "$folder/data" -p "$1" -k '' -c listen_addresses=127.0.0.1 -c fsync=off \
    -c full_page_writes=off -c max_wal_size=8GB -c log_min_messages=fatal >>"$folder/log" 2>&1 &
  server=$!
  local attempt
  for ((attempt = 0; attempt < 600; ++attempt)); do
    kill -0 "$server" 2>/dev/null || break
    grep -qs ready "$folder/data/postmaster.pid" && return
    sleep 0.05
  done
  kill -INT "$server" 2>/dev/null || true
  wait "$server" || true
  server=
  return 1
}

[[ $(id -u) -eq 0 ]] && chown postgres "$folder"
cd "$folder"
"${AS_SERVER[@]}" "$PROGRAMS/initdb" -D "$folder/data" -U quelvarn --auth=trust -E UTF8 --locale=C.UTF-8 --no-sync \
  --no-instructions >"$folder/log" 2>&1 || { cat "$folder/log" >&2; exit 1; }
cd "$OLDPWD"
for _ in 1 2 3 4 5; do
  port=$((49152 + RANDOM % 16384))
  start "$port" && break
done
[[ -n "$server" ]] || { cat "$folder/log" >&2; exit 1; }
export QUELVARN_TEST_POSTGRES="host=127.0.0.1&port=$port&user=quelvarn"
"$@"
