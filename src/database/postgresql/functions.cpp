#include "database/postgresql/functions.h"

#include "base/collation.h"
#include "base/collation_table.h"
#include "base/utf8.h"
#include "database/sql/renderer.h"

#include <algorithm>
#include <fmt/format.h>

// Both functions are an expression that the server puts in place of the call. It deals with the texts that a
// register is full of; whatever else occurs goes to a second function, which walks over the characters. On the
// server a replace() that finds nothing is quick, while translate() compares each character with its whole list.
namespace quelvarn::postgresql {
namespace {

// Punctuation of names and paths. The others are rare enough for translate().
constexpr std::string_view frequent = " -._\\:/,()+";
constexpr std::u32string_view umlauts = U"äöüÄÖÜ";

// A string constant of the server; characters that mean something there are written by their numbers.
std::string constant(std::u32string_view character)
{
    std::string text = "E'";
    for (const char32_t z : character) {
        const bool harmless = z > 0x7F || (z >= U'0' && z <= U'9') || (z >= U'a' && z <= U'z');
        if (harmless)
            appendUtf8(text, z);
        else
            text += fmt::format("\\x{:02x}", static_cast<unsigned>(z));
    }
    return text + "'";
}

std::string constant(char32_t character)
{
    return constant(std::u32string_view(&character, 1));
}

// One character as sortKey weighs it. A blank has no key of its own, being cut, so it is asked in front of a letter.
char32_t weightOf(char ascii)
{
    return toUtf32(sortKey({std::string(1, ascii) + "x"})).front();
}

std::string replaced(std::string expression, char32_t from, char32_t to)
{
    return fmt::format("replace({}, {}, {})", expression, constant(from), constant(to));
}

// The weights of a text in small letters of which all are letters, digits or frequent punctuation.
std::string weightsMoreFrequent(std::string expression)
{
    for (const char character : frequent)
        expression = replaced(std::move(expression), static_cast<char32_t>(character), weightOf(character));
    return expression;
}

// The same for any text in small letters.
std::string weightsAll(std::string_view expression)
{
    std::u32string from;
    std::u32string to;
    for (char character = 1; character > 0; ++character) {
        const char32_t weight = weightOf(character);
        if (weight == static_cast<char32_t>(character) || (character >= 'A' && character <= 'Z'))
            continue;
        from += static_cast<char32_t>(character);
        to += weight;
    }
    return fmt::format("translate({}, {}, {})", expression, constant(from), constant(to));
}

// A regular expression for texts of these characters alone.
std::string onlyOf(std::string_view sections, std::u32string_view character)
{
    std::string kind(sections);
    for (const char32_t z : character)
        kind += fmt::format("\\u{:04x}", static_cast<unsigned>(z));
    return fmt::format("'^[{}]*$'", kind);
}

// The rows of the table, the umlauts first: the server finds a character the sooner, the further ahead it stands.
struct Table
{
    std::u32string character;
    std::u32string fold;
    std::u32string basis;
    std::u32string accent;
};

Table table()
{
    Table result;
    const auto append = [&](const CollationCharacter& row) {
        result.character += row.character;
        result.fold += row.fold;
        result.basis += row.basis;
        result.accent += static_cast<char32_t>(2 + row.accent);
    };
    for (const char32_t umlaut : umlauts)
        append(*findCollationCharacter(umlaut));
    for (const CollationCharacter& row : collationCharacters())
        if (umlauts.find(row.character) == umlauts.npos)
            append(row);
    return result;
}

// Characters of code page 1252 that fold to themselves.
std::u32string smallOf1252()
{
    std::u32string character;
    for (int byte = 0x80; byte < 0x100; ++byte)
        for (const char32_t z : toUtf32(fromWindows1252(std::string(1, static_cast<char>(byte)))))
            if (z > 0x9F && foldCase(z) == z)
                character += z;
    return character;
}

std::string keyFunctions(std::string_view schema, const Table& t)
{
    const std::string onlyFrequent = onlyOf("0-9A-Za-z", toUtf32(frequent));
    const std::string small = "lower(rtrim(x, ' ') COLLATE \"C\")";
    return fmt::format(
        R"sql(
CREATE OR REPLACE FUNCTION {0}.qv_key_walk(x text) RETURNS text
LANGUAGE plpgsql IMMUTABLE STRICT PARALLEL SAFE AS $qv$
DECLARE
    rest text := replace(replace({1}, 'ß', 'ss'), 'ẞ', 'ss');
    plain text;
    letter text;
    place int;
    weights text := '';
    accents text := '';
BEGIN
    LOOP
        plain := substring(rest from '^[\x01-\x7f]*');
        weights := weights || plain;
        letter := substr(rest, length(plain) + 1, 1);
        EXIT WHEN letter = '';
        rest := substr(rest, length(plain) + 2);
        place := strpos({2}, letter);
        weights := weights || CASE WHEN place > 0 THEN substr({3}, place, 1) ELSE letter END;
        accents := accents || repeat(E'\x02', length(plain)) ||
                   CASE WHEN place > 0 THEN substr({4}, place, 1) ELSE E'\x02' END;
    END LOOP;
    weights := CASE WHEN weights ~ {5} THEN {6} ELSE {7} END;
    accents := rtrim(accents, E'\x02');
    RETURN CASE WHEN accents = '' THEN weights ELSE weights || E'\x01' || accents END;
END $qv$;
CREATE OR REPLACE FUNCTION {0}.qv_key(x text) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $qv$
    SELECT CASE WHEN x ~ {5} THEN {8} ELSE {0}.qv_key_walk(x) END
$qv$;
)sql",
        schema, small, constant(t.character), constant(t.basis), constant(t.accent), onlyFrequent,
        weightsMoreFrequent("weights"), weightsAll("weights"), weightsMoreFrequent(small));
}

std::string foldFunctions(std::string_view schema, const Table& t)
{
    std::string small = "lower(x COLLATE \"C\")";
    std::string smallWithUmlauts = small;
    for (const char32_t umlaut : umlauts)
        if (foldCase(umlaut) != umlaut)
            smallWithUmlauts = replaced(std::move(smallWithUmlauts), umlaut, foldCase(umlaut));
    return fmt::format(
        R"sql(
CREATE OR REPLACE FUNCTION {0}.qv_fold_walk(x text) RETURNS text
LANGUAGE plpgsql IMMUTABLE STRICT PARALLEL SAFE AS $qv$
DECLARE
    folded text := {1};
    others text := regexp_replace(folded, '[\x01-\x7f]+', '', 'g');
    letter text;
    place int;
BEGIN
    WHILE others <> '' LOOP
        letter := left(others, 1);
        others := replace(others, letter, '');
        place := strpos({2}, letter);
        IF place > 0 THEN
            folded := replace(folded, letter, substr({3}, place, 1));
        END IF;
    END LOOP;
    RETURN folded;
END $qv$;
CREATE OR REPLACE FUNCTION {0}.qv_fold(x text) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE AS $qv$
    SELECT CASE WHEN octet_length(x) = char_length(x) THEN {1}
                WHEN x ~ {4} THEN {5}
                ELSE {0}.qv_fold_walk(x) END
$qv$;
)sql",
        schema, small, constant(t.character), constant(t.fold), onlyOf("\\x01-\\x7f", smallOf1252() + U"ÄÖÜ"),
        smallWithUmlauts);
}

} // namespace

std::string createFunctionsStatement(std::string_view schema)
{
    const Table t = table();
    const std::string name = sql::Dialect::identifier(schema);
    return keyFunctions(name, t) + foldFunctions(name, t);
}

} // namespace quelvarn::postgresql
