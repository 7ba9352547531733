#include "filter/saved_filters.h"

#include "base/utf8.h"
#include "filter/execution.h"
#include "filter/filter_rows.h"
#include "filter/filter_string.h"
#include "session/error_report.h"
#include "session/ini_reader/ini_rows.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr std::string_view TITEL = "Filterwerte";
constexpr std::string_view GRUPPE = "Filterwerte"; // Feld2 of the rows.
constexpr std::size_t LAENGSTER_NAME = 50;

const Recordset& liste(const SessionState& session, int tab)
{
    return session.pages.GespeicherteFilter[static_cast<std::size_t>(tab)];
}

std::size_t anzahl(const Recordset& liste)
{
    return liste.offen() ? liste.RecordCount() : 0;
}

std::string text(const Recordset& liste, std::size_t zeile, std::string_view feld)
{
    return alsText(liste.Zelle(zeile, feld));
}

std::optional<std::size_t> findeZeile(const Recordset& liste, std::string_view Filtername)
{
    for (std::size_t zeile = 0; zeile < anzahl(liste); ++zeile)
        if (text(liste, zeile, "Filtername") == Filtername)
            return zeile;
    return std::nullopt;
}

// The list of the kontext's type; nullptr, after a box, when no database has filled it.
Recordset* findeListe(Filterkontext& kontext)
{
    Recordset& liste = kontext.session.pages.GespeicherteFilter[static_cast<std::size_t>(kontext.tab)];
    if (liste.offen())
        return &liste;
    kontext.ports().meldungen.warnung(TITEL, "Es konnte keine Tabelle zugeordnet werden!");
    return nullptr;
}

// What is wrong with the name or the filter; "" when they can be saved.
std::string einwand(const Filterzustand& zustand, std::string_view name)
{
    if (name.empty())
        return "Es muss ein Name für den Filter angegeben werden!";
    if (countCharacters(name) > LAENGSTER_NAME)
        return "Der Name für den Filter kann max. 50 Zeichen lang sein!";
    const bool status = std::ranges::find(zustand.ChFilterStat, true) != zustand.ChFilterStat.end();
    if (zustand.FilterSchritte[0].Wert.empty() && !status)
        return "Es sind keine Filterwerte eingetragen!";
    if (!speicherbar(zustand))
        return "Filterwerte mit den Zeichen \\ oder | können nicht gespeichert werden!";
    return "";
}

bool stehtSoInDerTabelle(const Recordset& zeilen, const Recordset& liste)
{
    if (zeilen.RecordCount() != liste.RecordCount())
        return false;
    for (std::size_t i = 0; i < liste.RecordCount(); ++i)
        if (text(zeilen, i, "Feld4") != text(liste, i, "Filtername") ||
            text(zeilen, i, "Feld5") != text(liste, i, "Filterstring"))
            return false;
    return true;
}

// The value as it counts: with a star at its end, where it can take one.
std::optional<std::string> mitStern(std::string_view wert)
{
    if (wert.ends_with('*'))
        return std::string(wert);
    if (!wert.starts_with('*'))
        return std::nullopt;
    if (wert.ends_with(' '))
        wert.remove_suffix(1);
    return std::string(wert) + '*';
}

} // namespace

std::vector<std::string> gespeicherteNamen(const SessionState& session, int tab)
{
    std::vector<std::string> namen;
    for (std::size_t zeile = 0; zeile < anzahl(liste(session, tab)); ++zeile)
        namen.push_back(text(liste(session, tab), zeile, "Filtername"));
    return namen;
}

std::string SavedFilterString(const SessionState& session, int tab, std::string_view Filtername)
{
    const auto zeile = findeZeile(liste(session, tab), Filtername);
    return zeile ? text(liste(session, tab), *zeile, "Filterstring") : "";
}

void SaveFilterRows(SessionState& session, int tab)
{
    const Recordset& filter = liste(session, tab);
    if (!filter.offen())
        return;
    const std::string_view schluessel = DOKUTYPEN[static_cast<std::size_t>(tab)].schluessel;
    IniZeilen ini(session.database.Verbindung);
    Recordset zeilen = ini.zeilen(session.user.Anwender, GRUPPE, schluessel);
    if (stehtSoInDerTabelle(zeilen, filter))
        return;
    ini.writeAlone();
    zeilen = ini.zeilen(session.user.Anwender, GRUPPE, schluessel);
    ini.loesche(zeilen);
    for (std::size_t i = 0; i < filter.RecordCount(); ++i)
        ini.fuegeAn({session.user.Anwender, GRUPPE, schluessel, text(filter, i, "Filtername"),
                     text(filter, i, "Filterstring")});
    ini.schliesseAb();
}

