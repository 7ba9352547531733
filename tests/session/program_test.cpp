#include "base/text.h"
#include "fakes/fake_ports.h"
#include "session/error_report.h"
#include "session/local_settings.h"
#include "session/program.h"

#include <gmock/gmock.h>

namespace quelvarn {

class Program : public ::testing::Test
{
protected:
    FakePorts world;
    Ports ports = world.ports();
    SessionState session;
};

TEST_F(Program, StartKnowsWhoAndWhereAndMakesItsFolders)
{
    world.umgebung.anwender = "ein-viel-zu-langer-anwendername";
    world.umgebung.laufwerk = "W:";
    Main(session, ports);
    EXPECT_EQ(session.user.Anwender, "ein-viel-zu-langer-anwend");
    EXPECT_EQ(session.user.FensterHoehe, 10090);
    EXPECT_FALSE(session.database.DatenbankOk);
    EXPECT_EQ(session.folders.OrdnerOfflineVersand, "W:\\Dokumente und Einstellungen Quelvarnis\\Offline_Versand");
    for (const char* name : {"SolidEdge_Dokumente", "Protokoll_Prio", "Datenbank_Pfad", "Offline_Versand"})
        EXPECT_TRUE(world.dateien.ordnerVorhanden(session.folders.OrdnerBasis + "\\" + name)) << name;

    world.umgebung.version = {"5", "1", 2};
    Main(session, ports); // The folders are there already.
    EXPECT_EQ(session.user.FensterHoehe, 10150);
}

TEST_F(Program, AFolderThatCannotBeMadeIsReported)
{
    world.dateien.sperre("C:\\Dokumente und Einstellungen Quelvarnis\\Protokoll_Prio");
    world.meldungen.erwarte("Aufruf Hauptprogramm",
                            "Fehler beim Aufruf Hauptprogramm!\nMögliche Ursache:\n"
                            "- Keine Schreibberechtigung auf die Verzeichnisse von Quelvarnis.");
    world.meldungen.antworte(Antwort::Ok);
    Main(session, ports);
    EXPECT_FALSE(session.database.DatenbankOk);
    EXPECT_EQ(session.database.DatenbankPfad, "");
}

TEST_F(Program, ErrorReportEndsTheProgramOnCancel)
{
    const Laufzeitfehler fehler(3021, "Treiber", "Keine Zeile.");
    const std::string text = "Fehler Nr. 3021 wurde erzeugt durch \nTreiber\nKeine Zeile.\n\n"
                             "Es wird empfohlen das Programm abzubrechen!\n\n"
                             "OK =               Programm fortsetzen\nAbbrechen =   Programm beenden";
    world.meldungen.erwarte("Schritt", "Fehler beim Schritt!");
    world.meldungen.erwarte("Fehlermeldung", text);
    EXPECT_FALSE(gesichert(world.meldungen, "Schritt", "Fehler beim Schritt!", [&] { throw fehler; }));
    EXPECT_EQ(world.meldungen.letzte().symbol, Symbol::Kritisch);

    world.meldungen.antworte();
    world.meldungen.antworte(Antwort::Abbrechen);
    EXPECT_THROW(gesichert(world.meldungen, "a", "b", [] { throw std::runtime_error("x"); }), ProgrammEnde);
    EXPECT_THAT(world.meldungen.letzte().text, testing::StartsWith("Fehler Nr. 0 wurde erzeugt durch \nQuelvarn\nx"));
}

TEST_F(Program, FindsCopiesAndSiblingsByTheirCaptions)
{
    const auto kopien = [this](std::vector<std::string> titel) {
        world.programme.andere = std::move(titel);
        return CheckAlreadyRunning(ports);
    };
    EXPECT_TRUE(kopien({"Editor"}));
    EXPECT_TRUE(kopien({"    Quelvarn Version 2.0.0", "quelvarn version 2", "Quelvarn Version 3.0"}));
    world.meldungen.erwarte("'Quelvarn' ist bereits gestartet",
                            "'Quelvarn' ist bereits gestartet!\n\nMöchten Sie 'Quelvarn' erneut öffnen?.",
                            Antwort::Nein);
    EXPECT_FALSE(kopien({"x Quelvarn Version 2.0.0", "Quelvarn Version 2"}));
    world.meldungen.antworte(Antwort::Ja);
    EXPECT_TRUE(kopien({"Quelvarn Version 2", "Quelvarn Version 2", "Quelvarn Version 2"}));
    EXPECT_FALSE(CheckSiblingsRunning(ports));

    world.programme.andere = {"Talvik Version 2.1", "Harvel Version 2.0"};
    world.meldungen.erwarte("'Talvik' ist gestartet", "'Talvik' ist gestartet!\n\nVor dem Wechsel der Datenbank muss "
                                                      "'Talvik' beendet werden.");
    EXPECT_TRUE(CheckSiblingsRunning(ports));
    EXPECT_TRUE(IsHarvelRunning(ports));
}

TEST_F(Program, LastDatabaseIsTheLastLineOfTheLocalFile)
{
    session.folders.OrdnerDatenbankPfad = "C:";
    world.dateien.legeAn("W:\\Übersicht\\werk.mdb");
    world.dateien.legeAn("W:\\Übersicht\\GROSS.MDB");
    const struct
    {
        std::string inhalt, pfad;
    } faelle[] = {
        {"W:\\\xDC"
         "bersicht\\werk.mdb",
         "W:\\Übersicht\\werk.mdb"},
        {"W:\\alt.mdb\r\nW:\\\xDC"
         "bersicht\\werk.mdb\r\n",
         "W:\\Übersicht\\werk.mdb"},
        {"W:\\\xDC"
         "bersicht\\GROSS.MDB\r\n",
         ""},
        {"W:\\fehlt.mdb\r\n", ""},
        {"", ""},
        {"W:\\Übersicht\\werk.mdb\r\n", "W:\\Übersicht\\werk.mdb"}, // Saved as UTF-8 by an editor.
        {"\xEF\xBB\xBFW:\\Übersicht\\werk.mdb", "W:\\Übersicht\\werk.mdb"},
    };
    EXPECT_EQ(LeseDatenbankPfad(session, ports), "");
    for (const auto& fall : faelle) {
        world.dateien.legeAn("C:\\Quelvarnis.ini", fall.inhalt);
        EXPECT_EQ(LeseDatenbankPfad(session, ports), fall.pfad) << fall.inhalt;
    }
    // In the code page of older programs where it can hold the path, and never in a way that reads as another one.
    for (const std::string pfad : {"W:\\Übersicht\\werk.mdb", "W:\\Łódź\\Ωмега\\werk.mdb", "W:\\Ã¼\\werk.mdb"}) {
        world.dateien.legeAn(pfad, "");
        EXPECT_TRUE(SchreibeDatenbankPfad(session, ports, pfad));
        EXPECT_EQ(LeseDatenbankPfad(session, ports), pfad);
    }
    EXPECT_TRUE(SchreibeDatenbankPfad(session, ports, "W:\\Übersicht\\werk.mdb"));
    EXPECT_EQ(world.dateien.lese("C:\\Quelvarnis.ini"), "W:\\\xDC"
                                                        "bersicht\\werk.mdb\r\n");
    world.dateien.sperre("C:\\Quelvarnis.ini");
    EXPECT_FALSE(SchreibeDatenbankPfad(session, ports, "W:\\x.mdb"));
}

TEST_F(Program, NetworkPathsBecomeDrivePathsWhereTheShareIsMapped)
{
    const struct
    {
        std::string von, nach;
    } faelle[] = {
        {"\\\\server\\konstruktion\\a\\b.par", "W:\\a\\b.par"},
        {"\\\\SERVER\\Konstruktion\\b.par", "W:\\b.par"},
        {"\\\\server\\konstruktion", "W:"},
        {"C:\\a.par", "C:\\a.par"},
    };
    for (const auto& fall : faelle) {
        std::string pfad = fall.von;
        UniversalNachLaufwerk(pfad, ports);
        EXPECT_EQ(pfad, fall.nach);
    }
    world.meldungen.erwarte("Universalname nach Laufwerksnamen",
                            "Dem Universal-Laufwerksnamen:\n\\\\server\\konstruktion2\nkonnte kein lokales Laufwerk "
                            "zugeordent werden!\nDie Umsetzung wird beendet.\nDas Ergebnis ist unvollständig.");
    std::string fremd = "\\\\server\\konstruktion2\\a.par";
    UniversalNachLaufwerk(fremd, ports);
    EXPECT_EQ(fremd, "\\\\server\\konstruktion2\\a.par");
}

TEST_F(Program, FileInformationComesByTypeAndAttributes)
{
    EXPECT_EQ(DateiTyp("W:\\x.PAR", world.meldungen), 1);
    world.meldungen.erwarte("File-Endung", "File-Endung txt ist nicht zulässig!");
    EXPECT_EQ(DateiTyp("W:\\x.TXT", world.meldungen), 0);

    world.dateien.legeAn("W:\\a\\x.par", "12345");
    world.dateien.setzeSchreibschutz("W:\\a\\x.par", true);
    const DateiInfo info = LeseDateiinfo("W:\\a\\x.par", ports);
    EXPECT_TRUE(info.vorhanden && info.attribute.schreibgeschuetzt);
    EXPECT_EQ(info.attribute.groesse, 5);
    EXPECT_EQ(info.Ordner + "|" + info.Name, "W:\\a|x.par");
    EXPECT_FALSE(LeseDateiinfo("W:\\a\\y.par", ports).vorhanden);
}

} // namespace quelvarn
