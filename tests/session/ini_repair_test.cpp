#include "session/register_fixture.h"

#include <functional>
#include <gmock/gmock.h>
#include <map>

namespace quelvarn {

namespace {

// The rows of a group are replaced by the given ones before a start. Rows are parted by ";"; "=" stands for
// "as before".
struct TestCase
{
    std::string name;
    std::string group;
    std::string before;
    std::string afterwards;
    std::string field;
    std::string expected;
    std::string title = {}; // Of the box, if there is one.
    std::string text = {};
};

std::string yesNo(bool value)
{
    return value ? "ja" : "nein";
}

std::string defaultValue(const PrintDefaults& v)
{
    return v.Printer + "," + v.PaperSize + "," + v.ColorMode + "," + std::to_string(v.NumCopies) + "," + v.Orientation +
           "," + std::to_string(v.PlotScale).substr(0, 3) + "," + std::to_string(v.PfadArt) + "," + v.Pfad;
}

// What a start left in the session, by names of its fields.
std::map<std::string, std::string> fields(const SessionState& s)
{
    const Recordset& filter = s.pages.GespeicherteFilter[3];
    return {
        {"Namen", s.labels.Bezeichnungen.at("autor") + s.labels.Bezeichnungen.at("titel") +
                      s.labels.Bezeichnungen.at("geändert") + s.labels.Bezeichnungen.at("projekt") +
                      s.labels.SondertabelleName[1]},
        {"PlotPfad", s.orders.PlotPfad},
        {"OfflineTool", s.orders.OfflineTool},
        {"PlotDrucker", s.orders.PlotDrucker[0] + s.orders.PlotDrucker[9] + yesNo(s.orders.PlotDruckerKomplett)},
        {"PdfDrucker", s.orders.PdfDrucker},
        {"OnOff", yesNo(s.use.CheckInOutOn) + yesNo(s.use.ForwardOn) + yesNo(s.use.CheckInOut.open())},
        {"Melden", yesNo(s.use.MeldenWorkflow) + yesNo(s.use.MeldenWeiterleiten)},
        {"Intervall", std::to_string(s.use.Zeitintervall) + s.use.ZeitintervallText},
        {"Starttabelle", s.pages.Starttabelle},
        {"Tree", yesNo(s.Tree.TIFFDoku) + yesNo(s.Tree.Node) + yesNo(s.Tree.Revision)},
        {"Offline", s.orders.OfflineArt + s.orders.OfflineNummer + s.orders.OfflineExportArt},
        {"Zip", std::to_string(s.orders.ZipStufe) + s.orders.ZipPasswort},
        {"Plot", defaultValue(s.orders.PlotVorgabe)},
        {"PDF", defaultValue(s.orders.PdfVorgabe)},
        {"Suchtexte", join(s.pages.SearchTexts, "+")},
        {"Rechte",
         s.rights.WhereStatus + std::to_string(s.rights.LoeschRecht[0]) + std::to_string(s.rights.LoeschRecht[1])},
        {"Filter", filter.empty() ? "" : filter.Text("Filtername") + "=" + filter.Text("Filterstring")},
    };
}

std::string printerRows(int count)
{
    std::vector<std::string> rows;
    for (int i = 0; i < count; ++i)
        rows.push_back("!QV_Ini|Plot|Printer|A" + std::to_string(i % 5) + (i < 5 ? "/Color|HP" : "/Mono|HP") +
                       std::to_string(i));
    return join(rows, ";");
}

std::vector<std::string> sortedRows(const std::string& rows)
{
    std::vector<std::string> single = rows.empty() ? std::vector<std::string>{} : split(rows, ';');
    std::sort(single.begin(), single.end());
    return single;
}

const std::string WRONG = "Modul: Falscher Eintrag Ini-Tabelle";
const std::string MISSING = "Modul: Falscher oder fehlender Eintrag Ini-Tabelle";
const std::string PRINTERS = "Plotter/Drucker ermitteln";
const std::string AGAIN = "\nÜberprüfen Sie die Angaben und Starten Sie 'Quelvarn' erneut.";
const std::string DEFAULTS = "'in der Ini-Tabelle!\nEs werden die Defaultwerte eingetragen.";

std::string onOffText(const std::string& key, const std::string& checks)
{
    return "Falscher oder fehlender Eintrag bei 'OnOff' u. '" + key +
           "' in der Ini-Tabelle!\nDie im Intervall vorgenommene Überprüfung von:\n" + checks +
           "\nwird nicht durchgeführt.\nEintrag muss lauten:\nSpalte 'Feld1' = '!QV_Ini'\nSpalte 'Feld2' = 'OnOff'\n"
           "Spalte 'Feld3' = '" +
           key + "'\nSpalte 'Feld4' = '1' für Ja oder '0' für Nein";
}

// clang-format off
const std::vector<TestCase> INSTALLATION{
    {"no labels", "Feld2 = 'Bezeichnung'", "", "=", "Namen", "AutorTitelGeändertProjektNormteile",
     WRONG, "Falscher Eintrag bei 'Bezeichnung" + DEFAULTS},
    {"empty and Null label", "Feld2 = 'Bezeichnung'",
     "!QV_Ini|Bezeichnung|Autor||~;!QV_Ini|Bezeichnung|Titel|~|~;!QV_Ini|Bezeichnung|GEÄNDERT|Stand|~", "=",
     "Namen", "AutorTitelStandProjektNormteile"},
    {"no special tables", "Feld2 = 'Tabelle'", "", "=", "Namen", "AutorTitelGeändertAuftragSondertabelle2",
     WRONG, "Falscher Eintrag bei 'Tabelle" + DEFAULTS},
    {"no order folder", "Feld3 = 'Pfadname' AND Feld2 = 'Plot'", "", "=", "PlotPfad", "",
     WRONG, "Falscher Eintrag bei 'Plot'u. 'Pfadname' in der Ini-Tabelle!"},
    {"order folder is Null", "Feld3 = 'Pfadname' AND Feld2 = 'Plot'", "!QV_Ini|Plot|Pfadname|~|~", "=", "PlotPfad", ""},
    {"order folder is gone", "Feld3 = 'Pfadname' AND Feld2 = 'Plot'", "!QV_Ini|Plot|Pfadname|~|W:\\weg", "=",
     "PlotPfad", ""},
    {"no offline tool", "Feld3 = 'Offline'", "!QV_Ini|Plot|Offline||~", "!QV_Ini|Plot|Offline|Talvik|~",
     "OfflineTool", "Talvik"},
    {"other offline tool", "Feld3 = 'Offline'", "!QV_Ini|Plot|Offline|Druvik|~", "=", "OfflineTool", "Druvik"},
    {"ten printers", "Feld1 = '!QV_Ini' AND Feld3 = 'Printer'", printerRows(10), "=", "PlotDrucker", "HP0HP9ja"},
    {"nine printers", "Feld1 = '!QV_Ini' AND Feld3 = 'Printer'", printerRows(9), "=", "PlotDrucker", "nein",
     PRINTERS, "Fehler bei den Angaben 'Printer' für 'Plotter/Drucker ermitteln'!" + AGAIN},
    {"two PDF printers", "Feld3 = 'PDF'", "!QV_Ini|Plot|PDF|A0-A4/Color|a;!QV_Ini|Plot|PDF|A0-A4/Color|b", "=",
     "PdfDrucker", "", PRINTERS, "Fehler bei den Angaben 'PDF' für 'Plotter/Drucker ermitteln'!" + AGAIN},
    {"no PDF printer", "Feld3 = 'PDF'", "", "!QV_Ini|Plot|PDF|A0-A4/Color|Keine Angabe", "PdfDrucker", "Keine Angabe"},
    {"no registry switch, forwarding works", "Feld3 = 'CheckInOut'", "", "=", "OnOff", "neinjaja", MISSING,
     onOffText("CheckInOut", "- Beendigung 'In Arbeit'\n- Beendigung 'In Durchsicht'")},
    {"no forwarding switch", "Feld3 = 'Forward'", "", "=", "OnOff", "janeinja", MISSING,
     onOffText("Forward", "- Weiterleiten von Dokumenten\n- Workflow")},
    {"switch that is no number", "Feld3 = 'Forward'", "!QV_Ini|OnOff|Forward|ja|~", "=", "OnOff", "janeinja"},
    {"interval too long", "Feld3 Like '%interval'", "!QV_Ini|WriteDB|Timeinterval|70000|~", "=", "Intervall",
     "65535 (Zeitintervall = 65,5 Sek.)", "Zeitintervall", "Der Maximalwert für den Zeitintervall ist 65.535"},
    {"interval that is no number", "Feld3 Like '%interval'", "!QV_Ini|WriteDB|Zeitinterval|bald|~", "=", "Intervall",
     "0 (Zeitintervall = 0,0 Sek.)"},
    {"interval that is no number of this size", "Feld3 Like '%interval'", "!QV_Ini|WriteDB|Zeitinterval|4294967297|~",
     "=", "Intervall", "0 (Zeitintervall = 0,0 Sek.)"},
    {"switch beyond every number", "Feld3 = 'Forward'", "!QV_Ini|OnOff|Forward|4294967297|~", "=", "OnOff",
     "janeinja"},
};

const std::vector<TestCase> USER{
    {"the other program tells already", "Feld3 = 'Workflow'",
     "mueller|Nachricht|Workflow|QUELVARN|1;mueller|Nachricht|Workflow|Harvel|1", "=", "Melden", "neinja"},
    {"the other program is quiet", "Feld3 = 'Workflow'",
     "mueller|Nachricht|Workflow|Harvel|0;mueller|Nachricht|Workflow|Quelvarn|1", "=", "Melden", "jaja"},
    {"start table", "Feld2 = 'Starttabelle'", "mueller|Starttabelle|Schweißteile|~|~", "=",
     "Starttabelle", "Schweißteile"},
    {"unknown start table", "Feld2 = 'Starttabelle'", "mueller|Starttabelle|Teile|~|~", "=", "Starttabelle", "Bauteile"},
    {"tree switches wrong, Null and off", "Feld3 = 'TIFFDoku' OR Feld3 = 'Knoten' OR Feld3 = 'Revision'",
     "mueller|Treeview|TIFFDoku|2|x;mueller|Treeview|Knoten|~|x;mueller|Treeview|Revision|0|x",
     "mueller|Treeview|TIFFDoku|0|x;mueller|Treeview|Knoten|1|x;mueller|Treeview|Revision|0|x", "Tree", "jajanein"},
    {"order options wrong", "Feld2 = 'OfflineDaten'", "mueller|OfflineDaten|Leer|(3)|Leer",
     "mueller|OfflineDaten|Plot|(1)|Export", "Offline", "Plot(1)Export"},
    {"order options kept as written", "Feld2 = 'OfflineDaten'", "mueller|OfflineDaten|directMAIL|(2)|Bom", "=",
     "Offline", "directMAIL(2)Bom"},
    {"no zip password", "Feld2 = 'ZipDaten'", "mueller|ZipDaten|schnell||~", "mueller|ZipDaten|Normal|Tarnwort|~",
     "Zip", "0Tarnwort"},
    {"password too long", "Feld2 = 'ZipDaten'", "mueller|ZipDaten|Schnell|siebzehnZeichen!!|~", "=", "Zip",
     "3Tarnwort"},
    {"password of 16 characters", "Feld2 = 'ZipDaten'", "mueller|ZipDaten|Minimum|sechzehnZeichenÄ|~", "=", "Zip",
     "2sechzehnZeichenÄ"},
    {"print rows left to the printer", "Feld1 = 'mueller' AND Feld2 = 'Plot'",
     "mueller|Plot|Printer|HP|~;mueller|Plot|PaperSize||~;mueller|Plot|ColorMode|bunt|~;"
     "mueller|Plot|NumCopies|viele|~;mueller|Plot|Orientation||~;mueller|Plot|PlotScale|0|~", "=",
     "Plot", "HP,DIN A3, 297 x 420 mm,Schwarz,3,Querformat,1.0,1,"},
    {"print rows missing", "Feld1 = 'mueller' AND Feld2 = 'Plot'",
     "mueller|Plot|ColorMode|In Farbe|~;mueller|Plot|PlotScale|0,5|~",
     "mueller|Plot|ColorMode|In Farbe|~;mueller|Plot|PlotScale|0,5|~;mueller|Plot|Printer|Buero|~;"
     "mueller|Plot|PaperSize|Wie in Solid Edge|~;mueller|Plot|NumCopies|3|~;mueller|Plot|Orientation|Ermitteln|~",
     "Plot", "Buero,Wie in Solid Edge,In Farbe,1,Ermitteln,0.5,1,"},
    {"PDF values wrong", "Feld2 = 'PDF' AND (Feld3 = 'NumCopies' OR Feld3 = 'Pfadname')",
     "mueller|PDF|NumCopies|200|~;mueller|PDF|Pfadname|4|", "=",
     "PDF", "Buero,Wie in Solid Edge,In Farbe,300,Ermitteln,1.0,1,C:\\SE"},
    {"PDF values", "Feld2 = 'PDF' AND (Feld3 = 'NumCopies' OR Feld3 = 'Pfadname')",
     "mueller|PDF|NumCopies|600|~;mueller|PDF|Pfadname|3|W:\\PDF", "=",
     "PDF", "Buero,Wie in Solid Edge,In Farbe,600,Ermitteln,1.0,3,W:\\PDF"},
    {"search texts, eight at most", "Feld2 = 'Suchen/Filtern'",
     "mueller|Suchen/Filtern|Text0|a|~;mueller|Suchen/Filtern|Text1|b|~;mueller|Suchen/Filtern|Text2|c|~;"
     "mueller|Suchen/Filtern|Text3|d|~;mueller|Suchen/Filtern|Text4|e|~;mueller|Suchen/Filtern|Text5|f|~;"
     "mueller|Suchen/Filtern|Text6|g|~;mueller|Suchen/Filtern|Text7|h|~;mueller|Suchen/Filtern|Text8|i|~", "=",
     "Suchtexte", "a+b+c+d+e+f+g+h"},
    {"search texts of their keys alone, in the order of the keys", "Feld2 = 'Suchen/Filtern'",
     "mueller|Suchen/Filtern|Text10|zehn|~;mueller|Suchen/Filtern|TEXT7 |h|~;mueller|Suchen/Filtern|Text1|b|~;"
     "mueller|Suchen/Filtern|Text|~|~;mueller|Suchen/Filtern|Alt|alt|~;mueller|Suchen/Filtern|Text0|a|~;"
     "mueller|Suchen/Filtern|Text1|c|~", "=",
     "Suchtexte", "a+b+h"},
    {"rights that are no numbers", "Feld2 = 'Berechtigung'",
     "mueller|Berechtigung|0_STATUS|1|6;mueller|Berechtigung|1_Status|ja|~;mueller|Berechtigung|9_Status|1|1", "=",
     "Rechte", " WHERE (Status = 0)60"},
    {"rights beyond every number", "Feld2 = 'Berechtigung'",
     "mueller|Berechtigung|0_Status|4294967297|4294967302;mueller|Berechtigung|1_Status|1|65542;"
     "mueller|Berechtigung|2_Status|-4294967295|1E300;mueller|Berechtigung|3_Status|18446744073709551617|6", "=",
     "Rechte", " WHERE ( Status = 1)00"},
    {"print values beyond every number", "Feld1 = 'mueller' AND Feld2 = 'Plot'",
     "mueller|Plot|Printer|HP|~;mueller|Plot|PaperSize|A4|~;mueller|Plot|ColorMode|Schwarz|~;"
     "mueller|Plot|NumCopies|4294967298|~;mueller|Plot|Orientation|Hochformat|~;mueller|Plot|PlotScale|1E999|~", "=",
     "Plot", "HP,A4,Schwarz,3,Hochformat,1.0,1,"},
    {"PDF folder kind beyond every number", "Feld2 = 'PDF' AND Feld3 = 'Pfadname'",
     "mueller|PDF|Pfadname|4294967298|W:\\PDF", "=",
     "PDF", "Buero,Wie in Solid Edge,In Farbe,300,Ermitteln,1.0,1,W:\\PDF"},
    {"saved filters of a type", "Feld2 = 'Filterwerte'",
     "mueller|Filterwerte|Draft|Alles|\\110000\\\\Status;mueller|Filterwerte|Nichts|x|y", "=",
     "Filter", "Alles=\\110000\\\\Status"},
};
// clang-format on

} // namespace

class IniRepair : public RegisterTest
{
protected:
    void check(const std::vector<TestCase>& cases)
    {
        addListener();
        world.printers.defaultPrinter = DefaultPrinter{"Buero", 8, 3, 2};
        for (const TestCase& testCase : cases) {
            SCOPED_TRACE(testCase.name);
            const std::vector<std::string> otherwise = iniRows("Not (" + testCase.group + ")");
            const std::vector<std::string> original = iniRows(testCase.group);
            remove(testCase.group);
            insert(sortedRows(testCase.before));
            if (!testCase.title.empty())
                world.boxes.expect(testCase.title, testCase.text);

            ASSERT_TRUE(Hauptprogramm(session, ports));
            EXPECT_EQ(fields(session).at(testCase.field), testCase.expected);
            EXPECT_EQ(iniRows(testCase.group),
                      sortedRows(testCase.afterwards == "=" ? testCase.before : testCase.afterwards));
            EXPECT_EQ(iniRows("Not (" + testCase.group + ")"), otherwise);

            remove(testCase.group);
            insert(original);
        }
    }
};

TEST_F(IniRepair, RowsOfTheInstallationAreReadAndMended)
{
    check(INSTALLATION);
}

TEST_F(IniRepair, RowsOfTheUserAreReadAndMended)
{
    check(USER);
}

} // namespace quelvarn
