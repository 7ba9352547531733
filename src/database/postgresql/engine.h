#pragma once

#include "database/catalog.h"
#include "database/engine.h"

namespace quelvarn::sql {
struct Gerendert;
}

namespace quelvarn::postgresql {

class Handle;

// The register on a PostgreSQL server.
class PostgresEngine final : public Engine
{
public:
    // `patience` may be null, and outlives the engine.
    PostgresEngine(std::string_view adresse, Patience* patience);
    ~PostgresEngine() override;

    std::string_view name() const override { return "PostgreSQL"; }
    EngineFaehigkeiten faehigkeiten() const override { return {}; }
    void setPatience(Patience* patience) override;

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

    void lockForWriting(std::string_view tabelle) override;
    void beginne() override;
    void schliesseAb() override;
    void nimmZurueck() override;

    // Tells the planner of many new rows or a new index, without which it would not read lists from the index alone.
    // Nothing inside a transaction; the server then does it by itself later.
    void frischeAuf(const std::string& tabelle);

private:
    std::optional<Tabellenschema> leseSchema(std::string_view name);
    std::unique_ptr<Zeilenleser> leser(const sql::Gerendert& gerendert, MitSchluessel schluessel);
    std::unique_ptr<Zeilenleser> leseVerschiedene(const sql::Select& select, const sql::Gerendert& gerendert,
                                                  std::size_t grenze);
    std::int64_t aendereZeilen(const sql::Gerendert& gerendert);
    void legeFunktionenAn();

    std::shared_ptr<Handle> handle_;
    Tabellenkatalog katalog_;
    bool funktionenAngelegt_ = false;
};

} // namespace quelvarn::postgresql
