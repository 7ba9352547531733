#pragma once

#include "platform/ports.h"
#include "session/session_state.h"

#include <string>

namespace quelvarn {

// Quelvarnis.ini in OrdnerDatenbankPfad: its last line is the path of the database.
// "" when there is none, the file it names is missing, or the name does not end in ".mdb".
std::string LeseDatenbankPfad(const SessionFolders& folders, const Ports& ports);
bool SchreibeDatenbankPfad(const SessionFolders& folders, const Ports& ports, std::string_view documentPath);

// The document type code; 0 and a warning box for an ending that is none.
int DateiTyp(std::string_view documentPath, Boxes& boxes);
FileInfo LeseDateiinfo(std::string_view documentPath, const Ports& ports);
// "\\server\share\x" becomes "W:\x" where the share is mapped; otherwise a warning box, and the path stays.
void UniversalNachLaufwerk(std::string& documentPath, const Ports& ports);
// The other way round: "W:\x" as "\\server\share\x"; "" where the drive is no mapped share.
std::string pathOnShare(std::string_view path, const Ports& ports);

} // namespace quelvarn
