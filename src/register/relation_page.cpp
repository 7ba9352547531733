#include "register/relation_page.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "database/document_types.h"
#include "documents/document_tables.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "register/document_panels.h"
#include "register/relation_kinds.h"
#include "session/error_report.h"
#include "session/local_settings.h"
#include "viewing/shown_files.h"

namespace quelvarn {

namespace {

void meldeAnderenStatus(Meldungen& meldungen)
{
    meldungen.warnung("Status der Baugruppe", zeilen({
                                                  "ACHTUNG!",
                                                  "Bestandteile der Baugruppe haben einen",
                                                  "anderen Status als die Baugruppe.",
                                              }));
}

void meldeKeinenZugriff(Meldungen& meldungen, std::string_view auf)
{
    meldungen.warnung("Keine Zugriffsberechtigung",
                      zeilen({"ACHTUNG!", "Sie haben " + std::string(auf) + " keine Zugriffsberechtigung."}));
}

void meldeKeineVorschau(Meldungen& meldungen, const std::string& filename)
{
    meldungen.warnung("Anzeigen im Viewer", zeilen({
                                                "Die Datei:",
                                                filename,
                                                "konnte nicht geöffnet werden!",
                                                "Mögliche Ursache:",
                                                "- Falscher Pfad- und/oder Dateiname.",
                                                "- Kein Zugriffsrecht.",
                                            }));
}

} // namespace

Verwendungsseite::Verwendungsseite(SessionState& session, Operations& operations, const DocumentTables& tables,
                                   DocumentPanels& panels, GezeigteDateien& gezeigt)
    : session_(session), operations_(operations), ports_(operations.ports()), gezeigt_(gezeigt), tables_(tables),
      panels_(panels)
{}

void Verwendungsseite::perform(const std::function<void()>& operation)
{
    if (!hatZeilen())
        return;
    operations_.perform(Part::Document, art_->knoten, "Fehler beim Anzeigen der Verwendung!", operation);
}

// --- filling ---------------------------------------------------------------------------------------------------

void Verwendungsseite::fuelle(const Verwendungsart& art)
{
    leere();
    art_ = &art;
    const DokuRecord& record = tables_.current().record();
    std::string pfad = record.filename;
    UniversalNachLaufwerk(pfad, ports_);
    zeilen_ = verwendungszeilen(session_.database.Verbindung, art, record, pfad);
    leseZeile();
}

void Verwendungsseite::leere()
{
    leereVorschau();
    art_ = nullptr;
    zeilen_ = Recordset();
    ++fassung_; // A grid must see that its rows are gone.
    filename_.clear();
    dokument_ = {};
    grafik_ = false;
}

void Verwendungsseite::leseZeile()
{
    dokument_ = {};
    filename_.clear();
    if (!hatZeilen())
        return;
    filename_ = zeilen_.Text(art_->felder.filename);
    dokument_ = dokumentZu(session_.database.Verbindung, *art_, zeilen_);
}

// --- the current row -------------------------------------------------------------------------------------------

void Verwendungsseite::zeileGewaehlt(std::size_t position)
{
    perform([&] {
        if (position >= zeilen_.RecordCount())
            return;
        zeilen_.setzeAbsolutePosition(position);
        leereVorschau();
        leseZeile();
        if (art_->seite == InfoSeite::BestehtAus)
            pruefeBestandteil();
        if (grafik_ && (art_->seite == InfoSeite::BestehtAus || hatZugriff()))
            ladeVorschau();
        panels_.showFile(filename_);
    });
}

// The special tables have no status scope.
bool Verwendungsseite::liegtImStatusbereich() const
{
    return !dokument_.typ || dokument_.SondertabelleNr != 0 ||
           istSichtbar(session_.database.Verbindung, *dokument_.typ, filename_, session_.rights.WhereStatus);
}

// Tells that a component lies outside the statuses of the user, and lets him see it all the same.
void Verwendungsseite::pruefeBestandteil()
{
    if (!liegtImStatusbereich())
        meldeAnderenStatus(ports_.meldungen);
}

bool Verwendungsseite::hatZugriff()
{
    const bool zugriff = liegtImStatusbereich();
    if (!zugriff)
        meldeKeinenZugriff(ports_.meldungen, art_->zugriffAuf);
    return zugriff;
}

// --- preview ---------------------------------------------------------------------------------------------------

bool Verwendungsseite::ladeVorschau()
{
    if (ports_.dateien.dateiVorhanden(filename_) && gezeigt_.zeige(art_->ansicht, filename_))
        return true;
    leereVorschau();
    meldeKeineVorschau(ports_.meldungen, filename_);
    return false;
}

void Verwendungsseite::leereVorschau()
{
    if (zeigtVorschau())
        gezeigt_.leere(art_->ansicht);
}

bool Verwendungsseite::zeigtVorschau() const
{
    return art_ && !gezeigt_.datei(art_->ansicht).empty();
}

void Verwendungsseite::setzeGrafik(bool ChViewGrafik)
{
    grafik_ = ChViewGrafik;
    perform([&] {
        if (!ChViewGrafik)
            leereVorschau();
        else if (art_->seite == InfoSeite::BestehtAus || hatZugriff())
            ladeVorschau();
        panels_.showFile(filename_);
    });
}

void Verwendungsseite::anschauen()
{
    perform([&] {
        if (!bedienbar() || !hatZugriff() || !ladeVorschau())
            return;
        grafik_ = true;
        panels_.showFile(filename_);
    });
}

// --- what can be done with the document ------------------------------------------------------------------------

void Verwendungsseite::pfadInZwSp()
{
    perform([&] {
        if (bedienbar())
            ports_.zwischenablage.setzeText(filename_);
    });
}

} // namespace quelvarn
