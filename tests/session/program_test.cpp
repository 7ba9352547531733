#include "base/text.h"
#include "fakes/fake_ports.h"
#include "session/database_start.h"
#include "session/error_report.h"
#include "session/local_settings.h"
#include "session/program_start.h"
#include "session/sibling_programs.h"

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
    world.environment.user = "ein-viel-zu-langer-anwendername";
    world.environment.drive = "W:";
    Main(session, ports);
    EXPECT_EQ(session.user.Anwender, "ein-viel-zu-langer-anwend");
    EXPECT_EQ(session.user.FensterHoehe, 10090);
    EXPECT_FALSE(session.database.DatenbankOk);
    EXPECT_EQ(session.folders.OrdnerOfflineVersand, "W:\\Dokumente und Einstellungen Quelvarnis\\Offline_Versand");
    for (const char* name : {"SolidEdge_Dokumente", "Protokoll_Prio", "Datenbank_Pfad", "Offline_Versand"})
        EXPECT_TRUE(world.files.folderExists(session.folders.OrdnerBasis + "\\" + name)) << name;

    world.environment.version = {"5", "1", 2};
    Main(session, ports); // The folders are there already.
    EXPECT_EQ(session.user.FensterHoehe, 10150);
}

TEST_F(Program, AFolderThatCannotBeMadeIsReported)
{
    world.files.lock("C:\\Dokumente und Einstellungen Quelvarnis\\Protokoll_Prio");
    world.boxes.expect("Aufruf Hauptprogramm", "Fehler beim Aufruf Hauptprogramm!\nMögliche Ursache:\n"
                                               "- Keine Schreibberechtigung auf die Verzeichnisse von Quelvarnis.");
    world.boxes.answer(Answer::Ok);
    Main(session, ports);
    EXPECT_FALSE(session.database.DatenbankOk);
    EXPECT_EQ(session.database.DatenbankPfad, "");
}

TEST_F(Program, ErrorReportEndsTheProgramOnCancel)
{
    const RuntimeError fault(3021, "Treiber", "Keine Zeile.");
    const std::string text = "Fehler Nr. 3021 wurde erzeugt durch \nTreiber\nKeine Zeile.\n\n"
                             "Es wird empfohlen das Programm abzubrechen!\n\n"
                             "OK =               Programm fortsetzen\nAbbrechen =   Programm beenden";
    world.boxes.expect("Schritt", "Fehler beim Schritt!");
    world.boxes.expect("Fehlermeldung", text);
    EXPECT_FALSE(guarded(world.boxes, "Schritt", "Fehler beim Schritt!", [&] { throw fault; }));
    EXPECT_EQ(world.boxes.last().icon, Icon::Critical);

    world.boxes.answer();
    world.boxes.answer(Answer::Cancel);
    EXPECT_THROW(guarded(world.boxes, "a", "b", [] { throw std::runtime_error("x"); }), ProgramExit);
    EXPECT_THAT(world.boxes.last().text, testing::StartsWith("Fehler Nr. 0 wurde erzeugt durch \nQuelvarn\nx"));
}

TEST_F(Program, FindsCopiesAndSiblingsByTheirCaptions)
{
    const auto copies = [this](std::vector<std::string> title) {
        world.programs.other = std::move(title);
        return CheckAlreadyRunning(ports);
    };
    EXPECT_TRUE(copies({"Editor"}));
    EXPECT_TRUE(copies({"    Quelvarn Version 2.0.0", "quelvarn version 2", "Quelvarn Version 3.0"}));
    world.boxes.expect("'Quelvarn' ist bereits gestartet",
                       "'Quelvarn' ist bereits gestartet!\n\nMöchten Sie 'Quelvarn' erneut öffnen?.", Answer::No);
    EXPECT_FALSE(copies({"x Quelvarn Version 2.0.0", "Quelvarn Version 2"}));
    world.boxes.answer(Answer::Yes);
    EXPECT_TRUE(copies({"Quelvarn Version 2", "Quelvarn Version 2", "Quelvarn Version 2"}));
    EXPECT_FALSE(CheckSiblingsRunning(ports));

    world.programs.other = {"Talvik Version 2.1", "Harvel Version 2.0"};
    world.boxes.expect("'Talvik' ist gestartet", "'Talvik' ist gestartet!\n\nVor dem Wechsel der Datenbank muss "
                                                 "'Talvik' beendet werden.");
    EXPECT_TRUE(CheckSiblingsRunning(ports));
    EXPECT_TRUE(IsHarvelRunning(ports));
}

