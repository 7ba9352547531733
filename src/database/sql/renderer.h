#pragma once

#include "database/engine.h"
#include "database/schema.h"
#include "database/sql/ast.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::sql {

// A statement in an engine's own SQL, with what stands for its placeholders, in their order.
struct Gerendert
{
    std::string text;
    std::vector<Value> parameter;
    // What a row of the result holds, as stored. The row key, when asked for, stands in front and is not among them.
    std::vector<Spalte> spalten;
    // False: the order asked for could not be put into the text, and the caller sorts.
    bool sortiertSelbst = true;
};

// Turns trees into an engine's SQL: values always become parameters, names those of the stored table. A name in any
// case will do; one that the table lacks throws Laufzeitfehler -2147217904. The table named by the tree must be the
// one that is handed in.
//
// A literal is first turned into the type of its column: a text that reads as a number or date is compared as one, a
// number with a text column by the number's text. Where that cannot be, the condition is Null: it never matches, nor
// does its opposite. In what is written such a value throws Laufzeitfehler.
class Dialekt
{
public:
    virtual ~Dialekt() = default;

    Gerendert select(const Select& anweisung, const Tabellenschema& tabelle, MitSchluessel schluessel,
                     std::size_t grenze = 0) const;
    // INSERT, UPDATE or DELETE.
    Gerendert aenderung(const Anweisung& anweisung, const Tabellenschema& tabelle) const;

    // By row key. The keys of `zeilen` stand in the text; all others are parameters.
    Gerendert zeilen(const Tabellenschema& tabelle, std::span<const std::string> spalten,
                     std::span<const Zeilenschluessel> schluessel) const;
    Gerendert fuegeEin(const Tabellenschema& tabelle, std::span<const Zuweisung> werte) const;
    Gerendert aendere(const Tabellenschema& tabelle, Zeilenschluessel zeile, std::span<const Zuweisung> werte) const;
    Gerendert loesche(const Tabellenschema& tabelle, Zeilenschluessel zeile) const;

    static std::string bezeichner(std::string_view name); // "name"

protected:
    virtual std::string_view schluesselspalte() const = 0;
    // The placeholder of this number (from 1) where a value of this kind is compared with or put into a column.
    virtual std::string platzhalter(std::size_t nummer, const Value& wert, FeldTyp spalte) const = 0;
    // What texts are compared and sorted by, and the value that belongs on the other side.
    virtual std::string vergleichstext(const std::string& spalte) const = 0;
    virtual Value vergleichswert(const std::string& text) const = 0;
    // A text against a pattern: the condition in front of and behind the placeholder of the pattern in its own form.
    struct Mustervergleich
    {
        std::string davor;
        Value muster;
        std::string dahinter;
    };
    virtual Mustervergleich like(const std::string& text, const std::string& muster) const = 0;
    // Byte for byte the same.
    virtual std::string genauGleich(const std::string& text, const std::string& platzhalter) const = 0;
    // A number or date column as its German text, for patterns.
    virtual std::string alsText(const std::string& spalte, FeldTyp typ) const = 0;
    virtual Value datumswert(Zeitpunkt zeit) const = 0;
    virtual std::string sortiert(const std::string& ausdruck, bool absteigend) const = 0; // Null before everything.
    virtual bool sortiertDistinct() const = 0;
    virtual std::string_view niemals() const = 0; // A condition that is Null.

private:
    class Schreiber;
    friend class Schreiber;
};

// Texts stand in columns of a collation that is blind to case and trailing blanks; patterns are matched by
// qv_like(pattern, text). The row key is rowid.
const Dialekt& sqliteDialekt();
// Texts are compared by qv_key(text), patterns by qv_fold(text). The row key is qv_id. DISTINCT heeds case, and the
// caller makes the rest of it and the order behind it.
const Dialekt& postgresDialekt();

} // namespace quelvarn::sql
