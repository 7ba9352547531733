#pragma once

#include "database/catalog.h"
#include "database/engine.h"
#include "database/odbc/row_book.h"
#include "database/odbc/statement.h"

#include <memory>
#include <unordered_map>

namespace quelvarn::sql {
struct Gerendert;
}

namespace quelvarn::odbc {

struct Datenbankart;

// The register behind an ODBC driver: the Access file that the office shares with other programs, in place. Its tables
// have no row key, so the engine knows a row by all it holds (Zeilenbuch).
class OdbcEngine final : public Engine
{
public:
    // `file`: the one that the connection text names, where it is known.
    explicit OdbcEngine(std::string_view verbindungstext, std::optional<WatchedFile> file = {});

    std::string_view name() const override;
    EngineFaehigkeiten faehigkeiten() const override;
    FileState fileState() const override;
    void checkFile() const override;

    std::vector<std::string> tabellen() override;
    std::optional<Tabellenschema> findTabelle(std::string_view name) override;

    std::unique_ptr<Zeilenleser> lese(const sql::Select& select, MitSchluessel schluessel, std::size_t grenze) override;
    std::unique_ptr<Zeilenleser> leseZeilen(std::string_view tabelle, std::span<const std::string> spalten,
                                            std::span<const Zeilenschluessel> schluessel) override;
    // The statement as it is sent: a driver tells no plan.
    std::string ausfuehrungsplan(const sql::Select& select) override;
    std::int64_t fuehreAus(const sql::Anweisung& anweisung) override;

    Zeilenschluessel fuegeEin(std::string_view tabelle, std::span<const sql::Zuweisung> werte) override;
    // Throws Laufzeitfehler, and nothing is changed, when another row is equal throughout.
    bool aendere(std::string_view tabelle, Zeilenschluessel zeile, std::span<const sql::Zuweisung> werte) override;
    bool loesche(std::string_view tabelle, Zeilenschluessel zeile) override;

    // Tables and indexes of an Access file belong to the program that fills it: these three throw there.
    void legeTabelleAn(const Tabellenschema& tabelle) override;
    void legeIndexeAn(const Tabellenschema& tabelle) override;
    void entferneTabelle(std::string_view name) override;
    std::vector<std::vector<IndexSpalte>> fehlendeIndexe(const Tabellenschema& tabelle) override; // Never any.
    std::unique_ptr<Engine::Massenschreiber> massenschreiber(std::string_view tabelle,
                                                             std::span<const Spalte> spalten) override;

    // Without savepoints an inner transaction that is taken back takes the outer one with it.
    void lockForWriting(std::string_view tabelle) override;
    void beginne() override;
    void schliesseAb() override;
    void nimmZurueck() override;

private:
    std::optional<Tabellenschema> leseSchema(std::string_view name);
    std::string gespeicherterName(std::string_view name);
    Anweisung starte(const sql::Gerendert& gerendert);
    std::shared_ptr<Zeilenbuch> buchOf(const Tabellenschema& tabelle);
    std::vector<std::vector<Value>> findZeilen(const Tabellenschema& tabelle, std::span<const sql::Zuweisung> bild);
    std::unique_ptr<Zeilenleser> leseEinzeln(const Tabellenschema& tabelle, std::vector<Spalte> spalten,
                                             std::span<const Zeilenschluessel> schluessel);
    bool schreibeEine(const Tabellenschema& tabelle, std::span<const sql::Zuweisung> bild,
                      const sql::Gerendert& gerendert);
    void merkeVorher(const std::shared_ptr<Zeilenbuch>& buch, Zeilenschluessel schluessel);
    void pruefeSchreibenderAufbau() const;

    std::optional<WatchedFile> file_;
    std::shared_ptr<Verbindung> verbindung_;
    const Datenbankart* art_;
    Tabellenkatalog katalog_;
    std::unordered_map<std::string, std::shared_ptr<Zeilenbuch>> buecher_; // By the stored name of the table.
    // What rows held before they were changed in the open transaction; each inner one has its mark.
    struct Vorher
    {
        std::shared_ptr<Zeilenbuch> buch;
        Zeilenschluessel schluessel;
        std::string bild;
    };
    std::vector<Vorher> vorher_;
    std::vector<std::size_t> marken_;
    bool verdorben_ = false; // An inner one was taken back without a savepoint.
};

} // namespace quelvarn::odbc
