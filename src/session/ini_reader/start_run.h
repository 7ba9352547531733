#pragma once

#include "platform/ports.h"
#include "platform/printers.h"
#include "session/ini_reader/ini_rows.h"
#include "session/session_state.h"

#include <optional>
#include <string_view>

namespace quelvarn {

// One run of Hauptprogramm: what its steps share. `section` is the step that an error report names.
struct StartRun
{
    SessionState& session;
    Ports& ports;
    std::string_view& section;
    IniRows ini;
    bool newUser = false;
    // Asked only when a row leaves it to the printer, and once: it may take its time.
    std::optional<std::optional<DefaultPrinter>> defaultPrinter;
};

// The whole run over the register on the session's connection. False when there is none.
bool readRegister(StartRun& run);

// Greets a new user; then the rights count.
void applyRights(StartRun& run);

// Each reads the rows of its group into the session and adds or mends what is missing or wrong. It may run twice: the
// second time in a transaction, where others cannot write these rows. So it shows no box where it writes.
void readRights(StartRun& run);

void readLabels(StartRun& run);
void readSearchTexts(StartRun& run);
void readSpecialTables(StartRun& run);

void readPlotPfad(StartRun& run);
void readOfflineTool(StartRun& run);
void readPlotDrucker(StartRun& run);
void readPdfDrucker(StartRun& run);

void readCheckInOut(StartRun& run);
void readForward(StartRun& run);
void readMessageSwitches(StartRun& run);
void readActiveQuelvarn(StartRun& run);
void readZeitintervall(StartRun& run);
void setZeitintervall(SessionState& session, int milliseconds);
void readStarttabelle(StartRun& run);
void readTreeview(StartRun& run);

void readOfflineData(StartRun& run);
void readZipData(StartRun& run);
void readPlotDefaults(StartRun& run);
void readPdfDefaults(StartRun& run);
void readSavedFilters(StartRun& run);

} // namespace quelvarn
