#pragma once

#include "platform/ports.h"
#include "platform/printers.h"
#include "session/ini_reader/ini_rows.h"
#include "session/session_state.h"

#include <optional>
#include <string_view>

namespace quelvarn {

// One run of Hauptprogramm: what its steps share. `abschnitt` is the step that an error report names.
struct Startlauf
{
    SessionState& session;
    Ports& ports;
    std::string_view& abschnitt;
    IniZeilen ini;
    bool newUser = false;
    // Asked only when a row leaves it to the printer, and once: it may take its time.
    std::optional<std::optional<Standarddrucker>> defaultPrinter;
};

// The whole run over the register on the session's connection. False when there is none.
bool readRegister(Startlauf& lauf);

// Greets a new user; then the rights count.
void werteBerechtigungAus(Startlauf& lauf);

// Each reads the rows of its group into the session and adds or mends what is missing or wrong. It may run twice: the
// second time in a transaction, where others cannot write these rows. So it shows no box where it writes.
void leseBerechtigung(Startlauf& lauf);

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
