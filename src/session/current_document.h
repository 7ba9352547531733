#pragma once

#include "base/date_time.h"
#include "platform/files.h"

#include <string>

namespace quelvarn {

struct DateiInfo
{
    bool vorhanden = false;
    Dateiattribute attribute;
    std::string Ordner;
    std::string Name;
};

// The document now shown; Typ 0 when none.
struct AktuellesDokument
{
    int Typ = 0;
    std::string DokuBez;
    std::string RevBez;
    std::string Dateiname;
    int Status = 0;
    std::string filename;
    Zeitpunkt Erstellt;
    Zeitpunkt Geaendert;
    std::string Autor;
    std::string Bearbeiter;
    bool operator==(const AktuellesDokument&) const = default;
};

} // namespace quelvarn
