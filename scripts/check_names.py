#!/usr/bin/env python3
"""Checks the language of the code: German words only in given names, a capital first letter on a function only where
its name is given, a header for each source, and no class with too many public functions."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SCRIPTS = ROOT / "scripts"
FOLDERS = ("src", "tests", "bench", "fuzz")
LONGEST_HEADER = 120
MOST_PUBLIC_FUNCTIONS = 30

TOKEN = re.compile(
    r'^[ \t]*#[^\n]*|//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|[A-Za-z_]\w*',
    re.S | re.M)
WORD = re.compile(r"[A-Z]+(?![a-z])|[A-Z]?[a-z]+")
TYPE = re.compile(r"\b(?:class|struct|enum class|enum|using|typename)\s+(?:\[\[\w+\]\]\s*)?(\w+)")
FUNCTION = re.compile(r"[\w>&*]\s+([A-Z]\w*)\(")
CLASS = re.compile(r"^(?:class|struct) (?:\[\[\w+\]\] )?(\w+)[^;{]*\n\{\n(.*?)^\};", re.S | re.M)
ACCESS = re.compile(r"^(public|protected|private):$")
# A function declared directly in its class, four blanks deep; its own name only, so overloads count once.
MEMBER = re.compile(r"^    (?!friend |using )[^\s/(][^(=]*?[\s&*](\w+)\(")
# A source that stands for a command or a missing driver, or has one twin for each system or engine.
WITHOUT_HEADER = re.compile(
    r"/main\.cpp$|/no_\w+\.cpp$|^src/tools/(create|query|rights|sample|check/check|import/import)\.cpp$")


def words_of(file: str) -> set[str]:
    lines = (SCRIPTS / file).read_text(encoding="utf-8").splitlines()
    return {word for line in lines if not line.startswith("#") for word in line.split()}


def sources(*suffixes: str) -> list[pathlib.Path]:
    return sorted(path for folder in FOLDERS for path in (ROOT / folder).rglob("*") if path.suffix in suffixes)


class Language:
    def __init__(self) -> None:
        self.given = words_of("given_names.txt")
        self.german = words_of("german_words.txt")
        # Longest first: of "newFrmErstAend" all of FrmErstAend is given.
        self.inside = re.compile("|".join(sorted((re.escape(name) for name in self.given if name[0].isupper()),
                                                 key=len, reverse=True)))

    def german_words(self, identifier: str) -> list[str]:
        if identifier.rstrip("_") in self.given:
            return []
        own = self.inside.sub("_", identifier)
        return [word for word in WORD.findall(own) if word.lower() in self.german]


def language_faults(path: pathlib.Path, language: Language, used: set[str]) -> list[str]:
    text = path.read_text(encoding="utf-8")
    faults = []
    for match in TOKEN.finditer(text):
        token = match.group(0)
        if not re.match(r"[A-Za-z_]", token) or token.startswith('R"'):
            continue
        used.add(token)
        if words := language.german_words(token):
            line = text.count("\n", 0, match.start()) + 1
            faults.append(f"{path.relative_to(ROOT)}:{line}: {token}: {', '.join(words)} is German and no given name")
    return faults


def function_faults(headers: list[pathlib.Path], language: Language) -> list[str]:
    texts = {path: path.read_text(encoding="utf-8") for path in headers}
    types = {name for text in texts.values() for name in TYPE.findall(text)}
    faults = []
    for path, text in texts.items():
        for number, line in enumerate(text.splitlines(), 1):
            for name in FUNCTION.findall(line.split("//")[0]):
                if name not in types and name not in language.given and not name.isupper():
                    faults.append(f"{path.relative_to(ROOT)}:{number}: {name} begins like a given name")
    return faults


def header_faults() -> list[str]:
    faults = []
    for path in sources(".h"):
        name = path.relative_to(ROOT).as_posix()
        lines = path.read_text(encoding="utf-8").count("\n")
        if name.startswith("src/") and lines > LONGEST_HEADER:
            faults.append(f"{name}: {lines} lines, more than {LONGEST_HEADER}")
    for path in sources(".cpp"):
        name = path.relative_to(ROOT).as_posix()
        if not name.startswith("src/") or WITHOUT_HEADER.search(name):
            continue
        if not path.with_suffix(".h").exists() and not (path.parent.parent / (path.stem + ".h")).exists():
            faults.append(f"{name}: no header of its own")
    return faults


def class_faults(headers: list[pathlib.Path]) -> list[str]:
    faults = []
    for path in headers:
        for match in CLASS.finditer(path.read_text(encoding="utf-8")):
            name, body = match.groups()
            public = match.group(0).startswith("struct")
            functions: set[str] = set()
            for line in body.splitlines():
                if access := ACCESS.match(line):
                    public = access.group(1) == "public"
                elif public and (member := MEMBER.match(line)):
                    functions.add(member.group(1))
            functions -= {name, "operator"}
            if len(functions) > MOST_PUBLIC_FUNCTIONS:
                faults.append(f"{path.relative_to(ROOT)}: {name} has {len(functions)} public functions, "
                              f"more than {MOST_PUBLIC_FUNCTIONS}")
    return faults


def main() -> int:
    language = Language()
    used: set[str] = set()
    faults = []
    for path in sources(".cpp", ".h"):
        faults += language_faults(path, language, used)
    headers = [path for path in sources(".h") if path.is_relative_to(ROOT / "src")]
    faults += function_faults(headers, language) + header_faults() + class_faults(headers)
    for name in sorted(language.given):
        if name not in used and name + "_" not in used and not any(name in token for token in used):
            faults.append(f"scripts/given_names.txt: {name} is used nowhere")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
