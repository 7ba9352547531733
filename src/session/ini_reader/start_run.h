#pragma once

#include "platform/ports.h"
#include "session/ini_reader/ini_rows.h"
#include "session/session_state.h"

#include <string_view>

namespace quelvarn {

// One run of Hauptprogramm: what its steps share. `abschnitt` is the step that an error report names.
struct Startlauf
{
    SessionState& session;
    Ports& ports;
    std::string_view& abschnitt;
    IniZeilen ini;
};

// Each reads the rows of its group into the session and adds or mends what is missing or wrong.
void leseBerechtigung(Startlauf& lauf, Recordset& zeilen);

void leseBezeichnungen(Startlauf& lauf);
void leseSuchtexte(Startlauf& lauf);
void leseSondertabellen(Startlauf& lauf);

void lesePlotPfad(Startlauf& lauf);
void leseOfflineTool(Startlauf& lauf);
void lesePlotDrucker(Startlauf& lauf);
void lesePdfDrucker(Startlauf& lauf);

void leseCheckInOut(Startlauf& lauf);
void leseForward(Startlauf& lauf);
void leseNachricht(Startlauf& lauf);
void leseActiveQuelvarn(Startlauf& lauf);
void leseZeitintervall(Startlauf& lauf);
void setzeZeitintervall(SessionState& session, int millisekunden);
void leseStarttabelle(Startlauf& lauf);
void leseTreeview(Startlauf& lauf);

void leseOfflineDaten(Startlauf& lauf);
void leseZipDaten(Startlauf& lauf);
void lesePlotVorgabe(Startlauf& lauf);
void lesePdfVorgabe(Startlauf& lauf);
void leseGespeicherteFilter(Startlauf& lauf);

} // namespace quelvarn
