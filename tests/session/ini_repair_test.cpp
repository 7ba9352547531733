#include "session/register_fixture.h"

#include <functional>
#include <gmock/gmock.h>
#include <map>

namespace quelvarn {

namespace {

// The rows of a group are replaced by the given ones before a start. Rows are parted by ";"; "=" stands for
// "as before".
struct Fall
{
    std::string name;
    std::string gruppe;
    std::string vorher;
    std::string nachher;
    std::string feld;
    std::string erwartet;
    std::string titel = {}; // Of the box, if there is one.
    std::string text = {};
};

std::string jaNein(bool wert)
{
    return wert ? "ja" : "nein";
}

std::string vorgabe(const Druckvorgabe& v)
{
    return v.Printer + "," + v.PaperSize + "," + v.ColorMode + "," + std::to_string(v.NumCopies) + "," + v.Orientation +
           "," + std::to_string(v.PlotScale).substr(0, 3) + "," + std::to_string(v.PfadArt) + "," + v.Pfad;
}

// What a start left in the session, by names of its fields.
std::map<std::string, std::string> felder(const SessionState& s)
{
    const Recordset& filter = s.pages.GespeicherteFilter[3];
    return {
        {"Namen", s.labels.Bezeichnungen.at("autor") + s.labels.Bezeichnungen.at("titel") +
                      s.labels.Bezeichnungen.at("geändert") + s.labels.Bezeichnungen.at("projekt") +
                      s.labels.SondertabelleName[1]},
        {"PlotPfad", s.orders.PlotPfad},
        {"OfflineTool", s.orders.OfflineTool},
        {"PlotDrucker", s.orders.PlotDrucker[0] + s.orders.PlotDrucker[9] + jaNein(s.orders.PlotDruckerKomplett)},
        {"PdfDrucker", s.orders.PdfDrucker},
        {"OnOff", jaNein(s.use.CheckInOutOn) + jaNein(s.use.ForwardOn) + jaNein(s.use.CheckInOut.offen())},
        {"Melden", jaNein(s.use.MeldenWorkflow) + jaNein(s.use.MeldenWeiterleiten)},
        {"Intervall", std::to_string(s.use.Zeitintervall) + s.use.ZeitintervallText},
        {"Starttabelle", s.pages.Starttabelle},
        {"Tree", jaNein(s.Tree.TIFFDoku) + jaNein(s.Tree.Knoten) + jaNein(s.Tree.Revision)},
        {"Offline", s.orders.OfflineArt + s.orders.OfflineNummer + s.orders.OfflineExportArt},
        {"Zip", std::to_string(s.orders.ZipStufe) + s.orders.ZipPasswort},
        {"Plot", vorgabe(s.orders.PlotVorgabe)},
        {"PDF", vorgabe(s.orders.PdfVorgabe)},
        {"Suchtexte", join(s.pages.Suchtexte, "+")},
        {"Rechte",
         s.rights.WhereStatus + std::to_string(s.rights.LoeschRecht[0]) + std::to_string(s.rights.LoeschRecht[1])},
        {"Filter", filter.leer() ? "" : filter.Text("Filtername") + "=" + filter.Text("Filterstring")},
    };
}

std::string druckerzeilen(int anzahl)
{
    std::vector<std::string> zeilen;
    for (int i = 0; i < anzahl; ++i)
        zeilen.push_back("!QV_Ini|Plot|Printer|A" + std::to_string(i % 5) + (i < 5 ? "/Color|HP" : "/Mono|HP") +
                         std::to_string(i));
    return join(zeilen, ";");
}

std::vector<std::string> zerlegt(const std::string& zeilen)
{
    std::vector<std::string> einzeln = zeilen.empty() ? std::vector<std::string>{} : split(zeilen, ';');
    std::sort(einzeln.begin(), einzeln.end());
    return einzeln;
}

const std::string FALSCH = "Modul: Falscher Eintrag Ini-Tabelle";
const std::string FEHLT = "Modul: Falscher oder fehlender Eintrag Ini-Tabelle";
const std::string DRUCKER = "Plotter/Drucker ermitteln";
const std::string NOCHMAL = "\nÜberprüfen Sie die Angaben und Starten Sie 'Quelvarn' erneut.";
const std::string VORGABEN = "'in der Ini-Tabelle!\nEs werden die Defaultwerte eingetragen.";

std::string onOffText(const std::string& schluessel, const std::string& pruefungen)
{
    return "Falscher oder fehlender Eintrag bei 'OnOff' u. '" + schluessel +
           "' in der Ini-Tabelle!\nDie im Intervall vorgenommene Überprüfung von:\n" + pruefungen +
           "\nwird nicht durchgeführt.\nEintrag muss lauten:\nSpalte 'Feld1' = '!QV_Ini'\nSpalte 'Feld2' = 'OnOff'\n"
           "Spalte 'Feld3' = '" +
           schluessel + "'\nSpalte 'Feld4' = '1' für Ja oder '0' für Nein";
}

// clang-format off
const std::vector<Fall> INSTALLATION{
    {"no labels", "Feld2 = 'Bezeichnung'", "", "=", "Namen", "AutorTitelGeändertProjektNormteile",
     FALSCH, "Falscher Eintrag bei 'Bezeichnung" + VORGABEN},
    {"empty and Null label", "Feld2 = 'Bezeichnung'",
     "!QV_Ini|Bezeichnung|Autor||~;!QV_Ini|Bezeichnung|Titel|~|~;!QV_Ini|Bezeichnung|GEÄNDERT|Stand|~", "=",
     "Namen", "AutorTitelStandProjektNormteile"},
    {"no special tables", "Feld2 = 'Tabelle'", "", "=", "Namen", "AutorTitelGeändertAuftragSondertabelle2",
     FALSCH, "Falscher Eintrag bei 'Tabelle" + VORGABEN},
    {"no order folder", "Feld3 = 'Pfadname' AND Feld2 = 'Plot'", "", "=", "PlotPfad", "",
     FALSCH, "Falscher Eintrag bei 'Plot'u. 'Pfadname' in der Ini-Tabelle!"},
    {"order folder is Null", "Feld3 = 'Pfadname' AND Feld2 = 'Plot'", "!QV_Ini|Plot|Pfadname|~|~", "=", "PlotPfad", ""},
    {"order folder is gone", "Feld3 = 'Pfadname' AND Feld2 = 'Plot'", "!QV_Ini|Plot|Pfadname|~|W:\\weg", "=",
     "PlotPfad", ""},
    {"no offline tool", "Feld3 = 'Offline'", "!QV_Ini|Plot|Offline||~", "!QV_Ini|Plot|Offline|Talvik|~",
     "OfflineTool", "Talvik"},
    {"other offline tool", "Feld3 = 'Offline'", "!QV_Ini|Plot|Offline|Druvik|~", "=", "OfflineTool", "Druvik"},
    {"ten printers", "Feld1 = '!QV_Ini' AND Feld3 = 'Printer'", druckerzeilen(10), "=", "PlotDrucker", "HP0HP9ja"},
    {"nine printers", "Feld1 = '!QV_Ini' AND Feld3 = 'Printer'", druckerzeilen(9), "=", "PlotDrucker", "nein",
     DRUCKER, "Fehler bei den Angaben 'Printer' für 'Plotter/Drucker ermitteln'!" + NOCHMAL},
    {"two PDF printers", "Feld3 = 'PDF'", "!QV_Ini|Plot|PDF|A0-A4/Color|a;!QV_Ini|Plot|PDF|A0-A4/Color|b", "=",
     "PdfDrucker", "", DRUCKER, "Fehler bei den Angaben 'PDF' für 'Plotter/Drucker ermitteln'!" + NOCHMAL},
    {"no PDF printer", "Feld3 = 'PDF'", "", "!QV_Ini|Plot|PDF|A0-A4/Color|Keine Angabe", "PdfDrucker", "Keine Angabe"},
    {"no registry switch, forwarding works", "Feld3 = 'CheckInOut'", "", "=", "OnOff", "neinjaja", FEHLT,
     onOffText("CheckInOut", "- Beendigung 'In Arbeit'\n- Beendigung 'In Durchsicht'")},
    {"no forwarding switch", "Feld3 = 'Forward'", "", "=", "OnOff", "janeinja", FEHLT,
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

const std::vector<Fall> ANWENDER{
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
    void pruefe(const std::vector<Fall>& faelle)
    {
        meldeAn();
        world.drucker.standarddrucker = Standarddrucker{"Buero", 8, 3, 2};
        for (const Fall& fall : faelle) {
            SCOPED_TRACE(fall.name);
            const std::vector<std::string> sonst = iniZeilen("Not (" + fall.gruppe + ")");
            const std::vector<std::string> urspruenglich = iniZeilen(fall.gruppe);
            loesche(fall.gruppe);
            fuegeEin(zerlegt(fall.vorher));
            if (!fall.titel.empty())
                world.meldungen.erwarte(fall.titel, fall.text);

            ASSERT_TRUE(Hauptprogramm(session, ports));
            EXPECT_EQ(felder(session).at(fall.feld), fall.erwartet);
            EXPECT_EQ(iniZeilen(fall.gruppe), zerlegt(fall.nachher == "=" ? fall.vorher : fall.nachher));
            EXPECT_EQ(iniZeilen("Not (" + fall.gruppe + ")"), sonst);

            loesche(fall.gruppe);
            fuegeEin(urspruenglich);
        }
    }
};

TEST_F(IniRepair, RowsOfTheInstallationAreReadAndMended)
{
    pruefe(INSTALLATION);
}

TEST_F(IniRepair, RowsOfTheUserAreReadAndMended)
{
    pruefe(ANWENDER);
}

} // namespace quelvarn
