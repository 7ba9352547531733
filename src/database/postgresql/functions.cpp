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
constexpr std::string_view haeufig = " -._\\:/,()+";
constexpr std::u32string_view umlaute = U"äöüÄÖÜ";

// A string constant of the server; characters that mean something there are written by their numbers.
std::string konstante(std::u32string_view zeichen)
{
    std::string text = "E'";
    for (const char32_t z : zeichen) {
        const bool harmlos = z > 0x7F || (z >= U'0' && z <= U'9') || (z >= U'a' && z <= U'z');
        if (harmlos)
            appendUtf8(text, z);
        else
            text += fmt::format("\\x{:02x}", static_cast<unsigned>(z));
    }
    return text + "'";
}

std::string konstante(char32_t zeichen)
{
    return konstante(std::u32string_view(&zeichen, 1));
}

// One character as sortKey weighs it. A blank has no key of its own, being cut, so it is asked in front of a letter.
char32_t gewichtVon(char ascii)
{
    return toUtf32(sortKey({std::string(1, ascii) + "x"})).front();
}

std::string ersetzt(std::string ausdruck, char32_t von, char32_t nach)
{
    return fmt::format("replace({}, {}, {})", ausdruck, konstante(von), konstante(nach));
}

// The weights of a text in small letters of which all are letters, digits or frequent punctuation.
std::string gewichteHaeufiger(std::string ausdruck)
{
    for (const char zeichen : haeufig)
        ausdruck = ersetzt(std::move(ausdruck), static_cast<char32_t>(zeichen), gewichtVon(zeichen));
    return ausdruck;
}

// The same for any text in small letters.
std::string gewichteAller(std::string_view ausdruck)
{
    std::u32string von;
    std::u32string nach;
    for (char zeichen = 1; zeichen > 0; ++zeichen) {
        const char32_t gewicht = gewichtVon(zeichen);
        if (gewicht == static_cast<char32_t>(zeichen) || (zeichen >= 'A' && zeichen <= 'Z'))
            continue;
        von += static_cast<char32_t>(zeichen);
        nach += gewicht;
    }
    return fmt::format("translate({}, {}, {})", ausdruck, konstante(von), konstante(nach));
}

// A regular expression for texts of these characters alone.
std::string nurAus(std::string_view bereiche, std::u32string_view zeichen)
{
    std::string klasse(bereiche);
    for (const char32_t z : zeichen)
        klasse += fmt::format("\\u{:04x}", static_cast<unsigned>(z));
    return fmt::format("'^[{}]*$'", klasse);
}

// The rows of the table, the umlauts first: the server finds a character the sooner, the further ahead it stands.
struct Tabelle
{
    std::u32string zeichen;
    std::u32string fold;
    std::u32string basis;
    std::u32string akzent;
};

Tabelle tabelle()
{
    Tabelle ergebnis;
    const auto haengeAn = [&](const Kollationszeichen& zeile) {
        ergebnis.zeichen += zeile.zeichen;
        ergebnis.fold += zeile.fold;
        ergebnis.basis += zeile.basis;
        ergebnis.akzent += static_cast<char32_t>(2 + zeile.akzent);
    };
    for (const char32_t umlaut : umlaute)
        haengeAn(*findKollationszeichen(umlaut));
    for (const Kollationszeichen& zeile : kollationszeichen())
        if (umlaute.find(zeile.zeichen) == umlaute.npos)
            haengeAn(zeile);
    return ergebnis;
}

// Characters of code page 1252 that fold to themselves.
std::u32string kleineVon1252()
{
    std::u32string zeichen;
    for (int byte = 0x80; byte < 0x100; ++byte)
        for (const char32_t z : toUtf32(fromWindows1252(std::string(1, static_cast<char>(byte)))))
            if (z > 0x9F && foldCase(z) == z)
                zeichen += z;
    return zeichen;
}

std::string keyFunktionen(std::string_view schema, const Tabelle& t)
{
    const std::string nurHaeufige = nurAus("0-9A-Za-z", toUtf32(haeufig));
    const std::string klein = "lower(rtrim(x, ' ') COLLATE \"C\")";
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
        schema, klein, konstante(t.zeichen), konstante(t.basis), konstante(t.akzent), nurHaeufige,
        gewichteHaeufiger("weights"), gewichteAller("weights"), gewichteHaeufiger(klein));
}

std::string foldFunktionen(std::string_view schema, const Tabelle& t)
{
    std::string klein = "lower(x COLLATE \"C\")";
    std::string kleinMitUmlauten = klein;
    for (const char32_t umlaut : umlaute)
        if (foldCase(umlaut) != umlaut)
            kleinMitUmlauten = ersetzt(std::move(kleinMitUmlauten), umlaut, foldCase(umlaut));
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
        schema, klein, konstante(t.zeichen), konstante(t.fold), nurAus("\\x01-\\x7f", kleineVon1252() + U"ÄÖÜ"),
        kleinMitUmlauten);
}

} // namespace

std::string funktionenAnlegen(std::string_view schema)
{
    const Tabelle t = tabelle();
    const std::string name = sql::Dialekt::bezeichner(schema);
    return keyFunktionen(name, t) + foldFunktionen(name, t);
}

} // namespace quelvarn::postgresql
