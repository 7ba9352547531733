#include "base/collation.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/connection.h"
#include "database/document_types.h"
#include "database/engine.h"
#include "database/sql/conditions.h"
#include "tools/commands.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <limits>
#include <map>

namespace quelvarn::tools {

namespace {

constexpr std::array SCHALTER{Schalter{"--sehen", Wert::Noetig}, Schalter{"--loeschen", Wert::Noetig},
                              Schalter{"--neu"}};

constexpr std::string_view HILFE =
    R"(Aufruf: qvadmin rights ZIEL [ANWENDER] [--sehen STATI] [--loeschen STATUS=CODE,...] [--neu]

Zeigt die Rechte der Anwender oder setzt die eines Anwenders. Sie gelten ab seinem nächsten Start.

  ANWENDER     Anmeldename; ohne ihn werden alle gezeigt
  --sehen      die sichtbaren Stati, etwa 0,1,2,3; alle anderen werden unsichtbar
  --loeschen   Löschcode je Status, etwa 0=5,1=1; nicht genannte bleiben
               0 nichts, 1 eigene Datensätze, 2 fremde Datensätze, 5 eigene Datensätze und Dateien, 6 alles
               (3 und 4 gibt es, sie erlauben nichts)
  --neu        legt einen Anwender an, den das Register noch nicht kennt; er sieht die Stati 3 und 4,
               wenn --sehen nichts anderes sagt

Stati: 0 Verfügbar, 1 In Arbeit, 2 Wird geprüft, 3 Freigegeben, 4 Festgeschrieben, 5 Ungültig
)";

constexpr std::string_view GRUPPE = "Berechtigung";
constexpr int HOECHSTER_CODE = 6;

struct Rechte
{
    std::array<std::int64_t, ANZAHL_STATUS> sichtbar{0, 0, 0, 1, 1, 0};
    std::array<std::int64_t, ANZAHL_STATUS> loeschrecht{};
};

std::string schluessel(int status)
{
    return fmt::format("{}_Status", status);
}

sql::AusdruckZeiger rechtezeilen()
{
    return sql::equal("Feld2", GRUPPE);
}

sql::AusdruckZeiger rechtezeilen(std::string_view anwender)
{
    return sql::all(sql::equal("Feld1", anwender), rechtezeilen());
}

// As the program reads it: what is no number of 16 bits counts as 0.
std::int64_t number(const Value& wert)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return wholeNumber(wert, Limits::min(), Limits::max()).value_or(0);
}

void uebernimm(const Zeilenleser& zeile, Rechte& rechte)
{
    const std::string stelle = toLower(zeile.istNull(1) ? "" : zeile.text(1));
    for (int status = 0; status < ANZAHL_STATUS; ++status) {
        if (stelle != toLower(schluessel(status)))
            continue;
        rechte.sichtbar[status] = number(zeile.wert(2));
        rechte.loeschrecht[status] = number(zeile.wert(3));
    }
}

// Users in the order of their names, with the spelling of their first row.
std::map<std::string, std::pair<std::string, Rechte>> liesRechte(Engine& engine)
{
    const sql::Select select = sql::Query("Ini").columns({"Feld1", "Feld3", "Feld4", "Feld5"}).where(rechtezeilen());
    std::map<std::string, std::pair<std::string, Rechte>> alle;
    const auto zeilen = engine.lese(select, MitSchluessel::Nein);
    while (zeilen->next()) {
        if (zeilen->istNull(0))
            continue;
        const std::string name(zeilen->text(0));
        auto& eintrag = alle.try_emplace(sortKey(name), name, Rechte{.sichtbar = {}, .loeschrecht = {}}).first->second;
        uebernimm(*zeilen, eintrag.second);
    }
    return alle;
}

void zeige(const std::string& anwender, const Rechte& rechte, Konsole& konsole)
{
    konsole.aus << anwender << '\n';
    for (int status = 0; status < ANZAHL_STATUS; ++status)
        konsole.aus << fmt::format("  {} {}{}  {:<8}  Löschcode {}\n", status, STATUS[status].name,
                                   std::string(16 - countCharacters(STATUS[status].name), ' '),
                                   rechte.sichtbar[status] != 0 ? "sichtbar" : "-", rechte.loeschrecht[status]);
}

int status(std::string_view text)
{
    const auto zahl = parseGanzzahl(trim(text));
    if (!zahl || *zahl < 0 || *zahl >= ANZAHL_STATUS)
        throw Bedienfehler(fmt::format("'{}' ist kein Status von 0 bis 5.", text));
    return static_cast<int>(*zahl);
}

