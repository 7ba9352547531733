#include "session/database_watch.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "session/session_state.h"

#include <utility>

namespace quelvarn {

namespace {

constexpr std::string_view TITLE = "Datenbank";
constexpr std::string_view REPLACED = "Die Datenbank wurde durch eine andere Datei ersetzt.";

} // namespace

DatabaseWatch::DatabaseWatch(OpenDatabase& database, Ports& ports, std::function<void()> openAgain)
    : database_(database), ports_(ports), openAgain_(std::move(openAgain))
{}

void DatabaseWatch::tick()
{
    const FileState now = database_.connection.fileState();
    if (now == FileState::Replaced)
        return tickReplaced();
    if (now == FileState::Gone && told_ != now)
        ports_.boxes.warn(TITLE, lines({
                                     "Die Datenbank ist nicht mehr vorhanden.",
                                     database_.DatenbankPfad,
                                     "",
                                     "Angezeigt wird, was schon gelesen ist.",
                                     "Sobald die Datei wieder da ist, geht es ohne Neustart weiter.",
                                 }));
    if (now != FileState::Away)
        told_ = now;
}

// The file may still be on its way here: what cannot be opened now is tried again.
void DatabaseWatch::tickReplaced()
{
    try {
        requireRegister();
    } catch (const RuntimeError& fault) {
        if (std::exchange(told_, FileState::Replaced) != FileState::Replaced)
            ports_.boxes.warn(TITLE, lines({REPLACED, database_.DatenbankPfad, "",
                                            "Sie lässt sich nicht öffnen:", fault.description(), "",
                                            "Angezeigt wird, was aus der vorigen gelesen ist."}));
        return;
    }
    openReplacement();
}

bool DatabaseWatch::stillOpen()
{
    if (database_.connection.fileState() != FileState::Replaced) {
        database_.connection.checkFile();
        return true;
    }
    requireRegister();
    openReplacement();
    return false;
}

void DatabaseWatch::requireRegister() const
{
    Connection other;
    other.setPatience(database_.connection.patience());
    other.Open(ports_.files.systemPath(database_.DatenbankPfad));
    Recordset().Open("SELECT * FROM Ini WHERE Feld1 = ''", other);
}

void DatabaseWatch::openReplacement()
{
    told_ = FileState::Same;
    ports_.boxes.tell(TITLE, lines({REPLACED, database_.DatenbankPfad, "", "Sie wird neu geöffnet."}));
    openAgain_();
}

} // namespace quelvarn
