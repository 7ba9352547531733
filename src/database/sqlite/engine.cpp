#include "database/sqlite/engine.h"

#include "database/new_database.h"
#include "database/sql/renderer.h"
#include "database/sqlite/bulk_writer.h"
#include "database/sqlite/ddl.h"
#include "database/sqlite/faults.h"
#include "database/sqlite/handle.h"
#include "database/sqlite/integrity.h"
#include "database/sqlite/reader.h"
#include "database/sqlite/statement.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace quelvarn::sqlite {
namespace {

std::string einfuegeanweisung(std::string_view tabelle, std::span<const Spalte> spalten)
{
    std::string namen;
    std::string platzhalter;
    for (const Spalte& spalte : spalten) {
        namen += (namen.empty() ? "" : ", ") + sql::Dialekt::bezeichner(spalte.name);
        platzhalter += platzhalter.empty() ? "?" : ", ?";
    }
    return fmt::format("INSERT INTO {} ({}) VALUES ({})", sql::Dialekt::bezeichner(tabelle), namen, platzhalter);
}

} // namespace

SqliteEngine::SqliteEngine(const std::filesystem::path& pfad, bool neu, Patience* patience)
    : patience_(patience), handle_(Handle::oeffne(pfad, neu, patience)),
      katalog_([this](std::string_view name) { return leseSchema(name); })
{}

void SqliteEngine::setPatience(Patience* patience)
{
    patience_ = patience;
    handle_->setPatience(patience);
}

FileState SqliteEngine::fileState() const
{
    return handle_->file().state();
}

void SqliteEngine::checkFile() const
{
    handle_->file().check(std::string(name()));
}

void SqliteEngine::makeReady()
{
    if (handle_->lost() && !transaktion_.offen())
        openAgain();
}

// Rows are known by their keys, which mean nothing in another file.
void SqliteEngine::openAgain()
{
    checkFile();
    handle_ = Handle::oeffne(handle_->file().path(), false, patience_);
    katalog_.vergiss();
}

template <class Read> auto SqliteEngine::repeatable(Read read)
{
    makeReady();
    try {
        return read();
    } catch (const DatabaseFault&) {
        if (!handle_->lost() || transaktion_.offen())
            throw;
    }
    openAgain();
    return read();
}

void SqliteEngine::beforeChange()
{
    makeReady();
    if (transaktion_.offen())
        return;
    checkFile();
    handle_->lasseVortritt();
}

std::vector<std::string> SqliteEngine::tabellen()
{
    return repeatable([this] {
        std::vector<std::string> namen;
        Statement statement = handle_->bereite(
            "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT GLOB 'sqlite_*' ORDER BY name");
        while (statement.step())
            namen.emplace_back(statement.text(0));
        return namen;
    });
}

std::optional<Tabellenschema> SqliteEngine::findTabelle(std::string_view name)
{
    const Tabellenschema* tabelle = katalog_.find(name);
    return tabelle ? std::optional(*tabelle) : std::nullopt;
}

std::optional<Tabellenschema> SqliteEngine::leseSchema(std::string_view name)
{
    return repeatable([&] {
        Statement statement =
            handle_->bereite("SELECT t.name, c.name, c.type FROM sqlite_schema AS t, pragma_table_info(t.name) AS c "
                             "WHERE t.type IN ('table', 'view') AND t.name = ?1 COLLATE NOCASE ORDER BY c.cid");
        statement.binde(1, std::string(name));
        std::optional<Tabellenschema> tabelle;
        while (statement.step()) {
            if (!tabelle)
                tabelle = Tabellenschema{std::string(statement.text(0)), {}, {}};
            if (statement.text(1) != schluesselspalte)
                tabelle->spalten.push_back({std::string(statement.text(1)), feldTypAus(statement.text(2))});
        }
        return tabelle;
    });
}

std::unique_ptr<Zeilenleser> SqliteEngine::lese(const sql::Select& select, MitSchluessel schluessel, std::size_t grenze)
{
    return repeatable([&] {
        const Tabellenschema& tabelle = katalog_.tabelleOf(select.tabelle, name());
        return leser(sql::sqliteDialekt().select(select, tabelle, schluessel, grenze), schluessel);
    });
}

std::unique_ptr<Zeilenleser> SqliteEngine::leseZeilen(std::string_view tabelle, std::span<const std::string> spalten,
                                                      std::span<const Zeilenschluessel> schluessel)
{
    return repeatable([&] {
        const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
        sql::Select select;
        select.spalten.assign(spalten.begin(), spalten.end());
        select.tabelle = schema.name;
        // One text for any number of keys, so that it is prepared once.
        sql::Gerendert gerendert = sql::sqliteDialekt().select(select, schema, MitSchluessel::Ja);
        gerendert.text += " WHERE rowid IN (SELECT value FROM json_each(?1))";
        gerendert.parameter.emplace_back(fmt::format("[{}]", fmt::join(schluessel, ",")));
        return leser(std::move(gerendert), MitSchluessel::Ja);
    });
}