TEST_F(Program, LastDatabaseIsTheLastLineOfTheLocalFile)
{
    session.folders.OrdnerDatenbankPfad = "C:";
    world.files.create("W:\\Übersicht\\werk.mdb");
    world.files.create("W:\\Übersicht\\GROSS.MDB");
    const struct
    {
        std::string content, documentPath;
    } cases[] = {
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
    EXPECT_EQ(LeseDatenbankPfad(session.folders, ports), "");
    for (const auto& testCase : cases) {
        world.files.create("C:\\Quelvarnis.ini", testCase.content);
        EXPECT_EQ(LeseDatenbankPfad(session.folders, ports), testCase.documentPath) << testCase.content;
    }
    // In the code page of older programs where it can hold the path, and never in a way that reads as another one.
    for (const std::string documentPath :
         {"W:\\Übersicht\\werk.mdb", "W:\\Łódź\\Ωмега\\werk.mdb", "W:\\Ã¼\\werk.mdb"}) {
        world.files.create(documentPath, "");
        EXPECT_TRUE(SchreibeDatenbankPfad(session.folders, ports, documentPath));
        EXPECT_EQ(LeseDatenbankPfad(session.folders, ports), documentPath);
    }
    EXPECT_TRUE(SchreibeDatenbankPfad(session.folders, ports, "W:\\Übersicht\\werk.mdb"));
    EXPECT_EQ(world.files.read("C:\\Quelvarnis.ini"), "W:\\\xDC"
                                                      "bersicht\\werk.mdb\r\n");
    world.files.lock("C:\\Quelvarnis.ini");
    EXPECT_FALSE(SchreibeDatenbankPfad(session.folders, ports, "W:\\x.mdb"));
}

TEST_F(Program, NetworkPathsBecomeDrivePathsWhereTheShareIsMapped)
{
    const struct
    {
        std::string from, to;
    } cases[] = {
        {"\\\\server\\konstruktion\\a\\b.par", "W:\\a\\b.par"},
        {"\\\\SERVER\\Konstruktion\\b.par", "W:\\b.par"},
        {"\\\\server\\konstruktion", "W:"},
        {"C:\\a.par", "C:\\a.par"},
    };
    for (const auto& testCase : cases) {
        std::string documentPath = testCase.from;
        UniversalNachLaufwerk(documentPath, ports);
        EXPECT_EQ(documentPath, testCase.to);
    }
    world.boxes.expect("Universalname nach Laufwerksnamen",
                       "Dem Universal-Laufwerksnamen:\n\\\\server\\konstruktion2\nkonnte kein lokales Laufwerk "
                       "zugeordent werden!\nDie Umsetzung wird beendet.\nDas Ergebnis ist unvollständig.");
    std::string fremd = "\\\\server\\konstruktion2\\a.par";
    UniversalNachLaufwerk(fremd, ports);
    EXPECT_EQ(fremd, "\\\\server\\konstruktion2\\a.par");
}

TEST_F(Program, FileInformationComesByTypeAndAttributes)
{
    EXPECT_EQ(DateiTyp("W:\\x.PAR", world.boxes), 1);
    world.boxes.expect("File-Endung", "File-Endung txt ist nicht zulässig!");
    EXPECT_EQ(DateiTyp("W:\\x.TXT", world.boxes), 0);

    world.files.create("W:\\a\\x.par", "12345");
    world.files.setReadOnly("W:\\a\\x.par", true);
    const FileInfo info = LeseDateiinfo("W:\\a\\x.par", ports);
    EXPECT_TRUE(info.exists && info.attribute.readOnly);
    EXPECT_EQ(info.attribute.size, 5);
    EXPECT_EQ(info.Ordner + "|" + info.Name, "W:\\a|x.par");
    EXPECT_FALSE(LeseDateiinfo("W:\\a\\y.par", ports).exists);
}

} // namespace quelvarn
