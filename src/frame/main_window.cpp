#include "frame/main_window.h"

#include "base/number_format.h"
#include "base/text.h"
#include "database/document_types.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/running_programs.h"
#include "session/error_report.h"
#include "session/program.h"

#include <fmt/format.h>
#include <utility>

namespace quelvarn {

namespace {

constexpr std::size_t ANZAHL_DATEITYPEN = 5; // The types with a stamp, which the status bar watches.

constexpr std::array<Werkzeugknopf, ANZAHL_WERKZEUGE> KNOEPFE{{
    {"Bearbeiten", "Bearbeiten mit Solid Edge"},
    {"Einfügen Baugr.", "Einfügen in Baugruppe"},
    {"Plazieren Zchn.", "Plazieren auf Zeichnung"},
    {"SmartViewer", "Anschauen des aktuellen SE-Dokuments"},
    {"Extras", "Extras"},
    {"Weiterleiten", "Weiterleiten Doku. an Anwender im lokalen Netz"},
    {"Nachrichten....", "Nachrichten von Anwendern im lokalen Netz"},
    {"Beenden", ""},
}};

std::string sekundentext(int millisekunden)
{
    return formatSekunden(millisekunden / 1000.0);
}

} // namespace

std::string benachrichtigungstext(const SessionState& session)
{
    if (session.use.Zeitintervall > 0 && session.use.ForwardOn)
        return "Innerhalb " + sekundentext(session.use.Zeitintervall) + " Sek. benachrichtigen Ja/Nein.";
    return "Zeitintervall = 0. Es erfogt keine Benachrichtigung.";
}

MainWindow::MainWindow(SessionState& session, Operations& operations, SolidEdgeInfo solidEdge)
    : session_(session), operations_(operations), ports_(operations.ports()), solidEdge_(std::move(solidEdge)),
      knoepfe_(KNOEPFE)
{}

void MainWindow::setzeAktion(Werkzeug knopf, std::function<void()> aktion)
{
    aktionen_[static_cast<std::size_t>(knopf)] = std::move(aktion);
}

bool MainWindow::hatAktion(Werkzeug knopf) const
{
    if (knopf == Werkzeug::Beenden)
        return true;
    // The box that forwarding is off is an answer as well.
    if (!session_.use.ForwardOn && (knopf == Werkzeug::Weiterleiten || knopf == Werkzeug::Nachrichten))
        return true;
    return static_cast<bool>(aktionen_[static_cast<std::size_t>(knopf)]);
}

bool MainWindow::laden()
{
    const std::string text = zeilen({
        "Fehler beim Laden der 'MDI-Form'!",
        "",
        "Mögliche Ursache:",
        "- Sytemvoraussetzungen fehlen",
        "- Der Solid Edge Viewer ist nicht installiert",
        "",
        "Hinweis:",
        "Er ist im Setup im Ordner 'Viewer' als SetupSEV.exe enthalten.",
        "",
        "Das Programm wird beendet.",
    });
    bool weiter = true;
    const bool geladen = operations_.perform(Part::Frame, "Fehler beim Laden der 'MDI-Form'!", text, [&] {
        stelleWerkzeugeEin();
        RefreshStatusBar();
        oeffneErsteSeite();
        setzeTitel(session_.database.DatenbankPfad);
        stelleZeitgeberEin();
        weiter = CheckAlreadyRunning(ports_);
    });
    if (!geladen || !weiter)
        entladen();
    return geladen && weiter;
}

void MainWindow::oeffneErsteSeite()
{
    if (!session_.database.DatenbankOk)
        session_.database.DatenbankPfad.clear();
    zeigeSeite(session_.database.DatenbankOk ? Seite::Dokumente : Seite::Start);
}

void MainWindow::zuSeite(Seite ziel)
{
    if (ziel != Seite::Start && session_.database.DatenbankPfad.empty()) {
        ports_.meldungen.warnung("Auswahl Datenbank", "Es ist keine Datenbank ausgewählt!");
        return;
    }
    if (ziel == Seite::Start)
        melde([](Rahmenteilnehmer& teilnehmer) { teilnehmer.zuruecksetzen(); });
    else if (ziel == seite_)
        return;
    zeigeSeite(ziel);
}

void MainWindow::zeigeSeite(Seite ziel)
{
    seite_ = ziel;
    melde([ziel](Rahmenteilnehmer& teilnehmer) { teilnehmer.seiteGezeigt(ziel); });
    operations_.changed(Part::Frame);
}

bool MainWindow::forwardAn(std::string_view titel, std::string_view ersteZeile)
{
    if (session_.use.ForwardOn)
        return true;
    ports_.meldungen.warnung(titel, zeilen({
                                        ersteZeile,
                                        "Ini-Tabelle der Datenbank auf '0' gesetzt ist oder fehlt!",
                                        "Eintrag muss lauten:",
                                        "Spalte 'Feld1' = '!QV_Ini'",
                                        "Spalte 'Feld2' = 'OnOff'",
                                        "Spalte 'Feld3' = 'Forward'",
                                        "Spalte 'Feld4' = '1'",
                                        "Nach Änderung muss Quelvarn neu gestartet werden.",
                                    }));
    return false;
}

void MainWindow::werkzeugGewaehlt(Werkzeug knopf)
{
    operations_.perform(Part::Frame, "Toolbar MDI-Form", "Fehler bei Toolbar MDI-Form!", [&] {
        if (knopf == Werkzeug::Beenden)
            return entladen();
        if (knopf == Werkzeug::Weiterleiten &&
            !forwardAn("Weiterleiten der Dokumente", "Kein Weiterleiten der Dokumente, da 'Forward' in der"))
            return;
        if (knopf == Werkzeug::Nachrichten &&
            !forwardAn("Erfassen der Nachrichten", "Die Nachrichten werden nicht registriert, da 'Forward' in der"))
            return;
        if (const auto& aktion = aktionen_[static_cast<std::size_t>(knopf)])
            aktion();
    });
}

void MainWindow::edit()
{
    if (knopf(Werkzeug::Bearbeiten).sichtbar && hatAktion(Werkzeug::Bearbeiten))
        werkzeugGewaehlt(Werkzeug::Bearbeiten);
}

void MainWindow::tickDBUpdate()
{
    if (watchDatabase && !session_.database.DatenbankPfad.empty())
        watchDatabase();
    operations_.changed(Part::Frame);
}

// The settings of the session belong into the file that the next start opens.
void MainWindow::reachReplacedFile()
{
    if (session_.database.Verbindung.fileState() != FileState::Replaced)
        return;
    try {
        session_.database.Verbindung.Open(ports_.dateien.systempfad(session_.database.DatenbankPfad));
    } catch (const Laufzeitfehler&) {
        return; // The pages tell that they cannot write.
    }
}

void MainWindow::entladen()
{
    if (std::exchange(entladen_, true))
        return;
    timerDBUpdate_ = timerCheckInOut_ = timerWorkflow_ = {};
    reachReplacedFile();
    melde([](Rahmenteilnehmer& teilnehmer) { teilnehmer.entladen(); });
    session_.use.CheckInOut = Recordset();
    session_.database.Verbindung.Close();
    if (beendet)
        beendet();
}

void MainWindow::setzeTitel(std::string_view datenbankPfad)
{
    titel_ = std::string(datenbankPfad) + versionstext();
    ports_.programme.eigenerTitel(titel_);
    operations_.changed(Part::Frame);
}

void MainWindow::RefreshStatusBar()
{
    statuspanel_ = {"Änderung DB (" + sekundentext(session_.use.Zeitintervall) + " Sek-Takt):"};
    if (session_.use.Zeitintervall <= 0)
        statuspanel_.emplace_back("Keine laufende Überprüfung der Datenbank (siehe Ini-Tabelle 'Timeinterval').");
    for (std::size_t tab = 0; session_.use.Zeitintervall > 0 && tab < ANZAHL_DATEITYPEN; ++tab) {
        statuspanel_.emplace_back(DOKUTYPEN[tab].einzahl);
        statuspanel_.emplace_back();
    }
    operations_.changed(Part::Frame);
}

void MainWindow::stelleWerkzeugeEin()
{
    if (solidEdge_.nurViewer() || !session_.rights.darfBearbeiten())
        session_.pages.ActiveQuelvarn = false;
    const bool bearbeiten = !solidEdge_.nurViewer() && session_.rights.darfBearbeiten();

    const auto zeige = [this](Werkzeug knopf, bool sichtbar) {
        knoepfe_[static_cast<std::size_t>(knopf)].sichtbar = sichtbar;
    };
    zeige(Werkzeug::Bearbeiten, bearbeiten);
    zeige(Werkzeug::EinfuegenBaugr, bearbeiten && session_.pages.ActiveQuelvarn);
    zeige(Werkzeug::PlazierenZchn, bearbeiten && session_.pages.ActiveQuelvarn);
    if (bearbeiten)
        knoepfe_[static_cast<std::size_t>(Werkzeug::Bearbeiten)].tooltip =
            session_.pages.ActiveQuelvarn ? "Bearbeiten mit SE, Ereignisse sind aktiv!" : "Bearbeiten mit SE";
    for (const Werkzeug knopf : {Werkzeug::Extras, Werkzeug::Weiterleiten, Werkzeug::Nachrichten})
        zeige(knopf, session_.use.ForwardOn);
    operations_.changed(Part::Frame);
}

void MainWindow::stelleZeitgeberEin()
{
    const int intervall = session_.use.Zeitintervall;
    const auto zeitgeber = [intervall](bool an) { return an ? Zeitgeber{true, intervall} : Zeitgeber{}; };
    timerDBUpdate_ = zeitgeber(intervall > 0);
    timerCheckInOut_ = zeitgeber(intervall > 0 && session_.use.CheckInOutOn);
    timerWorkflow_ = zeitgeber(intervall > 0 && session_.use.ForwardOn);
    operations_.changed(Part::Frame);
}

void MainWindow::melde(const std::function<void(Rahmenteilnehmer&)>& ereignis)
{
    for (Rahmenteilnehmer* teilnehmer : teilnehmer_)
        ereignis(*teilnehmer);
}

} // namespace quelvarn
