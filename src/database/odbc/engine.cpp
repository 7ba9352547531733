#include "database/odbc/engine.h"

#include "base/collation.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/distinct_reader.h"
#include "database/odbc/bulk_writer.h"
#include "database/odbc/connection_handle.h"
#include "database/odbc/database_kind.h"
#include "database/odbc/reader.h"
#include "database/sql/column_value.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <fmt/format.h>
#include <unordered_set>

namespace quelvarn::odbc {
namespace {

constexpr int ZEILE_MEHRDEUTIG = -2147217887;
// More rows than these are looked for in one pass over the table.
constexpr std::size_t EINZELN_BIS = 4;
// Columns in the answer of the driver about tables and columns.
constexpr std::size_t AUSKUNFT_TABELLE = 2;
constexpr std::size_t AUSKUNFT_TABELLENART = 3;
constexpr std::size_t AUSKUNFT_SPALTE = 3;
constexpr std::size_t AUSKUNFT_TYP = 4;

int ganzzahlAus(const std::string& text)
{
    int zahl = 0;
    std::from_chars(text.data(), text.data() + text.size(), zahl);
    return zahl;
}

std::size_t stelleOf(std::span<const Spalte> spalten, std::string_view name)
{
    const auto treffer =
        std::ranges::find_if(spalten, [&](const Spalte& spalte) { return equalText(spalte.name, name); });
    return static_cast<std::size_t>(treffer - spalten.begin());
}

// Where each column of the table stands among those of a result.
std::vector<std::size_t> stellenOf(const Tabellenschema& tabelle, const sql::Gerendert& gerendert)
{
    std::vector<Spalte> alle = gerendert.spalten;
    alle.insert(alle.end(), gerendert.rest.begin(), gerendert.rest.end());
    std::vector<std::size_t> stellen;
    for (const Spalte& spalte : tabelle.spalten)
        stellen.push_back(stelleOf(alle, spalte.name));
    return stellen;
}

std::vector<sql::Zuweisung> alsZuweisungen(const Tabellenschema& tabelle, std::span<const Value> zeile)
{
    std::vector<sql::Zuweisung> werte;
    for (std::size_t i = 0; i < tabelle.spalten.size(); ++i)
        werte.push_back({tabelle.spalten[i].name, zeile[i]});
    return werte;
}

} // namespace

OdbcEngine::OdbcEngine(std::string_view verbindungstext, std::optional<WatchedFile> file)
    : file_(std::move(file)), verbindung_(Verbindung::oeffne(verbindungstext, file_ ? file_->text() : "")),
      art_(&datenbankartOf(verbindung_->datenbankname())),
      katalog_([this](std::string_view name) { return leseSchema(name); })
{
    verbindung_->setSource(art_->name);
}

std::string_view OdbcEngine::name() const
{
    return art_->name;
}

EngineFaehigkeiten OdbcEngine::faehigkeiten() const
{
    EngineFaehigkeiten kann;
    kann.spaltenNachladen = false; // To know a row again, all of it must be read anyway.
    return kann;
}

FileState OdbcEngine::fileState() const
{
    return file_ ? file_->state() : FileState::Same;
}

void OdbcEngine::checkFile() const
{
    if (file_)
        file_->check(std::string(name()));
}

std::vector<std::string> OdbcEngine::tabellen()
{
    std::vector<std::string> namen;
    for (Anweisung auskunft = Anweisung::tabellen(verbindung_); auskunft.next();) {
        std::string name = auskunft.text(AUSKUNFT_TABELLE);
        if (!equalText(auskunft.text(AUSKUNFT_TABELLENART), "SYSTEM TABLE")) // Not every driver heeds what is asked.
            namen.push_back(std::move(name));
    }
    std::ranges::sort(namen);
    return namen;
}

std::string OdbcEngine::gespeicherterName(std::string_view name)
{
    for (std::string& tabelle : tabellen())
        if (equalText(tabelle, name))
            return std::move(tabelle);
    return {};
}

std::optional<Tabellenschema> OdbcEngine::findTabelle(std::string_view name)
{
    const Tabellenschema* tabelle = katalog_.find(name);
    return tabelle ? std::optional(*tabelle) : std::nullopt;
}

std::optional<Tabellenschema> OdbcEngine::leseSchema(std::string_view name)
{
    Tabellenschema tabelle{gespeicherterName(name), {}, {}};
    if (tabelle.name.empty())
        return std::nullopt;
    for (Anweisung auskunft = Anweisung::spalten(verbindung_, tabelle.name); auskunft.next();) {
        if (auskunft.text(AUSKUNFT_TABELLE) != tabelle.name) // "_" in a name is a wildcard to the driver.
            continue;
        std::string spalte = auskunft.text(AUSKUNFT_SPALTE);
        if (const auto typ = findFeldTyp(ganzzahlAus(auskunft.text(AUSKUNFT_TYP))))
            tabelle.spalten.push_back({std::move(spalte), *typ});
    }
    return tabelle;
}

std::shared_ptr<Zeilenbuch> OdbcEngine::buchOf(const Tabellenschema& tabelle)
{
    std::shared_ptr<Zeilenbuch>& buch = buecher_[tabelle.name];
    if (!buch)
        buch = std::make_shared<Zeilenbuch>();
    return buch;
}

Anweisung OdbcEngine::starte(const sql::Gerendert& gerendert)
{
    return Anweisung::fuehreAus(verbindung_, gerendert.text, gerendert.parameter);
}

std::unique_ptr<Zeilenleser> OdbcEngine::lese(const sql::Select& select, MitSchluessel schluessel, std::size_t grenze)
{
    const Tabellenschema& tabelle = katalog_.tabelleOf(select.tabelle, name());
    const sql::Gerendert gerendert = art_->dialekt().select(select, tabelle, schluessel, grenze);
    std::optional<Schluesselquelle> quelle;
    if (schluessel == MitSchluessel::Ja)
        quelle = Schluesselquelle{buchOf(tabelle), stellenOf(tabelle, gerendert)};
    const bool hierUnterscheiden = select.distinct && !art_->distinctBlind;
    auto leser = std::make_unique<Leser>(starte(gerendert), gerendert.spalten, gerendert.rest,
                                         hierUnterscheiden ? 0 : grenze, std::move(quelle));
    if (hierUnterscheiden)
        return std::make_unique<DistinctLeser>(*leser, select.orderBy, grenze);
    return leser;
}

std::unique_ptr<Zeilenleser> OdbcEngine::leseZeilen(std::string_view tabelle, std::span<const std::string> spalten,
                                                    std::span<const Zeilenschluessel> schluessel)
{
    const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
    sql::Select alle;
    alle.tabelle = schema.name;
    alle.spalten.assign(spalten.begin(), spalten.end());
    const std::vector<Spalte> gesuchte = art_->dialekt().select(alle, schema, MitSchluessel::Nein).spalten;
    if (schluessel.size() <= EINZELN_BIS)
        return leseEinzeln(schema, gesuchte, schluessel);

    const std::unordered_set<Zeilenschluessel> verlangte(schluessel.begin(), schluessel.end());
    std::vector<Schluesselzeile> zeilen;
    for (const auto leser = lese(alle, MitSchluessel::Ja, 0); leser->next();) {
        if (!verlangte.contains(leser->schluessel()))
            continue;
        Schluesselzeile& zeile = zeilen.emplace_back(Schluesselzeile{leser->schluessel()});
        for (std::size_t i = 0; i < gesuchte.size(); ++i)
            zeile.werte.push_back(leser->wert(i));
    }
    return std::make_unique<Listenleser>(gesuchte, std::move(zeilen));
}

std::unique_ptr<Zeilenleser> OdbcEngine::leseEinzeln(const Tabellenschema& tabelle, std::vector<Spalte> spalten,
                                                     std::span<const Zeilenschluessel> schluessel)
{
    std::vector<Schluesselzeile> zeilen;
    for (const Zeilenschluessel gesucht : schluessel) {
        const std::string* bild = buchOf(tabelle)->findBild(gesucht);
        if (!bild)
            continue;
        const auto gefunden = findZeilen(tabelle, alsZuweisungen(tabelle, Zeilenbuch::zeileOf(*bild)));
        if (gefunden.empty())
            continue;
        Schluesselzeile& zeile = zeilen.emplace_back(Schluesselzeile{gesucht});
        for (const Spalte& spalte : spalten)
            zeile.werte.push_back(gefunden.front()[stelleOf(tabelle.spalten, spalte.name)]);
    }
    return std::make_unique<Listenleser>(std::move(spalten), std::move(zeilen));
}

std::vector<std::vector<Value>> OdbcEngine::findZeilen(const Tabellenschema& tabelle,
                                                       std::span<const sql::Zuweisung> bild)
{
    const sql::Gerendert gerendert = art_->dialekt().leseZeile(tabelle, bild);
    Leser leser(starte(gerendert), gerendert.spalten, {}, 0, std::nullopt);
    std::vector<std::vector<Value>> zeilen;
    while (leser.next()) {
        std::vector<Value>& zeile = zeilen.emplace_back();
        for (std::size_t i = 0; i < gerendert.spalten.size(); ++i)
            zeile.push_back(leser.wert(i));
    }
    return zeilen;
}

std::string OdbcEngine::ausfuehrungsplan(const sql::Select& select)
{
    const Tabellenschema& tabelle = katalog_.tabelleOf(select.tabelle, name());
    return art_->dialekt().select(select, tabelle, MitSchluessel::Nein).text;
}

std::int64_t OdbcEngine::fuehreAus(const sql::Anweisung& anweisung)
{
    const Tabellenschema& tabelle = katalog_.tabelleOf(zieltabelle(anweisung), name());
    return starte(art_->dialekt().aenderung(anweisung, tabelle)).betroffeneZeilen();
}

// The row is read again at once: a counter or a default value may have filled more columns.
Zeilenschluessel OdbcEngine::fuegeEin(std::string_view tabelle, std::span<const sql::Zuweisung> werte)
{
    const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
    std::vector<sql::Zuweisung> gespeicherte(werte.begin(), werte.end());
    if (gespeicherte.empty()) // Access knows no row without a value.
        gespeicherte.push_back({schema.spalten.front().name, {}});
    for (sql::Zuweisung& zelle : gespeicherte)
        if (const std::size_t stelle = stelleOf(schema.spalten, zelle.spalte); stelle < schema.spalten.size())
            zelle.wert = sql::speicherwert(zelle.wert, schema.spalten[stelle].typ);
    starte(art_->dialekt().fuegeEin(schema, gespeicherte));

    const std::vector<std::vector<Value>> zeilen = findZeilen(schema, gespeicherte);
    if (zeilen.empty())
        throw Laufzeitfehler(
            ZEILE_MEHRDEUTIG, std::string(name()),
            fmt::format("Der neue Datensatz der Tabelle '{}' wurde nicht wiedergefunden.", schema.name));
    const std::string bild = Zeilenbuch::bildOf(zeilen.back());
    const auto gleiche =
        std::ranges::count_if(zeilen, [&](const auto& zeile) { return Zeilenbuch::bildOf(zeile) == bild; });
    return buchOf(schema)->schluesselOf(bild, static_cast<std::size_t>(gleiche));
}

// False when the row is gone, or was changed by another program meanwhile.
bool OdbcEngine::schreibeEine(const Tabellenschema& tabelle, std::span<const sql::Zuweisung> bild,
                              const sql::Gerendert& gerendert)
{
    const auto pruefeEindeutig = [&](std::int64_t zeilen) {
        if (zeilen > 1)
            throw Laufzeitfehler(ZEILE_MEHRDEUTIG, std::string(name()),
                                 fmt::format("Der Datensatz kommt in der Tabelle '{}' {}-mal gleich vor und hat keinen "
                                             "Schlüssel.\nEs wurde nichts geändert.",
                                             tabelle.name, zeilen));
        return zeilen == 1;
    };
    Anweisung anzahl = starte(art_->dialekt().zaehleZeile(tabelle, bild));
    anzahl.next();
    if (!pruefeEindeutig(alsGanzzahl(anzahl.zelle(0, FeldTyp::Ganzzahl))))
        return false;
    beginne();
    try {
        const bool geschrieben = pruefeEindeutig(starte(gerendert).betroffeneZeilen());
        schliesseAb();
        return geschrieben;
    } catch (...) {
        nimmZurueck();
        throw;
    }
}

bool OdbcEngine::aendere(std::string_view tabelle, Zeilenschluessel zeile, std::span<const sql::Zuweisung> werte)
{
    const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
    const std::shared_ptr<Zeilenbuch> buch = buchOf(schema);
    const std::string* bild = buch->findBild(zeile);
    if (!bild)
        return false;
    std::vector<Value> inhalt = Zeilenbuch::zeileOf(*bild);
    const auto alt = alsZuweisungen(schema, inhalt);
    if (!schreibeEine(schema, alt, art_->dialekt().aendereZeile(schema, alt, werte)))
        return false;
    for (const sql::Zuweisung& neu : werte) {
        const std::size_t stelle = stelleOf(schema.spalten, neu.spalte);
        inhalt[stelle] = sql::speicherwert(neu.wert, schema.spalten[stelle].typ);
    }
    merkeVorher(buch, zeile);
    buch->ersetze(zeile, Zeilenbuch::bildOf(inhalt));
    return true;
}

bool OdbcEngine::loesche(std::string_view tabelle, Zeilenschluessel zeile)
{
    const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
    const std::shared_ptr<Zeilenbuch> buch = buchOf(schema);
    const std::string* bild = buch->findBild(zeile);
    if (!bild)
        return false;
    const auto alt = alsZuweisungen(schema, Zeilenbuch::zeileOf(*bild));
    if (!schreibeEine(schema, alt, art_->dialekt().loescheZeile(schema, alt)))
        return false;
    merkeVorher(buch, zeile);
    buch->entferne(zeile);
    return true;
}

void OdbcEngine::merkeVorher(const std::shared_ptr<Zeilenbuch>& buch, Zeilenschluessel schluessel)
{
    if (!marken_.empty())
        vorher_.push_back({buch, schluessel, *buch->findBild(schluessel)});
}

void OdbcEngine::pruefeSchreibenderAufbau() const
{
    if (!art_->legtTabellenAn)
        throw Laufzeitfehler(FEHLER_ALLGEMEIN, std::string(name()),
                             "In einer Access-Datenbank werden keine Tabellen oder Indexe angelegt oder entfernt.");
}

void OdbcEngine::legeTabelleAn(const Tabellenschema& tabelle)
{
    pruefeSchreibenderAufbau();
    Anweisung::fuehreAus(verbindung_, tabelleAnlegen(*art_, tabelle));
    katalog_.vergiss();
}

void OdbcEngine::legeIndexeAn(const Tabellenschema&)
{
    pruefeSchreibenderAufbau();
}

std::vector<std::vector<IndexSpalte>> OdbcEngine::fehlendeIndexe(const Tabellenschema&)
{
    return {};
}

void OdbcEngine::entferneTabelle(std::string_view name)
{
    pruefeSchreibenderAufbau();
    if (const Tabellenschema* tabelle = katalog_.find(name)) {
        Anweisung::fuehreAus(verbindung_, "DROP TABLE " + sql::Dialekt::bezeichner(tabelle->name));
        buecher_.erase(tabelle->name);
    }
    katalog_.vergiss();
}

std::unique_ptr<Engine::Massenschreiber> OdbcEngine::massenschreiber(std::string_view tabelle,
                                                                     std::span<const Spalte> spalten)
{
    const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
    return std::make_unique<odbc::Massenschreiber>(*this, schema.name, spaltenOf(schema, spalten));
}

void OdbcEngine::lockForWriting(std::string_view tabelle)
{
    const Tabellenschema& schema = katalog_.tabelleOf(tabelle, name());
    if (!art_->writeLock.empty())
        Anweisung::fuehreAus(verbindung_,
                             fmt::format(fmt::runtime(art_->writeLock), sql::Dialekt::bezeichner(schema.name),
                                         sql::Dialekt::bezeichner(schema.spalten.front().name)));
}

void OdbcEngine::beginne()
{
    if (marken_.empty())
        verbindung_->beginne();
    else if (art_->sicherungspunkte)
        Anweisung::fuehreAus(verbindung_, fmt::format("SAVEPOINT qv_{}", marken_.size()));
    marken_.push_back(vorher_.size());
}

// When it throws, the transaction is still there to be taken back.
void OdbcEngine::schliesseAb()
{
    assert(!marken_.empty());
    if (marken_.size() > 1) {
        if (art_->sicherungspunkte)
            Anweisung::fuehreAus(verbindung_, fmt::format("RELEASE SAVEPOINT qv_{}", marken_.size() - 1));
    } else {
        if (verdorben_)
            throw Laufzeitfehler(FEHLER_ALLGEMEIN, std::string(name()),
                                 "Ein Teil der Änderungen ging nicht, daher wurden alle zurückgenommen.");
        verbindung_->beende(true);
        vorher_.clear();
    }
    marken_.pop_back();
}

void OdbcEngine::nimmZurueck()
{
    assert(!marken_.empty());
    const std::size_t marke = marken_.back();
    marken_.pop_back();
    katalog_.vergiss(); // Tables made meanwhile go as well.
    if (!marken_.empty() && !art_->sicherungspunkte) {
        verdorben_ = true;
        return;
    }
    for (; vorher_.size() > marke; vorher_.pop_back())
        vorher_.back().buch->ersetze(vorher_.back().schluessel, vorher_.back().bild);
    if (marken_.empty()) {
        verdorben_ = false;
        verbindung_->beende(false);
        return;
    }
    Anweisung::fuehreAus(verbindung_, fmt::format("ROLLBACK TO SAVEPOINT qv_{}", marken_.size()));
    Anweisung::fuehreAus(verbindung_, fmt::format("RELEASE SAVEPOINT qv_{}", marken_.size()));
}

} // namespace quelvarn::odbc
