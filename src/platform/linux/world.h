#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/drives.h"
#include "platform/environment.h"
#include "platform/linux/drive_folder.h"

#include <string>
#include <utility>

namespace quelvarn {

class Dateien;

class LinuxUhr : public Uhr
{
public:
    Zeitpunkt jetzt() const override;
};

// Names are cut at 25 characters, as they stand in the tables.
class LinuxUmgebung : public Umgebung
{
public:
    std::string rechnername() const override;
    std::string anwendername() const override;
    Systemversion systemversion() const override;
    std::string systemlaufwerk() const override { return "C:"; }
};

class LinuxLaufwerke : public Laufwerke
{
public:
    explicit LinuxLaufwerke(const Laufwerksordner& laufwerke) : laufwerke_(laufwerke) {}
    std::vector<Laufwerk> liste() const override { return laufwerke_.laufwerke(); }

private:
    const Laufwerksordner& laufwerke_;
};

// Hands a file to the desktop's opener, which is left to itself.
class LinuxStandardanwendung : public Standardanwendung
{
public:
    explicit LinuxStandardanwendung(const Dateien& dateien, std::string programm = "xdg-open")
        : dateien_(dateien), programm_(std::move(programm))
    {}
    bool oeffne(std::string_view pfad) override;

private:
    const Dateien& dateien_;
    std::string programm_;
};

} // namespace quelvarn
