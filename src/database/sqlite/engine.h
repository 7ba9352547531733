#pragma once

#include "database/catalog.h"
#include "database/engine.h"
#include "database/nested_transaction.h"

#include <filesystem>

namespace quelvarn::sql {
struct Gerendert;
}

namespace quelvarn::sqlite {

class Handle;
class Statement;

// The register in one SQLite file, which may be shared on a network drive.
// A file that was away is opened again by the next statement: what only reads is repeated then, a change never.
class SqliteEngine final : public Engine
{
public:
    SqliteEngine(const std::filesystem::path& pfad, bool neu, Patience* patience);

    std::string_view name() const override { return "SQLite"; }
    EngineFaehigkeiten faehigkeiten() const override { return {}; }
    void setPatience(Patience* patience) override;
    FileState fileState() const override;
    void checkFile() const override;

    std::vector<std::string> tabellen() override;
    std::optional<Tabellenschema> findTabelle(std::string_view name) override;

    std::unique_ptr<Zeilenleser> lese(const sql::Select& select, MitSchluessel schluessel, std::size_t grenze) override;
    std::unique_ptr<Zeilenleser> leseZeilen(std::string_view tabelle, std::span<const std::string> spalten,
                                            std::span<const Zeilenschluessel> schluessel) override;
    std::string ausfuehrungsplan(const sql::Select& select) override;
    std::int64_t fuehreAus(const sql::Anweisung& anweisung) override;

    Zeilenschluessel fuegeEin(std::string_view tabelle, std::span<const sql::Zuweisung> werte) override;
    bool aendere(std::string_view tabelle, Zeilenschluessel zeile, std::span<const sql::Zuweisung> werte) override;
    bool loesche(std::string_view tabelle, Zeilenschluessel zeile) override;

    void legeTabelleAn(const Tabellenschema& tabelle) override;
    void legeIndexeAn(const Tabellenschema& tabelle) override;
    std::vector<std::vector<IndexSpalte>> fehlendeIndexe(const Tabellenschema& tabelle) override;
    void entferneTabelle(std::string_view name) override;
    DamageReport findDamage(std::size_t limit) override;
    std::unique_ptr<Engine::Massenschreiber> massenschreiber(std::string_view tabelle,
                                                             std::span<const Spalte> spalten) override;

    void beginne() override;
    void schliesseAb() override;
    void nimmZurueck() override;

private:
    std::optional<Tabellenschema> leseSchema(std::string_view name);
    // Runs what only reads, once more on a file that is back.
    template <class Read> auto repeatable(Read read);
    void makeReady();
    void openAgain();
    // Before a change that stands alone, or the first of several.
    void beforeChange();
    Statement vorbereitet(const sql::Gerendert& gerendert);
    std::unique_ptr<Zeilenleser> leser(sql::Gerendert gerendert, MitSchluessel schluessel);
    std::int64_t aendereZeilen(const sql::Gerendert& gerendert);

    Patience* patience_;
    std::shared_ptr<Handle> handle_;
    Tabellenkatalog katalog_;
    // Asks for the write lock at once: two writers wait for one another instead of failing halfway.
    Transaktionsfolge transaktion_{"BEGIN IMMEDIATE"};
};

} // namespace quelvarn::sqlite
