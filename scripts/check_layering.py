#!/usr/bin/env python3
"""Checks that a folder of src/ includes only folders beneath it, and that the core knows no UI toolkit."""

import pathlib
import re
import sys

# What a folder may include besides itself.
MAY_INCLUDE = {
    "base": set(),
    "platform": {"base"},
    "database": {"base", "platform"},
    "session": {"base", "platform", "database"},
    "frame": {"base", "platform", "database", "session"},
    "viewing": {"base", "platform", "database", "session"},
    "documents": {"base", "platform", "database", "session"},
    "filter": {"base", "platform", "database", "session", "documents"},
    "use": {"base", "platform", "database", "session", "viewing", "documents"},
    "register": {"base", "platform", "database", "session", "frame", "documents", "filter", "viewing", "use"},
    "cad": {"base", "platform", "database", "session", "documents", "use"},
    "orders": {"base", "platform", "database", "session", "documents", "filter"},
    "sample": {"base", "platform", "database"},
    "tools": {"base", "platform", "database", "session", "sample"},
    "program": {"base", "platform", "database", "session", "frame", "documents", "filter", "viewing", "use", "register",
                "cad", "orders"},
    "ui": {"base", "platform", "database", "session", "frame", "documents", "filter", "viewing", "use", "register",
           "cad", "orders", "program"},
    "app": {"base", "platform", "database", "session", "frame", "documents", "filter", "viewing", "use", "register",
            "cad", "orders", "program", "ui"},
}
WITH_QT = {"ui", "app", "scenario"}
# Headers of a driver stay inside their own folder, and out of our headers.
DRIVERS = {"sqlite3.h": "database/sqlite", "libpq-fe.h": "database/postgresql", "mdbtools.h": "tools/import/linux",
           "sql.h": "database/odbc", "sqlext.h": "database/odbc", "sqlucode.h": "database/odbc"}
# Its types have no names that could be declared forward.
IN_HEADERS_TOO = {"mdbtools.h"}

# Statements from text: the database itself, and what a person types. Everybody else makes trees (sql/conditions.h).
STATEMENT_READERS = re.compile(r"database/|tools/query\.cpp|filter/fragments\.cpp")

INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)')


def faults_of(path: pathlib.Path, source: pathlib.Path) -> list[str]:
    inner = path.relative_to(source).as_posix()
    folder = inner.split("/", 1)[0]
    if "/" not in inner or folder not in MAY_INCLUDE:
        return [f"{inner}: lies in no known folder"]
    faults = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        own, system = match.groups()
        if own and "/" in own:
            target = own.split("/", 1)[0]
            if target in MAY_INCLUDE and target != folder and target not in MAY_INCLUDE[folder]:
                faults.append(f"{inner}:{number}: {folder}/ must not include {own}")
        if own == "database/sql/parser.h" and not STATEMENT_READERS.match(inner):
            faults.append(f"{inner}:{number}: statements are made as trees, not read from text")
        name = system or own
        if folder not in WITH_QT and re.match(r"Q[A-Z]|Qt", name):
            faults.append(f"{inner}:{number}: the core must not include {name}")
        home = DRIVERS.get(name)
        if home and not inner.startswith(home + "/"):
            faults.append(f"{inner}:{number}: {name} belongs in {home}/ alone")
        if home and inner.endswith(".h") and name not in IN_HEADERS_TOO:
            faults.append(f"{inner}:{number}: no driver header in a header of ours")
    return faults


def main() -> int:
    source = pathlib.Path(__file__).resolve().parent.parent / "src"
    faults = []
    for path in sorted(source.rglob("*")):
        if path.suffix in {".cpp", ".h"}:
            faults += faults_of(path, source)
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
