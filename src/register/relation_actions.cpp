#include "register/relation_actions.h"

#include "base/text.h"
#include "frame/main_window.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "register/document_jump.h"
#include "register/favourites.h"
#include "register/file_boxes.h"
#include "register/relation_kinds.h"
#include "session/session_state.h"

namespace quelvarn {
namespace {

void meldeKeinenFavoriten(Meldungen& meldungen)
{
    meldungen.warnung("Favoriten", zeilen({
                                       "Der Eintrag bei Favoriten konnte",
                                       "nicht erfolgreich durchgeführt werden!",
                                       "Mögliche Ursache:",
                                       "- Datei ist in der Tabelle nicht vorhanden.",
                                       "- Es ist ein <Neuaufbau> erforderlich.",
                                       "- Falscher Pfad-/Dateiname.",
                                   }));
}

void meldeSondertabelle(Meldungen& meldungen)
{
    meldungen.warnung(
        "Bearbeiten der Dokumente in den Sondertabellen",
        zeilen({
            "Für die Bearbeitung der Dokumente in den Sondertabellen ist eine besondere Arbeitsweise erfoderlich!",
            "Der Doppelklick zum Öffnen der Solid Edge-Datei wird daher an dieser Stelle nicht unterstützt.",
            "Wenden Sie sich an ihren Systemadministrator für Quelvarnis.",
        }));
}

} // namespace

void RelationActions::addToFavourites()
{
    page_.perform([&] {
        if (!page_.bedienbar())
            return;
        const auto document = findDokument(session_.database.Verbindung, *page_.type(), page_.filename());
        if (!document)
            return meldeKeinenFavoriten(ports_.meldungen);
        favourites_.FavoritHinzufuegen(document->DokuBez, document->RevBez, page_.type()->schluessel, page_.filename());
    });
}

void RelationActions::goToTable()
{
    page_.perform([&] {
        if (page_.bedienbar() && !fileMissing())
            jump();
    });
}

void RelationActions::open()
{
    page_.perform([&] {
        if (fileMissing())
            return;
        if (page_.art()->seite == InfoSeite::BestehtAus && page_.SondertabelleNr() != 0)
            return meldeSondertabelle(ports_.meldungen);
        if (page_.bedienbar() && jump())
            frame_.edit();
    });
}

bool RelationActions::fileMissing()
{
    if (ports_.dateien.dateiVorhanden(page_.filename()))
        return false;
    meldeDateiFehlt(ports_.meldungen, page_.filename());
    return true;
}

// The page is emptied on the way.
bool RelationActions::jump()
{
    const std::string filename = page_.filename();
    const DokuTyp& type = *page_.type();
    if (page_.art()->seite == InfoSeite::InZeichnung)
        return jump_.ZeichnungZeigen(filename);
    return jump_.ZuDokumentWechseln(type, filename);
}

} // namespace quelvarn
