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

void tellNoFavourite(Boxes& boxes)
{
    boxes.warn("Favoriten", lines({
                                "Der Eintrag bei Favoriten konnte",
                                "nicht erfolgreich durchgeführt werden!",
                                "Mögliche Ursache:",
                                "- Datei ist in der Tabelle nicht vorhanden.",
                                "- Es ist ein <Neuaufbau> erforderlich.",
                                "- Falscher Pfad-/Dateiname.",
                            }));
}

void tellSpecialTable(Boxes& boxes)
{
    boxes.warn(
        "Bearbeiten der Dokumente in den Sondertabellen",
        lines({
            "Für die Bearbeitung der Dokumente in den Sondertabellen ist eine besondere Arbeitsweise erfoderlich!",
            "Der Doppelklick zum Öffnen der Solid Edge-Datei wird daher an dieser Stelle nicht unterstützt.",
            "Wenden Sie sich an ihren Systemadministrator für Quelvarnis.",
        }));
}

} // namespace

void RelationActions::addToFavourites()
{
    page_.perform([&] {
        if (!page_.usable())
            return;
        const auto document = findDocument(connection_, *page_.type(), page_.filename());
        if (!document)
            return tellNoFavourite(ports_.boxes);
        favourites_.FavoritHinzufuegen(document->DokuBez, document->RevBez, page_.type()->key, page_.filename());
    });
}

void RelationActions::goToTable()
{
    page_.perform([&] {
        if (page_.usable() && !fileMissing())
            jump();
    });
}

void RelationActions::open()
{
    page_.perform([&] {
        if (fileMissing())
            return;
        if (page_.kind()->page == InfoPageId::ConsistsOf && page_.SondertabelleNr() != 0)
            return tellSpecialTable(ports_.boxes);
        if (page_.usable() && jump())
            frame_.edit();
    });
}

bool RelationActions::fileMissing()
{
    if (ports_.files.fileExists(page_.filename()))
        return false;
    tellFileMissing(ports_.boxes, page_.filename());
    return true;
}

// The page is emptied on the way.
bool RelationActions::jump()
{
    const std::string filename = page_.filename();
    const DocumentType& type = *page_.type();
    if (page_.kind()->page == InfoPageId::InDrawing)
        return jump_.ZeichnungZeigen(filename);
    return jump_.ZuDokumentWechseln(type, filename);
}

} // namespace quelvarn
