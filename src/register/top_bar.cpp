#include "register/top_bar.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "register/document_jump.h"
#include "register/file_boxes.h"
#include "register/table_tabs.h"
#include "register/viewer_area.h"
#include "session/error_report.h"
#include "session/local_settings.h"

#include <algorithm>
#include <iterator>

namespace quelvarn {
namespace {

// A line copied from a text brings its end along.
std::string ohneZeilenende(std::string text)
{
    for (int i = 0; i < 2 && (text.ends_with('\n') || text.ends_with('\r')); ++i)
        text.pop_back();
    return text;
}

std::string nichtGefunden(const std::string& pfad, const DokuTyp& typ)
{
    std::string text = zeilen({
        pfad,
        "Datei ist in der Tabelle nicht vorhanden!",
        "oder",
        "es ist ein <Neuaufbau> erforderlich.",
        "oder",
        "Sie haben keine Zugriffsberechtigung!",
    });
    if (typ.schluessel == "Part") // Standard parts have the same ending.
        text += "\n" + zeilen({"oder", "ist Bestandteil der Sondertabellen!", "(z.B. Normteile)"});
    return text;
}

} // namespace

struct ObereLeiste::Befehl
{
    std::string_view schluessel;
    void (ObereLeiste::*tue)(bool an);
    bool brauchtDokument = false;
};

const ObereLeiste::Befehl ObereLeiste::BEFEHLE[] = {
    {"Neuaufbau", &ObereLeiste::neuaufbau},
    {"Anschauen", &ObereLeiste::anschauen, true},
    {"Pfad in ZwSp", &ObereLeiste::pfadInZwSp, true},
    {"Pfad aus ZwSp", &ObereLeiste::pfadAusZwSp},
    {"Zu Favoriten", &ObereLeiste::zuFavoriten, true},
    {"Favoriten....", &ObereLeiste::zeigeFavoriten},
    {"In Benutzung..", &ObereLeiste::inBenutzung},
    {"Drucker....", &ObereLeiste::drucker},
};

void ObereLeiste::klick(std::string_view schluessel, bool an)
{
    const auto* befehl = std::ranges::find(BEFEHLE, schluessel, &Befehl::schluessel);
    if (befehl != std::end(BEFEHLE))
        (this->*befehl->tue)(an);
}

bool ObereLeiste::bedienbar(std::string_view schluessel) const
{
    if (viewer_.isInFront())
        return schluessel == "Anschauen";
    // Where use is not registered its box tells what to do; the list of users has no page yet.
    if (schluessel == "In Benutzung..")
        return !session_.use.CheckInOutOn;
    const auto* befehl = std::ranges::find(BEFEHLE, schluessel, &Befehl::schluessel);
    return befehl != std::end(BEFEHLE) && (!befehl->brauchtDokument || tables_.current().hasRows());
}

bool ObereLeiste::gedrueckt(std::string_view schluessel) const
{
    return (schluessel == "Anschauen" && viewer_.isInFront()) ||
           (schluessel == "Favoriten...." && favoriten_.zeigtFavoriten());
}

void ObereLeiste::neuaufbau(bool /*an*/)
{
    tabs_.rebuild();
}

void ObereLeiste::anschauen(bool an)
{
    viewer_.showDocument(an);
}

void ObereLeiste::pfadInZwSp(bool /*an*/)
{
    ports_.zwischenablage.setzeText(session_.AktDoku.filename);
}

void ObereLeiste::pfadAusZwSp(bool /*an*/)
{
    std::string pfad = ports_.zwischenablage.text();
    if (pfad.empty())
        return ports_.meldungen.information("SE-Doku: Zwischenspeicher", "Der Zwischenspeicher ist leer!");
    operations_.perform(Part::TopBar, "SE-Doku: Zwischenspeicher", "Fehler beim Suchen des Dokuments!", [&] {
        pfad = ohneZeilenende(std::move(pfad));
        UniversalNachLaufwerk(pfad, ports_);
        if (!ports_.dateien.dateiVorhanden(pfad))
            meldeDateiFehlt(ports_.meldungen, pfad);
        else if (DateiTyp(pfad, ports_.meldungen) != 0)
            wechsleZu(pfad);
    });
}

void ObereLeiste::wechsleZu(const std::string& pfad)
{
    const DokuTyp& typ = *std::ranges::find(DOKUTYPEN, Dateiendung(pfad), &DokuTyp::endung);
    jump_.bereiteVor(typ, HINWEIS_DOKUMENT);
    const bool gefunden = jump_.sucheDatei(typ, pfad);
    tabs_.chooseTab(typ.tab);
    if (!gefunden)
        ports_.meldungen.warnung("Suchergebnis", nichtGefunden(pfad, typ));
}

void ObereLeiste::zuFavoriten(bool /*an*/)
{
    favoriten_.zuFavoriten();
}

void ObereLeiste::zeigeFavoriten(bool an)
{
    favoriten_.FavoritenZeigen(an);
}

// The list of users behind the button is there only when uses are registered.
void ObereLeiste::inBenutzung(bool /*an*/)
{
    if (!session_.use.CheckInOutOn)
        ports_.meldungen.warnung("CheckInOut der Benutzung",
                                 zeilen({
                                     "Die Benutzung wird nicht registriert, da 'CheckInOut' in der",
                                     "Ini-Tabelle der Datenbank auf '0' gesetzt ist oder fehlt!",
                                     "",
                                     "Eintrag muss lauten:",
                                     "Spalte 'Feld1' = '!QV_Ini'",
                                     "Spalte 'Feld2' = 'OnOff'",
                                     "Spalte 'Feld3' = 'CheckInOut'",
                                     "Spalte 'Feld4' = '1'",
                                     "",
                                     "Nach Änderung muss Quelvarn neu gestartet werden.",
                                 }));
}

void ObereLeiste::drucker(bool /*an*/)
{
    if (druckerdialog)
        druckerdialog();
}

} // namespace quelvarn
