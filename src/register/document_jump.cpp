#include "register/document_jump.h"

#include "base/text.h"
#include "database/document_types.h"
#include "documents/row_memory.h"
#include "platform/boxes.h"
#include "register/relation_rows.h"
#include "register/table_tabs.h"
#include "session/local_settings.h"

#include <algorithm>

namespace quelvarn {

bool Dokumentsprung::ZuDokumentWechseln(const DokuTyp& typ, const std::string& filename)
{
    return springe(typ, filename, {HINWEIS_DOKUMENT, "Das Modell ist in der Tabelle nicht vorhanden!", false});
}

bool Dokumentsprung::ZeichnungZeigen(const std::string& filename)
{
    return springe(*std::ranges::find(DOKUTYPEN, std::string_view("Draft"), &DokuTyp::schluessel), filename,
                   {"Die zugehörige Zeichnung kann eventuell nicht angezeigt werden.",
                    "Die Zeichnung ist in der Tabelle nicht vorhanden!", true});
}

void Dokumentsprung::bereiteVor(const DokuTyp& typ, std::string_view hinweis)
{
    const DocumentTable& table = tables_.opened(typ.tab);
    // Intended: of a special table only the plain filter is asked about.
    if (table.state() == TableState::Filtered || (table.state() == TableState::FilterResult && typ.sondertabelle == 0))
        frageNachFilter(typ, hinweis);
}

void Dokumentsprung::frageNachFilter(const DokuTyp& typ, std::string_view hinweis)
{
    const std::string name = session_.mehrzahl(typ.tab);
    if (!ports_.meldungen.frage(
            "Filterung der Tabelle '" + name + "' aufheben?",
            zeilen({"ACHTUNG: Tabelle '" + name + "' ist gefiltert!", hinweis, "Soll der Filter aufgehoben werden?"})))
        return;
    if (tables_.tab() != typ.tab)
        tabs_.goTo(typ.tab);
    tabs_.liftFilter(typ.tab);
}

// Harvel may have met the file by the letter of a drive or by the share behind it.
bool Dokumentsprung::sucheDatei(const DokuTyp& typ, const std::string& filename)
{
    if (moveTo(typ, filename))
        return true;
    std::string withLetter = filename;
    UniversalNachLaufwerk(withLetter, ports_);
    if (withLetter != filename)
        return moveTo(typ, withLetter);
    const std::string withShare = pathOnShare(filename, ports_);
    return !withShare.empty() && moveTo(typ, withShare);
}

bool Dokumentsprung::moveTo(const DokuTyp& typ, const std::string& filename)
{
    Recordset& rows = tables_[typ.tab].visible();
    return std::ranges::any_of(documentsWithPath(session_.database.Verbindung, typ, filename),
                               [&](const Dokumentname& name) {
                                   return stelleAufDatei(rows, {name.DokuBez, name.RevBez, filename, 0});
                               });
}

bool Dokumentsprung::springe(const DokuTyp& typ, const std::string& filename, const Fragen& fragen)
{
    bereiteVor(typ, fragen.hinweis);
    if (sucheDatei(typ, filename)) {
        tabs_.goTo(typ.tab);
        return true;
    }
    const Antwort antwort = ports_.meldungen.zeige(
        {"Neuaufbau der Tabelle durchführen?", zeilen({fragen.fehlt, "Soll ein 'Neuaufbau' durchgeführt werden?"}),
         Symbol::Frage, fragen.abbrechbar ? Knoepfe::JaNeinAbbrechen : Knoepfe::JaNein});
    if (antwort == Antwort::Ja)
        return nachNeuaufbau(typ, filename);
    if (antwort == Antwort::Nein)
        tabs_.goTo(typ.tab);
    return false;
}

bool Dokumentsprung::nachNeuaufbau(const DokuTyp& typ, const std::string& filename)
{
    tabs_.reopen(typ.tab);
    if (sucheDatei(typ, filename)) {
        tabs_.ZeileAktualisieren(typ.tab);
        return true;
    }
    ports_.meldungen.warnung("Suchergebnis", zeilen({
                                                 "Datei ist in der Tabelle nicht vorhanden!",
                                                 "es ist ein <Neuaufbau> erforderlich.",
                                                 "oder",
                                                 "Sie haben keine Zugriffsberechtigung.",
                                             }));
    return false;
}

} // namespace quelvarn
