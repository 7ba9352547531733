#include "base/collation.h"
#include "base/file_path.h"
#include "base/number_format.h"
#include "tools/commands.h"
#include "tools/import/access_source.h"
#include "tools/import/table_mapping.h"
#include "tools/new_register.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <map>

namespace quelvarn::tools {

namespace {

constexpr std::array SCHALTER{Schalter{"--ersetzen"}};

constexpr std::string_view HILFE = R"(Aufruf: qvadmin import QUELLE.mdb ZIEL [--ersetzen]

Übernimmt ein Register aus einer Access-Datei (Access 97 bis 2003) in SQLite oder PostgreSQL. Die Quelle wird nur
gelesen. Das Ziel entsteht ganz oder gar nicht.

  QUELLE.mdb   die Access-Datei
  ZIEL         Pfad der neuen Datenbank oder Adresse postgresql://... einer Datenbank ohne Register
  --ersetzen   Ein vorhandenes Register an dieser Stelle wird ersetzt.

Zusätzliche Spalten mit Text, Zahl oder Datum bleiben erhalten. Am Ende steht, was nicht übernommen wurde.
)";

// What came over, and what did not.
class Bericht
{
public:
    void verlust(std::string_view tabelle, std::string_view spalte, std::string_view grund)
    {
        ++verluste_[fmt::format("Werte in {}.{} ({})", tabelle, spalte, grund)];
    }
    void tabelle(std::string_view name) { zeilen_.emplace_back(name, 0); }
    void zeile() { ++zeilen_.back().second; }
    void spalten(const Tabellenabbildung& abbildung)
    {
        for (const auto& spalte : abbildung.zusaetzliche)
            zusaetzliche_.push_back(fmt::format("{}.{}", abbildung.ziel.name, spalte));
        for (const auto& spalte : abbildung.fehlende)
            fehlende_.push_back(fmt::format("{}.{}", abbildung.ziel.name, spalte));
    }
    void fehlendeTabelle(std::string_view name) { fehlende_.emplace_back(name); }

    void gibAus(const std::vector<std::string>& uebrigeTabellen, std::ostream& aus) const
    {
        std::int64_t summe = 0;
        for (const auto& [name, anzahl] : zeilen_) {
            aus << fmt::format("{:<24}{:>12} Zeilen\n", name, formatGanzzahl(anzahl));
            summe += anzahl;
        }
        aus << fmt::format("{:<24}{:>12} Zeilen übernommen\n", "Zusammen", formatGanzzahl(summe));
        if (!zusaetzliche_.empty())
            aus << fmt::format("Zusätzliche Spalten behalten: {}\n", fmt::join(zusaetzliche_, ", "));
        if (!fehlende_.empty())
            aus << fmt::format("Fehlt in der Quelle, leer angelegt: {}\n", fmt::join(fehlende_, ", "));
        for (const auto& name : uebrigeTabellen)
            aus << fmt::format("Nicht übernommen: Tabelle {}\n", name);
        for (const auto& [was, anzahl] : verluste_)
            aus << fmt::format("Nicht übernommen: {}: {}\n", was, formatGanzzahl(anzahl));
    }

private:
    std::vector<std::pair<std::string, std::int64_t>> zeilen_;
    std::vector<std::string> zusaetzliche_;
    std::vector<std::string> fehlende_;
    std::map<std::string, std::int64_t> verluste_;
};

// Brings rows of the source into the form of the target.
class Uebernahme
{
public:
    Uebernahme(NeuesRegister& ziel, Bericht& bericht) : ziel_(ziel), bericht_(bericht) {}

    void tabelle(const Quelltabelle& quelle)
    {
        quelle_ = &quelle;
        abbildung_ = bildeAb(quelle, *findTabelle(quelle.name));
        werte_.resize(abbildung_.quelle.size());
        ziel_.tabelle(abbildung_.ziel);
        bericht_.tabelle(abbildung_.ziel.name);
        bericht_.spalten(abbildung_);
    }

    void zeile(std::span<const Zelle> zellen)
    {
        for (std::size_t i = 0; i < werte_.size(); ++i) {
            const auto nummer = abbildung_.quelle[i];
            std::string_view grund;
            werte_[i] = nummer == NICHT_DA ? Value{} : alsWert(zellen[nummer], abbildung_.ziel.spalten[i].typ, grund);
            if (!grund.empty())
                bericht_.verlust(abbildung_.ziel.name, quelle_->spalten[nummer].name, grund);
        }
        for (const auto nummer : abbildung_.nichtGenommen) {
            std::string_view grund;
            (void)alsWert(zellen[nummer], FeldTyp::Text, grund);
            if (!grund.empty())
                bericht_.verlust(abbildung_.ziel.name, quelle_->spalten[nummer].name, grund);
        }
        ziel_.zeile(werte_);
        bericht_.zeile();
    }

private:
    NeuesRegister& ziel_;
    Bericht& bericht_;
    const Quelltabelle* quelle_ = nullptr;
    Tabellenabbildung abbildung_;
    std::vector<Value> werte_;
};

std::vector<std::string> tabellennamen()
{
    std::vector<std::string> namen;
    for (const Tabellenschema& tabelle : registerschema())
        namen.push_back(tabelle.name);
    return namen;
}

int importiere(const Argumente& argumente, Konsole& konsole)
{
    fangeAbbruch();
    const auto vorhandenes = argumente.gesetzt("--ersetzen") ? Vorhandenes::Ersetzen : Vorhandenes::Ablehnen;
    AccessQuelle quelle(pathFromUtf8(argumente.stelle(0)), tabellennamen());
    if (const auto einwand = findEinwand(quelle.katalog()))
        throw werkzeugfehler(
            fmt::format("'{}' ist kein Register dieses Programms: {}.", argumente.stelle(0), *einwand));
    NeuesRegister ziel(argumente.stelle(1), vorhandenes, konsole);
    Bericht bericht;
    Uebernahme uebernahme(ziel, bericht);
    quelle.lies([&](const Quelltabelle& tabelle) { uebernahme.tabelle(tabelle); },
                [&](std::span<const Zelle> zeile) { uebernahme.zeile(zeile); });
    for (const Tabellenschema& tabelle : registerschema()) {
        if (std::ranges::any_of(quelle.katalog().tabellen,
                                [&](const auto& t) { return equalText(t.name, tabelle.name); }))
            continue;
        ziel.tabelle(tabelle);
        bericht.fehlendeTabelle(tabelle.name);
    }
    ziel.schliesseAb();
    bericht.gibAus(quelle.katalog().uebrige, konsole.aus);
    return GUT;
}

} // namespace

const Befehl BEFEHL_IMPORT{.name = "import",
                           .kurz = "übernimmt ein Register aus einer Access-Datei",
                           .hilfe = HILFE,
                           .mindestens = 2,
                           .hoechstens = 2,
                           .schalter = SCHALTER,
                           .ausfuehren = importiere};

} // namespace quelvarn::tools
