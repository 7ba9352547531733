#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/drives.h"
#include "platform/environment.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class Dateien;

class WindowsUhr : public Uhr
{
public:
    Zeitpunkt jetzt() const override;
};

// Names are cut at 25 characters, as they stand in the tables.
class WindowsUmgebung : public Umgebung
{
public:
    std::string rechnername() const override;
    std::string anwendername() const override;
    Systemversion systemversion() const override;
    std::string systemlaufwerk() const override;
};

// The drives that there are, and those remembered ones whose share is out of reach at the moment. No drive is
// asked itself, so a dead one delays nothing.
class WindowsLaufwerke : public Laufwerke
{
public:
    std::vector<Laufwerk> liste() const override;
};

// Hands a file or folder to the shell, which says nothing when it cannot do it.
class WindowsStandardanwendung : public Standardanwendung
{
public:
    explicit WindowsStandardanwendung(const Dateien& dateien) : dateien_(dateien) {}
    bool oeffne(std::string_view pfad) override;

private:
    const Dateien& dateien_;
};

// The name as it stands in the tables.
std::string gekuerzterName(std::wstring_view name);

} // namespace quelvarn
