#pragma once

#include "database/engine.h"
#include "database/schema.h"
#include "database/sql/ast.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::sql {

constexpr int FEHLER_FELD_FEHLT = -2147217904;
constexpr int FEHLER_DATENTYP = -2147217913;

// A statement in an engine's own SQL, with what stands for its placeholders, in their order.
struct Gerendert
{
    std::string text;
    std::vector<Value> parameter;
    // What a row of the result holds, as stored. The row key, when asked for, stands in front and is not among them.
    std::vector<Spalte> spalten;
    // Where rows have no key: the other columns of the table, which stand behind those asked for.
    std::vector<Spalte> rest;
    // False: the text holds neither the order nor the limit asked for, and the caller sees to both.
    bool sortiertSelbst = true;
};

// Turns trees into an engine's SQL: values become parameters, names those of the stored table. A name in any case
// will do; one that the table lacks throws Laufzeitfehler. The table is the one that the tree names.
//
// A literal is first turned into the type of its column: a text that reads as a number or date is compared as one, a
// number with a text column by the number's text. Where that cannot be, the condition is Null: it never matches, nor
// does its opposite. In what is written, a value that does not fit throws Laufzeitfehler.
class Dialekt
{
public:
    virtual ~Dialekt() = default;

    Gerendert select(const Select& anweisung, const Tabellenschema& tabelle, MitSchluessel schluessel,
                     std::size_t grenze = 0) const;
    // INSERT, UPDATE or DELETE.
    Gerendert aenderung(const Anweisung& anweisung, const Tabellenschema& tabelle) const;

    // By row key.
    Gerendert fuegeEin(const Tabellenschema& tabelle, std::span<const Zuweisung> werte) const;
    Gerendert aendere(const Tabellenschema& tabelle, Zeilenschluessel zeile, std::span<const Zuweisung> werte) const;
    Gerendert loesche(const Tabellenschema& tabelle, Zeilenschluessel zeile) const;

    // By what the row holds, for tables without a key: the columns of the image are compared as exactly as the engine
    // can. Doubles and dates may be off by what a driver loses on the way, dates by a second at most.
    using Zeilenbild = std::span<const Zuweisung>;
    Gerendert leseZeile(const Tabellenschema& tabelle, Zeilenbild bild) const;
    Gerendert zaehleZeile(const Tabellenschema& tabelle, Zeilenbild bild) const;
    Gerendert aendereZeile(const Tabellenschema& tabelle, Zeilenbild bild, std::span<const Zuweisung> werte) const;
    Gerendert loescheZeile(const Tabellenschema& tabelle, Zeilenbild bild) const;

    static std::string bezeichner(std::string_view name); // "name"

protected:
    // A text against a pattern: what stands in front of and behind the placeholder of the pattern.
    struct Mustervergleich
    {
        std::string davor;
        std::string muster;
        std::string dahinter;
    };

    virtual std::string name(std::string_view name) const { return bezeichner(name); }
    virtual std::string_view schluesselspalte() const = 0; // "" when rows have none.
    // The placeholder of this number (from 1), where this value meets a column of this type.
    virtual std::string platzhalter(std::size_t nummer, const Value& wert, FeldTyp typ) const = 0;
    // What stands in the statement itself instead of a placeholder.
    virtual std::optional<std::string> alsLiteral(const Value&) const { return std::nullopt; }
    // What the texts of a column are compared and sorted by, and a text on the other side of the comparison.
    virtual std::string vergleichsausdruck(const std::string& spalte) const = 0;
    virtual std::string vergleichstext(const std::string& text) const = 0;
    // The pattern has the wildcards of statements.
    virtual Mustervergleich like(const std::string& ausdruck, const std::string& muster) const = 0;
    // False: patterns reach the engine alone, which finds its own way to an index.
    virtual bool engtMusterEin() const { return true; }
    // A text equal to another where each byte counts.
    virtual std::string genauGleich(const std::string& ausdruck, const std::string& text) const = 0;
    // A column of numbers or dates as their German text.
    virtual std::string alsText(const std::string& spalte, FeldTyp typ) const = 0;
    virtual Value datumswert(Zeitpunkt zeit) const = 0;
    virtual std::string sortiert(const std::string& ausdruck, bool absteigend) const = 0; // Null before everything.
    virtual bool sortiertDistinct() const = 0;
    // Of texts that are equal to the program, a DISTINCT shows the one that was stored first. True where DISTINCT
    // would meet the rows in another order than that; the rows are grouped then.
    virtual bool gruppiertDistinct(const Select& anweisung) const = 0;
    virtual std::string_view niemals() const = 0; // A condition that is Null.
    // A limit of rows stands in front of the columns or at the end.
    virtual std::string grenzeVorn(std::size_t) const { return {}; }
    virtual std::string grenzeHinten(std::size_t grenze) const;

private:
    friend class Schreiber;
};

// Texts stand in columns of a collation that is blind to case and trailing blanks, dates as ISO texts. Patterns are
// matched by qv_like(pattern, text). The row key is rowid.
const Dialekt& sqliteDialekt();
// Texts are compared by qv_key(text), whose results order byte by byte, and matched by qv_fold(text). The row key is
// qv_id. DISTINCT heeds case: the caller finishes it, then sorts and limits.
const Dialekt& postgresDialekt();

// Access itself: names in brackets, texts are bound, numbers and dates stand in the statement. Equality, order,
// DISTINCT and LIKE are left to it; it sorts Null first. It has no row key.
const Dialekt& accessDialekt();
// The same databases behind an ODBC driver, whose placeholders are not numbered. Tables have no qv_id there.
const Dialekt& sqliteOdbcDialekt();
const Dialekt& postgresOdbcDialekt();

} // namespace quelvarn::sql
