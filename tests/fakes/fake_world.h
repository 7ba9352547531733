#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/drives.h"
#include "platform/environment.h"
#include "platform/printers.h"
#include "platform/progress.h"
#include "platform/running_programs.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quelvarn {

// A clock that stands until the test moves it.
class FakeUhr : public Uhr
{
public:
    Zeitpunkt jetzt() const override { return zeit; }
    void vor(std::int64_t sekunden) { zeit = zeit.plusSekunden(sekunden); }

    Zeitpunkt zeit = Zeitpunkt::aus({2004, 3, 1, 8, 30, 0});
};

class FakeUmgebung : public Umgebung
{
public:
    std::string rechnername() const override { return rechner; }
    std::string anwendername() const override { return anwender; }
    Systemversion systemversion() const override { return version; }
    std::string systemlaufwerk() const override { return laufwerk; }

    std::string rechner = "CAD-PC-7";
    std::string anwender = "mueller";
    Systemversion version = {"6", "2", 2};
    std::string laufwerk = "C:";
};

class FakeLaufwerke : public Laufwerke
{
public:
    std::vector<Laufwerk> liste() const override { return laufwerke; }

    std::vector<Laufwerk> laufwerke = {{"C:", ""}, {"W:", "\\\\server\\konstruktion"}};
};

class FakeDrucker : public Drucker
{
public:
    std::vector<std::string> namen() const override { return drucker; }
    std::optional<Standarddrucker> standard() const override { return standarddrucker; }

    std::vector<std::string> drucker = {"Plotter A0", "Buero"};
    std::optional<Standarddrucker> standarddrucker = Standarddrucker{"Buero"};
};

class FakeProgramme : public LaufendeProgramme
{
public:
    std::vector<std::string> fenstertitel() const override
    {
        std::vector<std::string> alle = andere;
        if (!eigener.empty())
            alle.push_back(eigener);
        return alle;
    }
    void eigenerTitel(std::string_view titel) override { eigener = titel; }

    std::vector<std::string> andere;
    std::string eigener;
};

class FakeZwischenablage : public Zwischenablage
{
public:
    std::string text() const override { return inhalt; }
    void setzeText(std::string_view text) override { inhalt = text; }

    std::string inhalt;
};

// Notes what would have been opened.
class FakeStandardanwendung : public Standardanwendung
{
public:
    bool oeffne(std::string_view pfad) override
    {
        geoeffnet.emplace_back(pfad);
        return startetEtwas;
    }

    std::vector<std::string> geoeffnet;
    bool startetEtwas = true;
};

// Gives work up at its next step once it has lost patience.
class FakeFortschritt final : public Fortschrittsanzeige
{
public:
    void beginne(std::string_view) override { ++begonnen; }
    bool schritt(std::size_t, std::size_t) override { return geduld; }
    void beende() override { ++beendet; }

    bool geduld = true;
    int begonnen = 0;
    int beendet = 0;
};

} // namespace quelvarn
