#pragma once

#include "database/schema.h"
#include "database/sql/ast.h"
#include "database/watched_file.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class Patience;

using Zeilenschluessel = std::int64_t;

// Typed rows of a result, one at a time. Text views hold until the next call of next().
class Zeilenleser
{
public:
    virtual ~Zeilenleser() = default;
    // Of the selected columns, the row key not among them.
    virtual const std::vector<Spalte>& spalten() const = 0;
    virtual bool next() = 0;
    virtual Zeilenschluessel schluessel() const = 0; // 0 when the engine gives none for this statement.
    virtual bool istNull(std::size_t spalte) const = 0;
    virtual std::string_view text(std::size_t spalte) const = 0;
    // The text, or nothing for Null: one question where a column is read whole.
    virtual std::optional<std::string_view> findText(std::size_t spalte) const
    {
        return istNull(spalte) ? std::nullopt : std::optional(text(spalte));
    }
    virtual std::int64_t ganzzahl(std::size_t spalte) const = 0;
    virtual double gleitkomma(std::size_t spalte) const = 0;
    virtual Zeitpunkt datum(std::size_t spalte) const = 0;
    // The cell by its column's type; a cell that does not fit its type (a text in a number column) as it is.
    virtual Value wert(std::size_t spalte) const = 0;
};

struct EngineFaehigkeiten
{
    bool zeilenschluessel = true; // Each row has a hidden key.
    bool spaltenNachladen = true; // Columns are read later by row key for little; else a recordset is read whole.
    bool distinctBlind = true;    // DISTINCT is blind to case and trailing blanks by itself.
    bool transaktionen = true;
};

enum class MitSchluessel { Nein, Ja };

// What an engine's own check of the database says.
struct DamageReport
{
    bool checked = false;              // Not every engine, and not every server, has one.
    std::vector<std::string> findings; // In the engine's own words.
};

// What a database must be able to do. It takes trees, never text of its own dialect, and hides its driver.
// Every call throws Laufzeitfehler with the driver's text on a fault.
class Engine
{
public:
    virtual ~Engine() = default;
    virtual std::string_view name() const = 0;
    virtual EngineFaehigkeiten faehigkeiten() const = 0;
    // Asked while the engine waits for somebody else; null: it waits as long as it finds right. Outlives the engine.
    virtual void setPatience(Patience*) {}
    // What became of the file that was opened; the same for an engine without one.
    virtual FileState fileState() const { return FileState::Same; }
    virtual void checkFile() const {} // Throws DatabaseFault unless it is still the same.

    virtual std::vector<std::string> tabellen() = 0;
    // Columns as they stand in the database; nothing when there is no such table. Names in any case.
    virtual std::optional<Tabellenschema> findTabelle(std::string_view name) = 0;

    // `grenze` rows at most when above 0. Row keys cannot be had with DISTINCT.
    virtual std::unique_ptr<Zeilenleser> lese(const sql::Select& select, MitSchluessel schluessel,
                                              std::size_t grenze = 0) = 0;
    // These columns of these rows, in any order, keys included; rows that are gone are left out.
    virtual std::unique_ptr<Zeilenleser> leseZeilen(std::string_view tabelle, std::span<const std::string> spalten,
                                                    std::span<const Zeilenschluessel> schluessel) = 0;
    // How the engine would run it, in its own words: tells whether an index serves it.
    virtual std::string ausfuehrungsplan(const sql::Select& select) = 0;
    // Rows affected.
    virtual std::int64_t fuehreAus(const sql::Anweisung& anweisung) = 0;

    virtual Zeilenschluessel fuegeEin(std::string_view tabelle, std::span<const sql::Zuweisung> werte) = 0;
    // False when the row is gone.
    virtual bool aendere(std::string_view tabelle, Zeilenschluessel zeile, std::span<const sql::Zuweisung> werte) = 0;
    virtual bool loesche(std::string_view tabelle, Zeilenschluessel zeile) = 0;

    virtual void legeTabelleAn(const Tabellenschema& tabelle) = 0;
    virtual void legeIndexeAn(const Tabellenschema& tabelle) = 0; // Those that are there already stay.
    // Those of the table's indexes that the database lacks.
    virtual std::vector<std::vector<IndexSpalte>> fehlendeIndexe(const Tabellenschema& tabelle) = 0;
    // With its rows and indexes. Nothing happens when there is no such table.
    virtual void entferneTabelle(std::string_view name) = 0;
    // Looks for damage in the stored pages and indexes, which takes as long as reading all of them. Whoever writes
    // may have to wait meanwhile. After `limit` findings it ends.
    virtual DamageReport findDamage(std::size_t /*limit*/) { return {}; }
    // Bulk insert: values in the order of the columns.
    class Massenschreiber
    {
    public:
        virtual ~Massenschreiber() = default;
        virtual void zeile(std::span<const Value> werte) = 0;
        virtual void beende() = 0;
    };
    virtual std::unique_ptr<Massenschreiber> massenschreiber(std::string_view tabelle,
                                                             std::span<const Spalte> spalten) = 0;

    // In a transaction, by one who looks before he writes: until its end others who call this wait here, and then see
    // what was written. Nothing where beginning a transaction does that already, or where the engine has no means.
    virtual void lockForWriting(std::string_view) {}

    virtual void beginne() = 0;
    virtual void schliesseAb() = 0;
    virtual void nimmZurueck() = 0;
};

} // namespace quelvarn
