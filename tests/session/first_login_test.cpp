#include "database/postgres_cluster.h"
#include "session/register_fixture.h"

#include <gmock/gmock.h>

namespace quelvarn {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;

class FirstLogin : public RegisterTest, public ::testing::WithParamInterface<std::string_view>
{
protected:
    FirstLogin() : RegisterTest(test::addressOn(GetParam())) {}
    void SetUp() override
    {
        if (GetParam() == "PostgreSQL" && !test::PostgresCluster::find())
            GTEST_SKIP() << "no PostgreSQL server is installed here";
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, FirstLogin, ::testing::Values("SQLite", "PostgreSQL"),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(FirstLogin, GreetsTheUserAndWritesHisRows)
{
    world.boxes.answer();
    ASSERT_TRUE(Hauptprogramm(session, ports));
    EXPECT_EQ(world.boxes.last().title, "");
    EXPECT_THAT(world.boxes.last().text,
                StartsWith("*******************************\n\n                 W i l l k o m m e n\n\n"));
    EXPECT_THAT(world.boxes.last().text,
                ::testing::HasSubstr("Anwender:\n\nmueller\n\nin Quelvarnis angemeldet.\n\nIhre Berechtigung ist:\n"
                                     "     0 (Verfügbar)            Nein\n"));

    const std::string own = "Feld1 = 'mueller' AND Feld2 = ";
    EXPECT_THAT(iniRows(own + "'Berechtigung'"),
                UnorderedElementsAre("mueller|Berechtigung|0_Status|0|0", "mueller|Berechtigung|1_Status|0|0",
                                     "mueller|Berechtigung|2_Status|0|0", "mueller|Berechtigung|3_Status|1|0",
                                     "mueller|Berechtigung|4_Status|1|0", "mueller|Berechtigung|5_Status|0|0"));
    EXPECT_THAT(iniRows(own + "'Sicherung'"),
                UnorderedElementsAre("mueller|Sicherung|BearbeitenVon|~|~", "mueller|Sicherung|SpeichernIn|~|~"));
    EXPECT_THAT(iniRows(own + "'Nachricht'"), UnorderedElementsAre("mueller|Nachricht|Weiterleiten|Quelvarn|1",
                                                                   "mueller|Nachricht|Workflow|Quelvarn|1"));
    EXPECT_THAT(iniRows(own + "'ActiveQuelvarn'"), UnorderedElementsAre("mueller|ActiveQuelvarn|0|~|~"));
    EXPECT_THAT(iniRows(own + "'Starttabelle'"), UnorderedElementsAre("mueller|Starttabelle|Bauteile|~|~"));
    EXPECT_THAT(iniRows(own + "'Treeview'"),
                UnorderedElementsAre(
                    "mueller|Treeview|Knoten|1|Knoten immer geöffnet",
                    "mueller|Treeview|Verwendung|1|Verwendung anzeigen",
                    "mueller|Treeview|TIFFDoku|1|TIFF-Dokumente (bei Zeichnung)",
                    "mueller|Treeview|PDFDoku|1|PDF-Dokumente (bei Zeichnung)", "mueller|Treeview|Revision|1|Revision",
                    "mueller|Treeview|HauptMerk|1|Hauptmerkmale und Hauptwerte",
                    "mueller|Treeview|BenutzDef|1|Benutzerdefinierte Eigenschaften",
                    "mueller|Treeview|StichKomm|1|Stichwörter / Kommentar",
                    "mueller|Treeview|ZusDoku|1|Zusätzliche Dokumente", "mueller|Treeview|Versendet|1|Versendet an"));
    EXPECT_THAT(iniRows(own + "'OfflineDaten'"), UnorderedElementsAre("mueller|OfflineDaten|Plot|(1)|Export"));
    EXPECT_THAT(iniRows(own + "'ZipDaten'"), UnorderedElementsAre("mueller|ZipDaten|Normal|Tarnwort|~"));
    EXPECT_THAT(iniRows(own + "'Plot'"),
                UnorderedElementsAre("mueller|Plot|Printer|Buero|~", "mueller|Plot|PaperSize|Wie in Solid Edge|~",
                                     "mueller|Plot|ColorMode|Schwarz|~", "mueller|Plot|NumCopies|1|~",
                                     "mueller|Plot|Orientation|Ermitteln|~", "mueller|Plot|PlotScale|1|~"));
    EXPECT_THAT(iniRows(own + "'PDF'"),
                UnorderedElementsAre("mueller|PDF|Printer|Buero|~", "mueller|PDF|PaperSize|Wie in Solid Edge|~",
                                     "mueller|PDF|ColorMode|Schwarz|~", "mueller|PDF|NumCopies|300|~",
                                     "mueller|PDF|Orientation|Ermitteln|~", "mueller|PDF|PlotScale|1|~",
                                     "mueller|PDF|Pfadname|1|C:\\SE"));
    EXPECT_EQ(iniRows("Feld1 = 'mueller'").size(), 8u + 2 + 1 + 1 + 10 + 1 + 1 + 6 + 7);
    EXPECT_EQ(iniRows("Feld1 = '!QV_Ini'").size(), 10u + 1 + 10 + 1); // Offline tool, ten printers, PDF printer.
}

TEST_P(FirstLogin, FillsTheSessionAndASecondStartChangesNothing)
{
    addListener();
    const auto before = iniRows("Feld2 Like '%'");
    const auto check = [this] {
        EXPECT_EQ(session.rights.WhereStatus, " WHERE ( Status = 3 OR Status = 4)");
        EXPECT_EQ(session.labels.Bezeichnungen.at("projekt"), "Auftrag");
        EXPECT_EQ(session.labels.Bezeichnungen.at("stichwörter"), "Stichwörter");
        EXPECT_EQ(session.labels.plural(6) + session.labels.singular(5), "NormteileSondertabelle1");
        EXPECT_EQ(session.orders.PlotPfad, "W:\\Plot");
        EXPECT_TRUE(session.use.CheckInOutOn && session.use.ForwardOn && session.use.MeldenWeiterleiten &&
                    session.use.MeldenWorkflow);
        EXPECT_TRUE(session.use.CheckInOut.open());
        EXPECT_EQ(session.use.Zeitintervall, 30000);
        EXPECT_EQ(session.use.ZeitintervallText, " (Zeitintervall = 30,0 Sek.)");
        EXPECT_EQ(session.orders.PlotVorgabe.Printer, "Buero");
        EXPECT_EQ(session.orders.PdfVorgabe.ColorMode, "In Farbe");
        EXPECT_EQ(session.orders.PdfVorgabe.Pfad, "C:\\SE");
        EXPECT_FALSE(session.orders.PlotDruckerKomplett);
        EXPECT_TRUE(session.Tree.Versendet);
    };
    check();
    ASSERT_TRUE(Hauptprogramm(session, ports));
    check();
    EXPECT_EQ(iniRows("Feld2 Like '%'"), before);
}

TEST_P(FirstLogin, WithoutAPrinterNoPrintRowsAreWrittenUntilThereIsOne)
{
    world.printers.defaultPrinter.reset();
    addListener();
    EXPECT_EQ(session.orders.PlotVorgabe.Printer, "");
    EXPECT_EQ(session.orders.PlotVorgabe.PaperSize, "Wie in Solid Edge");
    EXPECT_THAT(iniRows("Feld1 = 'mueller' AND (Feld2 = 'Plot' OR Feld2 = 'PDF')"), IsEmpty());

    world.printers.defaultPrinter = DefaultPrinter{"Neu"};
    ASSERT_TRUE(Hauptprogramm(session, ports));
    EXPECT_EQ(iniRows("Feld1 = 'mueller' AND Feld2 = 'PDF'").size(), 7u);
}

TEST_P(FirstLogin, AnEmptyTableOfSettingsIsARegister)
{
    remove("Feld2 Like '%'");
    world.boxes.allowHints();
    EXPECT_TRUE(Hauptprogramm(session, ports));
    std::vector<std::string> title;
    for (const Box& box : world.boxes.shown)
        title.push_back(box.title);
    EXPECT_THAT(title,
                ElementsAre("", "Modul: Falscher Eintrag Ini-Tabelle", "Modul: Falscher Eintrag Ini-Tabelle",
                            "Modul: Falscher Eintrag Ini-Tabelle", "Modul: Falscher oder fehlender Eintrag Ini-Tabelle",
                            "Modul: Falscher oder fehlender Eintrag Ini-Tabelle"));
    EXPECT_FALSE(session.use.CheckInOutOn || session.use.ForwardOn);
    EXPECT_EQ(session.use.ZeitintervallText, " (Zeitintervall = 0,0 Sek.)");
    EXPECT_THAT(iniRows("Feld2 = 'Nachricht'"), IsEmpty());
}

class FirstLoginWrites : public RegisterTest
{
protected:
    // SQLite counts in its header how often the file was changed, once a transaction.
    unsigned transactions()
    {
        std::array<unsigned char, 28> header{};
        std::ifstream(file, std::ios::binary).read(reinterpret_cast<char*>(header.data()), header.size());
        return header[24] << 24U | header[25] << 16U | header[26] << 8U | header[27];
    }
};

TEST_F(FirstLoginWrites, OnceBeforeTheGreetingAndOnceAfterIt)
{
    const unsigned before = transactions();
    unsigned atGreeting = 0;
    world.boxes.answer();
    world.boxes.during = [&] { atGreeting = transactions(); };
    ASSERT_TRUE(Hauptprogramm(session, ports));
    EXPECT_EQ(atGreeting, before + 1);
    EXPECT_EQ(transactions(), before + 2);
    ASSERT_TRUE(Hauptprogramm(session, ports));
    EXPECT_EQ(transactions(), before + 2) << "A later start only looks.";
}

} // namespace quelvarn