void speichereFilterlisten(SessionState& session, Meldungen& meldungen)
{
    for (const DokuTyp& typ : DOKUTYPEN)
        gesichert(meldungen, "Speichern der Filterwerte in die Ini-Tabelle",
                  "Fehler beim Speichern der Filterwerte in die Ini-Tabelle!",
                  [&] { SaveFilterRows(session, typ.tab); });
}

bool speichereFilter(Filterkontext& kontext, std::string_view TxtFilterSave)
{
    const std::string grund = einwand(kontext.zustand(), TxtFilterSave);
    if (!grund.empty()) {
        kontext.ports().meldungen.warnung(TITEL, grund);
        return false;
    }
    Recordset* filter = findeListe(kontext);
    if (!filter)
        return false;
    if (findeZeile(*filter, TxtFilterSave)) {
        kontext.ports().meldungen.warnung(TITEL,
                                          fmt::format("Der Filtername '{}' ist bereits vorhanden!", TxtFilterSave));
        return false;
    }
    filter->AddNew();
    filter->setzeFeld("Filtername", std::string(TxtFilterSave));
    filter->setzeFeld("Filterstring", alsFilterstring(kontext.zustand()));
    filter->Update();
    return true;
}

void loescheFilter(Filterkontext& kontext, std::string_view CbFilterSave)
{
    Recordset* filter = findeListe(kontext);
    const auto zeile = filter ? findeZeile(*filter, CbFilterSave) : std::nullopt;
    if (!zeile)
        return;
    filter->setzeAbsolutePosition(*zeile);
    filter->Delete();
}

std::optional<std::string> gewaehlterFilter(Filterkontext& kontext, std::string_view CbFilterSave)
{
    if (CbFilterSave.empty()) {
        kontext.ports().meldungen.warnung(TITEL, "Es ist kein Filterwert ausgewählt!");
        return std::nullopt;
    }
    return SavedFilterString(kontext.session, kontext.tab, CbFilterSave);
}

void UseSavedFilter(Filterkontext& kontext, std::string_view Filterstring)
{
    const GespeicherterFilter filter = leseFilterstring(Filterstring);
    Filterzustand& zustand = kontext.zustand();
    leereFilter(zustand);
    zustand.FilterSchritte = filter.FilterSchritte;
    zustand.FilterAnzahl = filter.FilterAnzahl;
    zustand.ZusBenutzDef = filter.ZusBenutzDef;
    zustand.ChFilterStat = filter.ChFilterStat.value_or(std::array<bool, ANZAHL_STATUS>{});
    BuildStatusFilter(kontext.filter, kontext.tab);
    zustand.bereich = filter.bereich;
}

void ergaenzeSterne(Filterkontext& kontext)
{
    const std::vector<FilterRow> rows = kontext.FilterWerteTabelle();
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (const auto wert = mitStern(rows[i].Wert))
            setRowValue(kontext.zustand(), i, *wert);
}

Filterfavoriten favoritenliste(const SessionState& session, int tab)
{
    Filterfavoriten favoriten{gespeicherteNamen(session, tab), std::nullopt};
    const auto warnung = [](std::string text) {
        return Meldung{std::string(TITEL_FAVORITENMENUE), std::move(text), Symbol::Warnung};
    };
    if (favoriten.namen.empty())
        favoriten.meldung =
            warnung(fmt::format("Es sind keine gespeicherten Filter für {} vorhanden!", session.mehrzahl(tab)));
    if (favoriten.namen.size() > MAX_FILTERFAVORITEN) {
        favoriten.namen.resize(MAX_FILTERFAVORITEN);
        favoriten.meldung = warnung("Das Formular ist auf max. 25 Filter ausgelegt!");
    }
    return favoriten;
}

std::optional<std::string> gewaehlterFavorit(const SessionState& session, Meldungen& meldungen, int tab,
                                             std::string_view LblFilter)
{
    if (LblFilter.empty()) {
        meldungen.warnung("Filterfavoriten", "Es ist kein Filtername eingetragen!");
        return std::nullopt;
    }
    return SavedFilterString(session, tab, LblFilter);
}

} // namespace quelvarn
