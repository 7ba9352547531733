#pragma once

#include "database/connection.h"
#include "database/document_types.h"
#include "database/recordset.h"
#include "session/current_document.h"
#include "session/order_settings.h"
#include "session/tree_switches.h"

#include <array>
#include <map>
#include <string>
#include <vector>

namespace quelvarn {

// Who works where.
struct SessionUser
{
    std::string Rechner;
    std::string Anwender;
    std::string OsVersionMajor;
    std::string OsVersionMinor;
    int OsPlatform = 0;
    int FensterHoehe = 10090; // twips
};

struct SessionFolders
{
    std::string OrdnerBasis;
    std::string OrdnerSEDokumente;
    std::string OrdnerProtokollPrio;
    std::string OrdnerDatenbankPfad;
    std::string OrdnerOfflineVersand;
};

struct OpenDatabase
{
    std::string DatenbankPfad; // Empty while none is open.
    bool DatenbankOk = false;
    Connection connection;
};

struct Labels
{
    // Property key in lower case ("autor") to the label to show.
    std::map<std::string, std::string, std::less<>> Bezeichnungen;
    std::array<std::string, 3> SondertabelleName{"Sondertabelle1", "Sondertabelle2", "Sondertabelle3"};

    // "Bauteil" or the configured name of a special table.
    std::string singular(int tab) const;
    std::string plural(int tab) const;
};

struct Rights
{
    std::array<int, STATUS_COUNT> Sichtbar{};
    std::array<int, STATUS_COUNT> LoeschRecht{};
    std::string WhereStatus;
    std::string AndStatus;

    bool seesAllStatuses() const { return WhereStatus.empty(); }
    // Editing with the CAD program and taking its events need statuses 0, 1 and 2.
    bool mayEdit() const { return Sichtbar[0] != 0 && Sichtbar[1] != 0 && Sichtbar[2] != 0; }
};

// What colleagues learn of one another, and when.
struct UseSettings
{
    bool CheckInOutOn = false;
    bool ForwardOn = false;
    bool MeldenWeiterleiten = true;
    bool MeldenWorkflow = true;
    int Zeitintervall = 0; // milliseconds
    std::string ZeitintervallText;
    Recordset CheckInOut; // The use registry; open while CheckInOutOn or ForwardOn.
};

// What the pages keep from one session to the next, and which of them were loaded in this one.
struct PageSettings
{
    std::vector<std::string> SearchTexts; // At most eight.
    std::string Starttabelle = "Bauteile";
    bool ActiveQuelvarn = false;
    // Saved filters of a type: fields Filtername and Filterstring.
    std::array<Recordset, DOCUMENT_TYPE_COUNT> GespeicherteFilter;
    bool FormDBGeladen = false;
    bool FormSEDokuGeladen = false;
    bool FormSEFilternGeladen = false;
};

// The one record of a session: who works where, on which database, with which settings.
// Filled at start and rewritten whenever a database is opened.
struct SessionState
{
    SessionUser user;
    SessionFolders folders;
    OpenDatabase database;
    Labels labels;
    Rights rights;
    UseSettings use;
    OrderSettings orders;
    PageSettings pages;
    TreeSwitches Tree;

    CurrentDocument AktDoku;
    FileInfo Dateiinfo;
};

} // namespace quelvarn
