#!/usr/bin/env python3
"""Writes src/base/collation_table.cpp from Unicode's own data files (Debian: unicode-data).

Usage: scripts/generate_collation.py [FOLDER_OF_THE_UNICODE_FILES]
"""

import pathlib
import sys

# Latin, Greek and Cyrillic with their extensions, and the letterlike signs that fold into them.
BLOCKS = [
    (0x0080, 0x02AF), (0x0370, 0x052F), (0x1C80, 0x1C8F), (0x1E00, 0x1FFF),
    (0x2126, 0x212B), (0x2C60, 0x2C7F), (0xA640, 0xA69F), (0xA720, 0xA7FF),
]
HIGHEST_ACCENT = 0x7E - 2  # Each accent becomes one ASCII byte, 2 + its number.


class Unicode:
    def __init__(self, folder):
        self.upper, self.lower, self.parts, self.fold = {}, {}, {}, {}
        for line in (folder / "UnicodeData.txt").read_text(encoding="ascii").splitlines():
            field = line.split(";")
            char = int(field[0], 16)
            if field[5] and not field[5].startswith("<"):
                self.parts[char] = [int(part, 16) for part in field[5].split()]
            if field[12]:
                self.upper[char] = int(field[12], 16)
            if field[13]:
                self.lower[char] = int(field[13], 16)
        for line in (folder / "CaseFolding.txt").read_text(encoding="utf-8").splitlines():
            field = [part.strip() for part in line.split("#")[0].split(";")]
            if len(field) > 2 and field[1] in ("C", "S"):
                self.fold[int(field[0], 16)] = int(field[2], 16)

    def folded(self, char):
        return self.fold.get(char, char)

    def decomposed(self, char):
        if char not in self.parts:
            return [char]
        first, *marks = self.parts[char]
        return self.decomposed(first) + marks


def rows(unicode):
    """One row a character that is not simply itself: char, fold, upper, lower, base, marks."""
    for first, last in BLOCKS:
        for char in range(first, last + 1):
            fold = unicode.folded(char)
            base, *marks = unicode.decomposed(fold)
            row = (char, fold, unicode.upper.get(char, char), unicode.lower.get(char, char),
                   unicode.folded(base), tuple(marks))
            if marks or any(column != char for column in row[:5]):
                yield row


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "/usr/share/unicode")
    table = list(rows(Unicode(folder)))
    accents = {marks: number for number, marks in enumerate(sorted({row[5] for row in table}))}
    assert accents[()] == 0 and len(accents) - 1 <= HIGHEST_ACCENT, len(accents)

    lines = [
        "// Made by scripts/generate_collation.py from Unicode's UnicodeData.txt and CaseFolding.txt. Do not edit.",
        '#include "base/collation_table.h"',
        "",
        "#include <array>",
        "#include <iterator>",
        "",
        "namespace quelvarn {",
        "namespace {",
        "",
        "// clang-format off",
        "constexpr Kollationszeichen zeichen[] = {",
    ]
    cells = ["{%s, %d}" % (", ".join("0x%X" % value for value in row[:5]), accents[row[5]]) for row in table]
    lines += ["    " + ", ".join(cells[at:at + 4]) + "," for at in range(0, len(cells), 4)]
    lines += [
        "};",
        "// clang-format on",
        "",
        "// For each character its place in the table plus 1.",
        "constexpr auto stellen = [] {",
        "    std::array<std::uint16_t, 0xA800> result{};",
        "    for (std::size_t i = 0; i < std::size(zeichen); ++i)",
        "        result[zeichen[i].zeichen] = static_cast<std::uint16_t>(i + 1);",
        "    return result;",
        "}();",
        "",
        "} // namespace",
        "",
        "std::span<const Kollationszeichen> kollationszeichen()",
        "{",
        "    return zeichen;",
        "}",
        "",
        "const Kollationszeichen* findKollationszeichen(char32_t character)",
        "{",
        "    if (character >= stellen.size() || stellen[character] == 0)",
        "        return nullptr;",
        "    return &zeichen[stellen[character] - 1];",
        "}",
        "",
        "} // namespace quelvarn",
        "",
    ]
    target = pathlib.Path(__file__).resolve().parent.parent / "src/base/collation_table.cpp"
    target.write_text("\n".join(lines), encoding="ascii")
    print(f"{len(table)} characters, {len(accents) - 1} accents")


if __name__ == "__main__":
    main()
