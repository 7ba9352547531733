#include "database/faults.h"

#include <utility>

namespace quelvarn {
namespace {

std::string_view sentenceOf(FaultKind kind)
{
    switch (kind) {
    case FaultKind::ConnectionLost:
        return "Die Verbindung zur Datenbank ist unterbrochen.";
    case FaultKind::Locked:
        return "Die Datenbank ist durch ein anderes Programm gesperrt.";
    case FaultKind::GivenUp:
        return "Das Warten auf die Datenbank wurde abgebrochen.";
    case FaultKind::FileGone:
        return "Die Datenbank ist nicht mehr vorhanden.";
    case FaultKind::FileReplaced:
        return "Die Datenbank wurde durch eine andere Datei ersetzt.";
    case FaultKind::Damaged:
        return "Die Datenbank ist beschädigt.";
    case FaultKind::DiskFull:
        return "Auf dem Datenträger der Datenbank ist kein Platz mehr.";
    case FaultKind::ReadOnly:
        return "Die Datenbank ist schreibgeschützt.";
    case FaultKind::NoRight:
        return "Für die Datenbank fehlen die nötigen Rechte.";
    case FaultKind::WrongPassword:
        return "Die Anmeldung an der Datenbank wurde abgelehnt.";
    case FaultKind::NoDatabase:
        return "Die angegebene Datenbank gibt es auf dem Server nicht.";
    case FaultKind::Other:
        break;
    }
    return "";
}

std::string describe(FaultKind kind, std::string_view where, std::string_view engineWords)
{
    std::string text;
    for (const std::string_view line : {sentenceOf(kind), where, engineWords}) {
        if (line.empty())
            continue;
        if (!text.empty())
            text += '\n';
        text += line;
    }
    return text;
}

} // namespace

DatabaseFault::DatabaseFault(FaultKind kind, int number, std::string source, std::string_view where,
                             std::string_view engineWords)
    : RuntimeError(number, std::move(source), describe(kind, where, engineWords)), kind_(kind)
{}

} // namespace quelvarn
