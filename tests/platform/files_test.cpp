#include "base/runtime_error.h"
#include "fakes/fake_ports.h"
#include "platform/file_rules.h"

using namespace quelvarn;

namespace {

struct ImSpeicher : DateienWelt
{
    FakeUhr uhr;
    FakeDateien eigene{uhr};
    Dateien& dateien() override { return eigene; }
};

std::string namen(const std::vector<Ordnereintrag>& inhalt)
{
    std::string result;
    for (const Ordnereintrag& eintrag : inhalt)
        result += eintrag.ordner ? "[" + eintrag.name + "]" : "<" + eintrag.name + ">";
    return result;
}

} // namespace

TEST_P(DateienRegeln, PathsAreBlindToCase)
{
    dateien_.ordnerAnlegen("W:\\Bögen");
    dateien_.schreibe("W:\\Bögen\\Welle.PAR", "1");
    EXPECT_TRUE(dateien_.dateiVorhanden("w:\\BÖGEN\\welle.par"));
    EXPECT_TRUE(dateien_.ordnerVorhanden("w:/bögen/"));
    EXPECT_TRUE(dateien_.ordnerVorhanden("W:"));
    EXPECT_TRUE(dateien_.ordnerVorhanden("W:\\"));
    EXPECT_FALSE(dateien_.dateiVorhanden("W:\\Bögen"));
    EXPECT_FALSE(dateien_.ordnerVorhanden("W:\\Bögen\\Welle.PAR"));
    EXPECT_FALSE(dateien_.ordnerVorhanden("Q:"));
    EXPECT_FALSE(dateien_.dateiVorhanden(""));

    dateien_.schreibe("W:\\BÖGEN\\WELLE.par", "zwei");
    EXPECT_EQ(namen(dateien_.inhalt("w:\\bögen")), "<Welle.PAR>");
    EXPECT_EQ(dateien_.lese("W:\\Bögen\\Welle.PAR"), "zwei");
}

TEST_P(DateienRegeln, ListsByName)
{
    for (const char* ordner : {"C:\\b", "C:\\Ärger"})
        dateien_.ordnerAnlegen(ordner);
    for (const char* datei : {"C:\\c.txt", "C:\\Alt.txt", "C:\\b\\tief.txt"})
        dateien_.schreibe(datei, "");
    EXPECT_EQ(namen(dateien_.inhalt("C:\\")), "<Alt.txt>[Ärger][b]<c.txt>");
    EXPECT_THROW(dateien_.inhalt("C:\\fehlt"), Laufzeitfehler);
    EXPECT_THROW(dateien_.inhalt("Q:\\"), Laufzeitfehler);
}

TEST_P(DateienRegeln, WriteProtectionHoldsAgainstEveryChange)
{
    const std::string pfad = "W:\\x.par";
    dateien_.schreibe(pfad, "alt");
    dateien_.setzeSchreibschutz("w:\\X.PAR", true);
    EXPECT_TRUE(dateien_.attribute(pfad)->schreibgeschuetzt);
    EXPECT_THROW(dateien_.schreibe(pfad, "neu"), Laufzeitfehler);
    EXPECT_THROW(dateien_.kopiere(pfad, pfad), Laufzeitfehler);
    EXPECT_THROW(dateien_.loesche(pfad), Laufzeitfehler);
    EXPECT_EQ(dateien_.lese(pfad), "alt");

    dateien_.setzeSchreibschutz(pfad, false);
    EXPECT_FALSE(dateien_.attribute(pfad)->schreibgeschuetzt);
    dateien_.schreibe(pfad, "neu");
    EXPECT_EQ(dateien_.attribute(pfad)->groesse, 3);
    dateien_.kopiere(pfad, "W:\\Kopie.par");
    dateien_.loesche(pfad);
    EXPECT_FALSE(dateien_.dateiVorhanden(pfad));
    EXPECT_EQ(dateien_.lese("W:\\kopie.par"), "neu");
}

TEST_P(DateienRegeln, WhatCannotBeDoneIsAFault)
{
    dateien_.ordnerAnlegen("W:\\Ordner");
    EXPECT_THROW(dateien_.lese("W:\\fehlt.par"), Laufzeitfehler);
    EXPECT_THROW(dateien_.loesche("W:\\fehlt.par"), Laufzeitfehler);
    EXPECT_THROW(dateien_.loesche("W:\\Ordner"), Laufzeitfehler);
    EXPECT_THROW(dateien_.schreibe("W:\\fehlt\\x.par", ""), Laufzeitfehler);
    EXPECT_THROW(dateien_.schreibe("W:\\Ordner", ""), Laufzeitfehler);
    EXPECT_THROW(dateien_.schreibe("Q:\\x.par", ""), Laufzeitfehler);
    EXPECT_THROW(dateien_.kopiere("W:\\fehlt.par", "W:\\x.par"), Laufzeitfehler);
    EXPECT_THROW(dateien_.ordnerAnlegen("W:\\ORDNER"), Laufzeitfehler);
    EXPECT_THROW(dateien_.ordnerAnlegen("W:\\fehlt\\tiefer"), Laufzeitfehler);
    EXPECT_THROW(dateien_.setzeSchreibschutz("W:\\fehlt.par", true), Laufzeitfehler);
    EXPECT_FALSE(dateien_.attribute("W:\\fehlt.par"));
    try {
        dateien_.lese("W:\\fehlt.par");
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_EQ(fehler.nummer(), 53);
        EXPECT_EQ(fehler.beschreibung(), "Datei oder Ordner nicht gefunden: W:\\fehlt.par");
    }
}

INSTANTIATE_TEST_SUITE_P(ImSpeicher, DateienRegeln, testing::Values([] { return std::make_unique<ImSpeicher>(); }));