void setzeSichtbar(Rechte& rechte, std::string_view liste)
{
    rechte.sichtbar.fill(0);
    for (const std::string& teil : split(liste, ','))
        rechte.sichtbar[status(teil)] = 1;
}

void setzeLoeschrecht(Rechte& rechte, std::string_view liste)
{
    for (const std::string& teil : split(liste, ',')) {
        const auto paar = split(teil, '=');
        const auto code = paar.size() == 2 ? parseGanzzahl(trim(paar[1])) : std::nullopt;
        if (!code || *code < 0 || *code > HOECHSTER_CODE)
            throw Bedienfehler(fmt::format("'{}' ist kein STATUS=CODE mit einem Code von 0 bis 6.", teil));
        rechte.loeschrecht[status(paar[0])] = *code;
    }
}

void schreibe(Connection& verbindung, const std::string& anwender, const Rechte& rechte, bool neu)
{
    Transaktion transaktion(verbindung);
    Engine& engine = verbindung.engine();
    engine.fuehreAus(sql::Delete{"Ini", rechtezeilen(anwender)});
    const auto fuegeEin = [&](std::string_view gruppe, const std::string& feld3, Value feld4, Value feld5) {
        const std::array<sql::Zuweisung, 5> werte{{{"Feld1", anwender},
                                                   {"Feld2", std::string(gruppe)},
                                                   {"Feld3", feld3},
                                                   {"Feld4", std::move(feld4)},
                                                   {"Feld5", std::move(feld5)}}};
        engine.fuegeEin("Ini", werte);
    };
    for (int status = 0; status < ANZAHL_STATUS; ++status)
        fuegeEin(GRUPPE, schluessel(status), std::to_string(rechte.sichtbar[status]),
                 std::to_string(rechte.loeschrecht[status]));
    if (neu) // A first start would write these with the rights and passes them over when those are there.
        for (const char* feld3 : {"BearbeitenVon", "SpeichernIn"})
            fuegeEin("Sicherung", feld3, {}, {});
    transaktion.schliesseAb();
}

int setze(const Argumente& argumente, Connection& verbindung, Konsole& konsole)
{
    const auto alle = liesRechte(verbindung.engine());
    const std::string& gesucht = argumente.stelle(1);
    const auto gefunden = alle.find(sortKey(gesucht));
    const bool neu = gefunden == alle.end();
    if (neu && !argumente.gesetzt("--neu"))
        throw werkzeugfehler(
            fmt::format("Den Anwender '{}' kennt das Register nicht. Mit --neu wird er angelegt.", gesucht));
    const std::string anwender = neu ? gesucht : gefunden->second.first;
    Rechte rechte = neu ? Rechte{} : gefunden->second.second;
    if (const auto liste = argumente.findWert("--sehen"))
        setzeSichtbar(rechte, *liste);
    if (const auto liste = argumente.findWert("--loeschen"))
        setzeLoeschrecht(rechte, *liste);
    if (neu || argumente.gesetzt("--sehen") || argumente.gesetzt("--loeschen"))
        schreibe(verbindung, anwender, rechte, neu);
    zeige(anwender, rechte, konsole);
    return GUT;
}

int rights(const Argumente& argumente, Konsole& konsole)
{
    const bool aendert = argumente.gesetzt("--sehen") || argumente.gesetzt("--loeschen") || argumente.gesetzt("--neu");
    if (aendert && argumente.anzahl() < 2)
        throw Bedienfehler("Wessen Rechte? Es fehlt der Anwender.");
    Connection verbindung;
    verbindung.OpenAdresse(argumente.stelle(0));
    if (argumente.anzahl() == 2)
        return setze(argumente, verbindung, konsole);
    const auto alle = liesRechte(verbindung.engine());
    for (const auto& [_, eintrag] : alle)
        zeige(eintrag.first, eintrag.second, konsole);
    if (alle.empty())
        konsole.aus << "Im Register ist kein Anwender eingetragen.\n";
    return GUT;
}

} // namespace

const Befehl BEFEHL_RIGHTS{.name = "rights",
                           .kurz = "zeigt und setzt die Rechte der Anwender",
                           .hilfe = HILFE,
                           .mindestens = 1,
                           .hoechstens = 2,
                           .schalter = SCHALTER,
                           .ausfuehren = rights};

} // namespace quelvarn::tools
