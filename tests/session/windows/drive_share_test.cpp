#include "base/runtime_error.h"
#include "fakes/fake_ports.h"
#include "platform/windows/files.h"
#include "platform/windows/world.h"
#include "session/local_settings.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace quelvarn;

// scripts/wine_world.sh maps the share.
TEST(WindowsLaufwerke, AShareAndItsLetterAreTheSamePlace)
{
    const std::string freigabe = "\\\\server\\konstruktion";
    FakePorts welt;
    std::vector<Laufwerk>& liste = welt.laufwerke.laufwerke;
    liste = WindowsLaufwerke().liste();
    const auto netz =
        std::find_if(liste.begin(), liste.end(), [&](const auto& one) { return one.freigabe == freigabe; });
    if (netz == liste.end())
        GTEST_SKIP() << "no drive is mapped to " << freigabe;
    EXPECT_EQ(netz->eintrag(), "x: [" + freigabe + "]");
    std::string pfad = "\\\\SERVER\\Konstruktion\\Größe 1\\Welle.par";
    UniversalNachLaufwerk(pfad, welt.ports());
    EXPECT_EQ(pfad, "X:\\Größe 1\\Welle.par");

    WindowsDateien dateien;
    dateien.schreibe(freigabe + "\\Welle ä.par", "1");
    EXPECT_EQ(dateien.lese("X:\\welle Ä.PAR"), "1");
    dateien.setzeSchreibschutz("X:\\Welle ä.par", true);
    EXPECT_THROW(dateien.loesche(freigabe + "\\Welle ä.par"), Laufzeitfehler);
    dateien.setzeSchreibschutz("X:\\Welle ä.par", false);
    dateien.kopiere("//server/konstruktion/Welle ä.par", "X:\\Kopie.par");
    EXPECT_EQ(dateien.inhalt(freigabe).size(), 2U);
    for (const char* name : {"\\Welle ä.par", "\\Kopie.par"})
        dateien.loesche(freigabe + name);
    EXPECT_FALSE(dateien.dateiVorhanden("X:\\Kopie.par"));
    EXPECT_THROW(dateien.lese("\\\\server\\gibt es nicht\\x.par"), Laufzeitfehler);
}
