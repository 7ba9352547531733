#include "database/postgresql/engine.h"

#include "base/runtime_error.h"
#include "database/distinct_reader.h"
#include "database/faults.h"
#include "database/new_database.h"
#include "database/postgresql/bulk_writer.h"
#include "database/postgresql/ddl.h"
#include "database/postgresql/functions.h"
#include "database/postgresql/handle.h"
#include "database/postgresql/integrity.h"
#include "database/postgresql/reader.h"
#include "database/postgresql/text_values.h"
#include "database/sql/renderer.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <libpq-fe.h>

namespace quelvarn::postgresql {
namespace {

// Tables that are found without naming their schema.
constexpr std::string_view sichtbareTabellen = "FROM pg_catalog.pg_class c WHERE c.relkind IN ({}) "
                                               "AND pg_catalog.pg_table_is_visible(c.oid) "
                                               "AND c.relnamespace <> 'pg_catalog'::regnamespace";

std::string_view zelle(const Ergebnis& ergebnis, int zeile, int spalte)
{
    return {PQgetvalue(ergebnis.get(), zeile, spalte),
            static_cast<std::size_t>(PQgetlength(ergebnis.get(), zeile, spalte))};
}

} // namespace

PostgresEngine::PostgresEngine(std::string_view adresse, Patience* patience)
    : handle_(Handle::oeffne(adresse, patience)), katalog_([this](std::string_view name) { return leseSchema(name); })
{
    handle_->verbundenAnders = [this] {
        katalog_.vergiss();
        funktionenAngelegt_ = false;
    };
}

PostgresEngine::~PostgresEngine()
{
    handle_->verbundenAnders = {}; // A reader may keep the connection for longer.
}

void PostgresEngine::setPatience(Patience* patience)
{
    handle_->setPatience(patience);
}

std::vector<std::string> PostgresEngine::tabellen()
{
    const Ergebnis ergebnis =
        handle_->lies(fmt::format("SELECT c.relname {} ORDER BY 1", fmt::format(sichtbareTabellen, "'r', 'p', 'f'")));
    std::vector<std::string> namen;
    for (int zeile = 0; zeile < PQntuples(ergebnis.get()); ++zeile)
        namen.emplace_back(zelle(ergebnis, zeile, 0));
    return namen;
}

std::optional<Tabellenschema> PostgresEngine::findTabelle(std::string_view name)
{
    const Tabellenschema* tabelle = katalog_.find(name);
    return tabelle ? std::optional(*tabelle) : std::nullopt;
}

std::optional<Tabellenschema> PostgresEngine::leseSchema(std::string_view name)
{
    const std::string sql = fmt::format("SELECT t.relname, a.attname, y.typname FROM "
                                        "(SELECT c.oid, c.relname {} AND lower(c.relname) = lower($1) "
                                        "ORDER BY c.relname <> $1 LIMIT 1) t "
                                        "JOIN pg_catalog.pg_attribute a ON a.attrelid = t.oid "
                                        "JOIN pg_catalog.pg_type y ON y.oid = a.atttypid "
                                        "WHERE a.attnum > 0 AND NOT a.attisdropped ORDER BY a.attnum",
                                        fmt::format(sichtbareTabellen, "'r', 'p', 'f', 'v', 'm'"));
    const Value gesucht = std::string(name);
    const Ergebnis ergebnis = handle_->lies(sql, {&gesucht, 1});
    if (PQntuples(ergebnis.get()) == 0)
        return std::nullopt;
    Tabellenschema tabelle{std::string(zelle(ergebnis, 0, 0)), {}, {}};
    for (int zeile = 0; zeile < PQntuples(ergebnis.get()); ++zeile)
        if (zelle(ergebnis, zeile, 1) != schluesselspalte)
            tabelle.spalten.push_back({std::string(zelle(ergebnis, zeile, 1)), feldTypAus(zelle(ergebnis, zeile, 2))});
    return tabelle;
}

std::unique_ptr<Zeilenleser> PostgresEngine::lese(const sql::Select& select, MitSchluessel schluessel,
                                                  std::size_t grenze)
{
    const Tabellenschema& tabelle = katalog_.tabelleOf(select.tabelle, name());
    const sql::Gerendert gerendert = sql::postgresDialekt().select(select, tabelle, schluessel, grenze);
    return select.distinct ? leseVerschiedene(select, gerendert, grenze) : leser(gerendert, schluessel);
}

std::unique_ptr<Zeilenleser> PostgresEngine::leseVerschiedene(const sql::Select& select,
                                                              const sql::Gerendert& gerendert, std::size_t grenze)
{
    const auto lies = [&] {
        return std::make_unique<DistinctLeser>(*leser(gerendert, MitSchluessel::Nein), select.orderBy, grenze);
    };
    try {
        return lies();
    } catch (const DatabaseFault& fehler) { // Nobody has seen a row yet.
        if (!handle_->darfWiederholen(fehler))
            throw;
    }
    return lies();
}

std::unique_ptr<Zeilenleser> PostgresEngine::leseZeilen(std::string_view tabelle, std::span<const std::string> spalten,
                                                        std::span<const Zeilenschluessel> schluessel)
{
    const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
    sql::Select select;
    select.spalten.assign(spalten.begin(), spalten.end());
    select.tabelle = schema.name;
    sql::Gerendert gerendert = sql::postgresDialekt().select(select, schema, MitSchluessel::Ja);
    gerendert.text += fmt::format(" WHERE {} = ANY ($1::bigint[])", schluesselspalte);
    gerendert.parameter.emplace_back(fmt::format("{{{}}}", fmt::join(schluessel, ",")));
    return leser(gerendert, MitSchluessel::Ja);
}

std::string PostgresEngine::ausfuehrungsplan(const sql::Select& select)
{
    const Tabellenschema& tabelle = katalog_.tabelleOf(select.tabelle, name());
    const sql::Gerendert gerendert = sql::postgresDialekt().select(select, tabelle, MitSchluessel::Nein);
    const Ergebnis ergebnis = handle_->lies("EXPLAIN " + gerendert.text, gerendert.parameter);
    std::string plan;
    for (int zeile = 0; zeile < PQntuples(ergebnis.get()); ++zeile)
        plan += std::string(zelle(ergebnis, zeile, 0)) + '\n';
    return plan;
}

std::unique_ptr<Zeilenleser> PostgresEngine::leser(const sql::Gerendert& gerendert, MitSchluessel schluessel)
{
    return std::make_unique<Leser>(handle_, gerendert.text, gerendert.parameter, gerendert.spalten, schluessel);
}

std::int64_t PostgresEngine::aendereZeilen(const sql::Gerendert& gerendert)
{
    const Ergebnis ergebnis = handle_->fuehreAus(gerendert.text, gerendert.parameter);
    return ganzzahlAus(PQcmdTuples(ergebnis.get())).value_or(0);
}

std::int64_t PostgresEngine::fuehreAus(const sql::Anweisung& anweisung)
{
    const Tabellenschema& tabelle = katalog_.tabelleOf(zieltabelle(anweisung), name());
    return aendereZeilen(sql::postgresDialekt().aenderung(anweisung, tabelle));
}

Zeilenschluessel PostgresEngine::fuegeEin(std::string_view tabelle, std::span<const sql::Zuweisung> werte)
{
    const sql::Gerendert gerendert = sql::postgresDialekt().fuegeEin(katalog_.tabelleOf(tabelle, name()), werte);
    const Ergebnis ergebnis =
        handle_->fuehreAus(fmt::format("{} RETURNING {}", gerendert.text, schluesselspalte), gerendert.parameter);
    return ganzzahlAus(zelle(ergebnis, 0, 0)).value_or(0);
}

bool PostgresEngine::aendere(std::string_view tabelle, Zeilenschluessel zeile, std::span<const sql::Zuweisung> werte)
{
    return aendereZeilen(sql::postgresDialekt().aendere(katalog_.tabelleOf(tabelle, name()), zeile, werte)) > 0;
}

bool PostgresEngine::loesche(std::string_view tabelle, Zeilenschluessel zeile)
{
    return aendereZeilen(sql::postgresDialekt().loesche(katalog_.tabelleOf(tabelle, name()), zeile)) > 0;
}

void PostgresEngine::legeTabelleAn(const Tabellenschema& tabelle)
{
    legeFunktionenAn();
    handle_->fuehreAus(tabelleAnlegen(tabelle));
    katalog_.vergiss();
}

void PostgresEngine::legeIndexeAn(const Tabellenschema& tabelle)
{
    legeFunktionenAn();
    for (const auto& index : tabelle.indexe)
        handle_->fuehreAus(indexAnlegen(tabelle, index));
    frischeAuf(tabelle.name);
}

std::vector<std::vector<IndexSpalte>> PostgresEngine::fehlendeIndexe(const Tabellenschema& tabelle)
{
    std::vector<std::vector<IndexSpalte>> fehlende;
    for (const auto& index : tabelle.indexe) {
        const Value name = sql::Dialekt::bezeichner(indexname(tabelle, index));
        const Ergebnis ergebnis = handle_->lies("SELECT 1 WHERE to_regclass($1) IS NOT NULL", {&name, 1});
        if (PQntuples(ergebnis.get()) == 0)
            fehlende.push_back(index);
    }
    return fehlende;
}

void PostgresEngine::entferneTabelle(std::string_view name)
{
    if (const Tabellenschema* tabelle = katalog_.find(name))
        handle_->fuehreAus("DROP TABLE " + sql::Dialekt::bezeichner(tabelle->name));
    katalog_.vergiss();
}

void PostgresEngine::frischeAuf(const std::string& tabelle)
{
    if (!handle_->inTransaktion())
        handle_->fuehreAus("VACUUM (ANALYZE) " + sql::Dialekt::bezeichner(tabelle));
}

void PostgresEngine::legeFunktionenAn()
{
    if (funktionenAngelegt_)
        return;
    const std::string kodierung = handle_->kodierung();
    if (kodierung != "UTF8")
        throw Laufzeitfehler(
            FEHLER_ALLGEMEIN, "PostgreSQL",
            fmt::format("Die PostgreSQL-Datenbank muss die Kodierung UTF8 haben, nicht {}.", kodierung));
    const Ergebnis schema = handle_->lies("SELECT current_schema()");
    handle_->fuehreAus(funktionenAnlegen(zelle(schema, 0, 0)));
    funktionenAngelegt_ = true;
}

DamageReport PostgresEngine::findDamage(std::size_t limit)
{
    return postgresql::findDamage(*handle_, limit);
}

std::unique_ptr<Engine::Massenschreiber> PostgresEngine::massenschreiber(std::string_view tabelle,
                                                                         std::span<const Spalte> spalten)
{
    const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
    return std::make_unique<postgresql::Massenschreiber>(*this, handle_, schema.name, spaltenOf(schema, spalten));
}

// Readers go on meanwhile. As no SELECT, it leaves what the transaction sees to the time after the waiting.
void PostgresEngine::lockForWriting(std::string_view tabelle)
{
    handle_->fuehreAus(fmt::format("LOCK TABLE {} IN SHARE ROW EXCLUSIVE MODE",
                                   sql::Dialekt::bezeichner(katalog_.tabelleOf(tabelle, name()).name)));
}

void PostgresEngine::beginne()
{
    handle_->beginne();
}

void PostgresEngine::schliesseAb()
{
    handle_->schliesseAb();
}

void PostgresEngine::nimmZurueck()
{
    katalog_.vergiss(); // Tables made meanwhile go as well.
    funktionenAngelegt_ = false;
    handle_->nimmZurueck();
}

} // namespace quelvarn::postgresql

namespace quelvarn {

std::shared_ptr<Engine> oeffnePostgres(std::string_view adresse, Patience* patience)
{
    return std::make_shared<postgresql::PostgresEngine>(adresse, patience);
}

} // namespace quelvarn
