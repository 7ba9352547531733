#pragma once

#include "base/date_time.h"
#include "platform/files.h"

#include <string>

namespace quelvarn {

struct FileInfo
{
    bool exists = false;
    FileAttributes attribute;
    std::string Ordner;
    std::string Name;
};

// The document now shown; Typ 0 when none.
struct CurrentDocument
{
    int Type = 0;
    std::string DokuBez;
    std::string RevBez;
    std::string Dateiname;
    int Status = 0;
    std::string filename;
    DateTime Erstellt;
    DateTime Geaendert;
    std::string Autor;
    std::string Bearbeiter;
    bool operator==(const CurrentDocument&) const = default;
};

} // namespace quelvarn
