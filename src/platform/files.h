#pragma once

#include "base/date_time.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

struct Dateiattribute
{
    bool schreibgeschuetzt = false;
    bool versteckt = false;
    bool archiv = false;
    Zeitpunkt erstellt;
    Zeitpunkt geaendert;
    Zeitpunkt zugriff;
    std::int64_t groesse = 0; // bytes
};

struct Ordnereintrag
{
    std::string name;
    bool ordner = false;
};

// Files and folders by their Windows paths. Questions answer quietly; doing what cannot be done
// throws Laufzeitfehler with the system's reason.
class Dateien
{
public:
    virtual ~Dateien() = default;

    virtual bool dateiVorhanden(std::string_view pfad) const = 0;
    virtual bool ordnerVorhanden(std::string_view pfad) const = 0;
    virtual void ordnerAnlegen(std::string_view pfad) = 0;
    // Sorted by name; throws when the folder or its drive cannot be read.
    virtual std::vector<Ordnereintrag> inhalt(std::string_view ordner) const = 0;

    virtual std::optional<Dateiattribute> attribute(std::string_view pfad) const = 0;
    virtual void setzeSchreibschutz(std::string_view pfad, bool gesetzt) = 0;
    virtual void setzeArchiv(std::string_view pfad, bool gesetzt) = 0;

    virtual std::string lese(std::string_view pfad) const = 0;
    // The file appears whole or not at all. A write-protected file is neither written over nor deleted.
    virtual void schreibe(std::string_view pfad, std::string_view inhalt) = 0;
    virtual void kopiere(std::string_view von, std::string_view nach) = 0;
    virtual void loesche(std::string_view pfad) = 0;

    // The path that the operating system takes for this Windows path, whether or not it exists.
    virtual std::filesystem::path systempfad(std::string_view pfad) const = 0;
};

} // namespace quelvarn