std::string SqliteEngine::ausfuehrungsplan(const sql::Select& select)
{
    const Tabellenschema& tabelle = katalog_.tabelleOf(select.tabelle, name());
    sql::Gerendert gerendert = sql::sqliteDialekt().select(select, tabelle, MitSchluessel::Nein);
    gerendert.text.insert(0, "EXPLAIN QUERY PLAN ");
    Statement statement = vorbereitet(gerendert);
    std::string plan;
    constexpr int spalteDetail = 3;
    while (statement.step())
        plan += std::string(statement.text(spalteDetail)) + '\n';
    return plan;
}

Statement SqliteEngine::vorbereitet(const sql::Gerendert& gerendert)
{
    Statement statement = handle_->bereite(gerendert.text);
    for (std::size_t i = 0; i < gerendert.parameter.size(); ++i)
        statement.binde(static_cast<int>(i) + 1, gerendert.parameter[i]);
    return statement;
}

std::unique_ptr<Zeilenleser> SqliteEngine::leser(sql::Gerendert gerendert, MitSchluessel schluessel)
{
    Statement statement = vorbereitet(gerendert);
    auto leser = std::make_unique<Leser>(std::move(statement), std::move(gerendert.spalten), schluessel);
    leser->begin();
    return leser;
}

std::int64_t SqliteEngine::aendereZeilen(const sql::Gerendert& gerendert)
{
    beforeChange();
    Statement statement = vorbereitet(gerendert);
    statement.step();
    handle_->merkeSchreiben();
    return handle_->geaenderteZeilen();
}

std::int64_t SqliteEngine::fuehreAus(const sql::Anweisung& anweisung)
{
    const Tabellenschema& tabelle = katalog_.tabelleOf(zieltabelle(anweisung), name());
    return aendereZeilen(sql::sqliteDialekt().aenderung(anweisung, tabelle));
}

Zeilenschluessel SqliteEngine::fuegeEin(std::string_view tabelle, std::span<const sql::Zuweisung> werte)
{
    aendereZeilen(sql::sqliteDialekt().fuegeEin(katalog_.tabelleOf(tabelle, name()), werte));
    return handle_->letzteZeile();
}

bool SqliteEngine::aendere(std::string_view tabelle, Zeilenschluessel zeile, std::span<const sql::Zuweisung> werte)
{
    return aendereZeilen(sql::sqliteDialekt().aendere(katalog_.tabelleOf(tabelle, name()), zeile, werte)) > 0;
}

bool SqliteEngine::loesche(std::string_view tabelle, Zeilenschluessel zeile)
{
    return aendereZeilen(sql::sqliteDialekt().loesche(katalog_.tabelleOf(tabelle, name()), zeile)) > 0;
}

void SqliteEngine::legeTabelleAn(const Tabellenschema& tabelle)
{
    handle_->fuehreAus(tabelleAnlegen(tabelle));
    katalog_.vergiss();
}

void SqliteEngine::legeIndexeAn(const Tabellenschema& tabelle)
{
    for (const auto& index : tabelle.indexe)
        handle_->fuehreAus(indexAnlegen(tabelle, index));
}

std::vector<std::vector<IndexSpalte>> SqliteEngine::fehlendeIndexe(const Tabellenschema& tabelle)
{
    return repeatable([&] {
        Statement statement = handle_->bereite("SELECT name FROM sqlite_schema WHERE type = 'index' AND name = ?1");
        std::vector<std::vector<IndexSpalte>> fehlende;
        for (const auto& index : tabelle.indexe) {
            statement.binde(1, indexname(tabelle, index));
            if (!statement.step())
                fehlende.push_back(index);
            statement.setzeZurueck();
        }
        return fehlende;
    });
}

void SqliteEngine::entferneTabelle(std::string_view name)
{
    handle_->fuehreAus("DROP TABLE IF EXISTS " + sql::Dialekt::bezeichner(name));
    katalog_.vergiss();
}

DamageReport SqliteEngine::findDamage(std::size_t limit)
{
    return sqlite::findDamage(*handle_, limit);
}

std::unique_ptr<Engine::Massenschreiber> SqliteEngine::massenschreiber(std::string_view tabelle,
                                                                       std::span<const Spalte> spalten)
{
    const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
    std::vector<Spalte> ziel = spaltenOf(schema, spalten);
    Statement einfuegen = handle_->bereite(einfuegeanweisung(schema.name, ziel));
    return std::make_unique<sqlite::Massenschreiber>(*this, std::move(einfuegen), std::move(ziel));
}

void SqliteEngine::beginne()
{
    beforeChange();
    repeatable([this] { handle_->fuehreAus(transaktion_.beginn()); });
    transaktion_.begonnen();
}

void SqliteEngine::schliesseAb()
{
    handle_->fuehreAus(transaktion_.abschluss());
    handle_->merkeSchreiben();
    transaktion_.beendet();
}

void SqliteEngine::nimmZurueck()
{
    const std::string ruecknahme = transaktion_.ruecknahme();
    transaktion_.beendet();
    katalog_.vergiss(); // Tables made meanwhile go as well.
    handle_->fuehreAus(ruecknahme);
}

} // namespace quelvarn::sqlite

namespace quelvarn {

std::shared_ptr<Engine> oeffneSqlite(const std::filesystem::path& pfad, bool neu, Patience* patience)
{
    return std::make_shared<sqlite::SqliteEngine>(pfad, neu, patience);
}

} // namespace quelvarn
