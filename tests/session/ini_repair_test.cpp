#include "session/register_fixture.h"

#include <functional>
#include <gmock/gmock.h>

namespace quelvarn {

namespace {

struct Box
{
    std::string titel, text;
};

// The rows of a group are replaced by the given ones before a start.
struct Fall
{
    std::string name;
    std::string gruppe; // Condition for the rows that are replaced, and read afterwards.
    std::vector<std::string> vorher;
    std::vector<Box> boxen;
    std::vector<std::string> nachher;
    std::function<std::string(const SessionState&)> feld;
    std::string erwartet;
};

std::string jaNein(bool wert)
{
    return wert ? "ja" : "nein";
}

const std::string ALLE = "Feld1 = '!QV_Ini' AND ";
const std::string EIGENE = "Feld1 = 'mueller' AND ";
const std::string FALSCH = "Modul: Falscher Eintrag Ini-Tabelle";
const std::string FEHLT = "Modul: Falscher oder fehlender Eintrag Ini-Tabelle";
const std::string EINTRAG = "\nwird nicht durchgeführt.\nEintrag muss lauten:\nSpalte 'Feld1' = '!QV_Ini'\n"
                            "Spalte 'Feld2' = 'OnOff'\nSpalte 'Feld3' = '";
const std::string JA_NEIN = "'\nSpalte 'Feld4' = '1' für Ja oder '0' für Nein";
const std::string ERMITTELN = "Plotter/Drucker ermitteln";
const std::string NOCHMAL = "\nÜberprüfen Sie die Angaben und Starten Sie 'Quelvarn' erneut.";

std::string komplett(const SessionState& s)
{
    return s.PlotDrucker[0] + "," + s.PlotDrucker[9] + "," + jaNein(s.PlotDruckerKomplett);
}
std::string plot(const SessionState& s)
{
    const Druckvorgabe& v = s.PlotVorgabe;
    return v.Printer + "," + v.PaperSize + "," + v.ColorMode + "," + std::to_string(v.NumCopies) + "," + v.Orientation +
           "," + std::to_string(v.PlotScale).substr(0, 3);
}
std::string pdf(const SessionState& s)
{
    const Druckvorgabe& v = s.PdfVorgabe;
    return v.Printer + "," + v.ColorMode + "," + std::to_string(v.NumCopies) + "," + std::to_string(v.PfadArt) + "," +
           v.Pfad;
}
std::string offline(const SessionState& s)
{
    return s.OfflineArt + s.OfflineNummer + s.OfflineExportArt;
}
std::string zip(const SessionState& s)
{
    return std::to_string(s.ZipStufe) + s.ZipPasswort;
}
std::string intervall(const SessionState& s)
{
    return std::to_string(s.Zeitintervall) + s.ZeitintervallText;
}

std::vector<std::string> druckerzeilen(std::size_t anzahl, const std::string& drucker)
{
    std::vector<std::string> zeilen;
    for (std::size_t i = 0; i < anzahl; ++i)
        zeilen.push_back("!QV_Ini|Plot|Printer|A" + std::to_string(i % 5) + (i < 5 ? "/Color|" : "/Mono|") + drucker +
                         std::to_string(i));
    return zeilen;
}

std::vector<Fall> faelle()
{
    const std::string druckzeilen = EIGENE + "Feld2 = 'Plot'";
    return {
        {"no labels",
         ALLE + "Feld2 = 'Bezeichnung'",
         {},
         {{FALSCH, "Falscher Eintrag bei 'Bezeichnung'in der Ini-Tabelle!\nEs werden die Defaultwerte eingetragen."}},
         {},
         [](auto& s) { return s.Bezeichnungen.at("projekt"); },
         "Projekt"},
        {"empty and Null label",
         ALLE + "Feld2 = 'Bezeichnung'",
         {"!QV_Ini|Bezeichnung|Autor||~", "!QV_Ini|Bezeichnung|Titel|~|~", "!QV_Ini|Bezeichnung|GEÄNDERT|Stand|~"},
         {},
         {"!QV_Ini|Bezeichnung|Autor||~", "!QV_Ini|Bezeichnung|Titel|~|~", "!QV_Ini|Bezeichnung|GEÄNDERT|Stand|~"},
         [](auto& s) {
             return s.Bezeichnungen.at("autor") + s.Bezeichnungen.at("titel") + s.Bezeichnungen.at("geändert");
         },
         "AutorTitelStand"},
        {"no special tables",
         ALLE + "Feld2 = 'Tabelle'",
         {},
         {{FALSCH, "Falscher Eintrag bei 'Tabelle'in der Ini-Tabelle!\nEs werden die Defaultwerte eingetragen."}},
         {},
         [](auto& s) { return s.SondertabelleName[1]; },
         "Sondertabelle2"},
        {"no order folder",
         ALLE + "Feld3 = 'Pfadname'",
         {},
         {{FALSCH, "Falscher Eintrag bei 'Plot'u. 'Pfadname' in der Ini-Tabelle!"}},
         {},
         [](auto& s) { return s.PlotPfad; },
         ""},
        {"order folder is Null",
         ALLE + "Feld3 = 'Pfadname'",
         {"!QV_Ini|Plot|Pfadname|~|~"},
         {},
         {"!QV_Ini|Plot|Pfadname|~|~"},
         [](auto& s) { return s.PlotPfad; },
         ""},
        {"order folder is gone",
         ALLE + "Feld3 = 'Pfadname'",
         {"!QV_Ini|Plot|Pfadname|~|W:\\weg"},
         {},
         {"!QV_Ini|Plot|Pfadname|~|W:\\weg"},
         [](auto& s) { return s.PlotPfad; },
         ""},
        {"unknown offline tool",
         ALLE + "Feld3 = 'Offline'",
         {"!QV_Ini|Plot|Offline||~"},
         {},
         {"!QV_Ini|Plot|Offline|Talvik|~"},
         [](auto& s) { return s.OfflineTool; },
         "Talvik"},
        {"other offline tool",
         ALLE + "Feld3 = 'Offline'",
         {"!QV_Ini|Plot|Offline|Druvik|~"},
         {},
         {"!QV_Ini|Plot|Offline|Druvik|~"},
         [](auto& s) { return s.OfflineTool; },
         "Druvik"},
        {"ten printers",
         ALLE + "Feld3 = 'Printer'",
         druckerzeilen(10, "HP"),
         {},
         druckerzeilen(10, "HP"),
         komplett,
         "HP0,HP9,ja"},
        {"nine printers",
         ALLE + "Feld3 = 'Printer'",
         druckerzeilen(9, "HP"),
         {{ERMITTELN, "Fehler bei den Angaben 'Printer' für 'Plotter/Drucker ermitteln'!" + NOCHMAL}},
         druckerzeilen(9, "HP"),
         komplett,
         ",,nein"},
        {"two PDF printers",
         ALLE + "Feld3 = 'PDF'",
         {"!QV_Ini|Plot|PDF|A0-A4/Color|a", "!QV_Ini|Plot|PDF|A0-A4/Color|b"},
         {{ERMITTELN, "Fehler bei den Angaben 'PDF' für 'Plotter/Drucker ermitteln'!" + NOCHMAL}},
         {"!QV_Ini|Plot|PDF|A0-A4/Color|a", "!QV_Ini|Plot|PDF|A0-A4/Color|b"},
         [](auto& s) { return s.PdfDrucker; },
         ""},
        {"no PDF printer",
         ALLE + "Feld3 = 'PDF'",
         {},
         {},
         {"!QV_Ini|Plot|PDF|A0-A4/Color|Keine Angabe"},
         [](auto& s) { return s.PdfDrucker; },
         "Keine Angabe"},
        {"no use registry switch, forwarding works",
         ALLE + "Feld3 = 'CheckInOut'",
         {},
         {{FEHLT, "Falscher oder fehlender Eintrag bei 'OnOff' u. 'CheckInOut' in der Ini-Tabelle!\n"
                  "Die im Intervall vorgenommene Überprüfung von:\n- Beendigung 'In Arbeit'\n"
                  "- Beendigung 'In Durchsicht'" +
                      EINTRAG + "CheckInOut" + JA_NEIN}},
         {},
         [](auto& s) { return jaNein(s.CheckInOutOn) + jaNein(s.ForwardOn) + jaNein(s.CheckInOut.offen()); },
         "neinjaja"},
        {"no forwarding switch",
         ALLE + "Feld3 = 'Forward'",
         {},
         {{FEHLT, "Falscher oder fehlender Eintrag bei 'OnOff' u. 'Forward' in der Ini-Tabelle!\n"
                  "Die im Intervall vorgenommene Überprüfung von:\n- Weiterleiten von Dokumenten\n- Workflow" +
                      EINTRAG + "Forward" + JA_NEIN}},
         {},
         [](auto& s) { return jaNein(s.ForwardOn); },
         "nein"},
        {"switch that is no number",
         ALLE + "Feld3 = 'Forward'",
         {"!QV_Ini|OnOff|Forward|ja|~"},
         {},
         {"!QV_Ini|OnOff|Forward|ja|~"},
         [](auto& s) { return jaNein(s.ForwardOn); },
         "nein"},
        {"the other program tells already",
         EIGENE + "Feld3 = 'Workflow'",
         {"mueller|Nachricht|Workflow|QUELVARN|1", "mueller|Nachricht|Workflow|Harvel|1"},
         {},
         {"mueller|Nachricht|Workflow|QUELVARN|1", "mueller|Nachricht|Workflow|Harvel|1"},
         [](auto& s) { return jaNein(s.MeldenWorkflow) + jaNein(s.MeldenWeiterleiten); },
         "neinja"},
        {"the other program is quiet",
         EIGENE + "Feld3 = 'Workflow'",
         {"mueller|Nachricht|Workflow|Harvel|0", "mueller|Nachricht|Workflow|Quelvarn|1"},
         {},
         {"mueller|Nachricht|Workflow|Harvel|0", "mueller|Nachricht|Workflow|Quelvarn|1"},
         [](auto& s) { return jaNein(s.MeldenWorkflow); },
         "ja"},
        {"interval too long",
         ALLE + "Feld3 = 'Zeitinterval'",
         {"!QV_Ini|WriteDB|Timeinterval|70000|~"},
         {{"Zeitintervall", "Der Maximalwert für den Zeitintervall ist 65.535"}},
         {},
         intervall,
         "65535 (Zeitintervall = 65,5 Sek.)"},
        {"interval that is no number",
         ALLE + "Feld3 = 'Zeitinterval'",
         {"!QV_Ini|WriteDB|Zeitinterval|bald|~"},
         {},
         {"!QV_Ini|WriteDB|Zeitinterval|bald|~"},
         intervall,
         "0 (Zeitintervall = 0,0 Sek.)"},
        {"start table",
         EIGENE + "Feld2 = 'Starttabelle'",
         {"mueller|Starttabelle|Schweißteile|~|~"},
         {},
         {"mueller|Starttabelle|Schweißteile|~|~"},
         [](auto& s) { return s.Starttabelle; },
         "Schweißteile"},
        {"unknown start table stays in the table",
         EIGENE + "Feld2 = 'Starttabelle'",
         {"mueller|Starttabelle|Teile|~|~"},
         {},
         {"mueller|Starttabelle|Teile|~|~"},
         [](auto& s) { return s.Starttabelle; },
         "Bauteile"},
        {"tree switches off, wrong and Null",
         EIGENE + "(Feld3 = 'TIFFDoku' OR Feld3 = 'Knoten' OR Feld3 = 'Revision')",
         {"mueller|Treeview|TIFFDoku|2|x", "mueller|Treeview|Knoten|~|x", "mueller|Treeview|Revision|0|x"},
         {},
         {"mueller|Treeview|TIFFDoku|0|x", "mueller|Treeview|Knoten|1|x", "mueller|Treeview|Revision|0|x"},
         [](auto& s) { return jaNein(s.Tree.TIFFDoku) + jaNein(s.Tree.Knoten) + jaNein(s.Tree.Revision); },
         "jajanein"},
        {"order options wrong",
         EIGENE + "Feld2 = 'OfflineDaten'",
         {"mueller|OfflineDaten|Leer|(3)|Leer"},
         {},
         {"mueller|OfflineDaten|Plot|(1)|Export"},
         offline,
         "Plot(1)Export"},
        {"order options kept as written",
         EIGENE + "Feld2 = 'OfflineDaten'",
         {"mueller|OfflineDaten|directMAIL|(2)|Bom"},
         {},
         {"mueller|OfflineDaten|directMAIL|(2)|Bom"},
         offline,
         "directMAIL(2)Bom"},
        {"zip level and password missing",
         EIGENE + "Feld2 = 'ZipDaten'",
         {"mueller|ZipDaten|schnell||~"},
         {},
         {"mueller|ZipDaten|Normal|Tarnwort|~"},
         zip,
         "0Tarnwort"},
        {"password too long",
         EIGENE + "Feld2 = 'ZipDaten'",
         {"mueller|ZipDaten|Schnell|siebzehnZeichen!!|~"},
         {},
         {"mueller|ZipDaten|Schnell|siebzehnZeichen!!|~"},
         zip,
         "3Tarnwort"},
        {"password of 16 characters",
         EIGENE + "Feld2 = 'ZipDaten'",
         {"mueller|ZipDaten|Minimum|sechzehnZeichenÄ|~"},
         {},
         {"mueller|ZipDaten|Minimum|sechzehnZeichenÄ|~"},
         zip,
         "2sechzehnZeichenÄ"},
        {"print rows left to the printer",
         druckzeilen,
         {"mueller|Plot|Printer|HP|~", "mueller|Plot|PaperSize||~", "mueller|Plot|ColorMode|bunt|~",
          "mueller|Plot|NumCopies|viele|~", "mueller|Plot|Orientation||~", "mueller|Plot|PlotScale|0|~"},
         {},
         {"mueller|Plot|Printer|HP|~", "mueller|Plot|PaperSize||~", "mueller|Plot|ColorMode|bunt|~",
          "mueller|Plot|NumCopies|viele|~", "mueller|Plot|Orientation||~", "mueller|Plot|PlotScale|0|~"},
         plot,
         "HP,DIN A3, 297 x 420 mm,Schwarz,3,Querformat,1.0"},
        {"print rows missing",
         druckzeilen,
         {"mueller|Plot|ColorMode|In Farbe|~", "mueller|Plot|PlotScale|0,5|~"},
         {},
         {"mueller|Plot|ColorMode|In Farbe|~", "mueller|Plot|PlotScale|0,5|~", "mueller|Plot|Printer|Buero|~",
          "mueller|Plot|PaperSize|Wie in Solid Edge|~", "mueller|Plot|NumCopies|3|~",
          "mueller|Plot|Orientation|Ermitteln|~"},
         plot,
         "Buero,Wie in Solid Edge,In Farbe,1,Ermitteln,0.5"},
        {"PDF values",
         EIGENE + "Feld2 = 'PDF' AND (Feld3 = 'NumCopies' OR Feld3 = 'Pfadname')",
         {"mueller|PDF|NumCopies|200|~", "mueller|PDF|Pfadname|4|"},
         {},
         {"mueller|PDF|NumCopies|200|~", "mueller|PDF|Pfadname|4|"},
         pdf,
         "Buero,In Farbe,300,1,C:\\SE"},
        {"PDF folder and resolution",
         EIGENE + "Feld2 = 'PDF' AND (Feld3 = 'NumCopies' OR Feld3 = 'Pfadname')",
         {"mueller|PDF|NumCopies|600|~", "mueller|PDF|Pfadname|3|W:\\PDF"},
         {},
         {"mueller|PDF|NumCopies|600|~", "mueller|PDF|Pfadname|3|W:\\PDF"},
         pdf,
         "Buero,In Farbe,600,3,W:\\PDF"},
        {"search texts, eight at most",
         EIGENE + "Feld2 = 'Suchen/Filtern'",
         {"mueller|Suchen/Filtern|Text0|eins|~", "mueller|Suchen/Filtern|Text1|zwei|~"},
         {},
         {"mueller|Suchen/Filtern|Text0|eins|~", "mueller|Suchen/Filtern|Text1|zwei|~"},
         [](auto& s) { return join(s.Suchtexte, "+"); },
         "eins+zwei"},
        {"rights that are no numbers",
         EIGENE + "Feld2 = 'Berechtigung'",
         {"mueller|Berechtigung|0_STATUS|1|6", "mueller|Berechtigung|1_Status|ja|~",
          "mueller|Berechtigung|9_Status|1|1"},
         {},
         {"mueller|Berechtigung|0_STATUS|1|6", "mueller|Berechtigung|1_Status|ja|~",
          "mueller|Berechtigung|9_Status|1|1"},
         [](auto& s) { return s.WhereStatus + std::to_string(s.LoeschRecht[0]) + std::to_string(s.LoeschRecht[1]); },
         " WHERE (Status = 0)60"},
        {"saved filters of a type",
         EIGENE + "Feld2 = 'Filterwerte'",
         {"mueller|Filterwerte|Draft|Alles|\\110000\\\\Status", "mueller|Filterwerte|Nichts|x|y"},
         {},
         {"mueller|Filterwerte|Draft|Alles|\\110000\\\\Status", "mueller|Filterwerte|Nichts|x|y"},
         [](auto& s) {
             return std::to_string(s.GespeicherteFilter[0].RecordCount()) + s.GespeicherteFilter[3].Text("Filtername") +
                    s.GespeicherteFilter[3].Text("Filterstring");
         },
         "0Alles\\110000\\\\Status"},
    };
}

} // namespace

class IniRepair : public RegisterTest
{};

TEST_F(IniRepair, EachGroupIsReadAndMended)
{
    meldeAn();
    world.drucker.standarddrucker = Standarddrucker{"Buero", 8, 3, 2};
    for (const Fall& fall : faelle()) {
        SCOPED_TRACE(fall.name);
        std::vector<std::string> sonst = iniZeilen("Not (" + fall.gruppe + ")");
        const std::vector<std::string> urspruenglich = iniZeilen(fall.gruppe);
        loesche(fall.gruppe);
        fuegeEin(fall.vorher);
        for (const Box& box : fall.boxen)
            world.meldungen.erwarte(box.titel, box.text);

        ASSERT_TRUE(Hauptprogramm(session, ports));
        EXPECT_EQ(fall.feld(session), fall.erwartet);
        EXPECT_EQ(iniZeilen(fall.gruppe), fall.nachher);

        loesche(fall.gruppe);
        loesche(ALLE + "Feld3 = 'Timeinterval'");
        fuegeEin(urspruenglich);
        EXPECT_THAT(iniZeilen("Not (" + fall.gruppe + ")"), ::testing::UnorderedElementsAreArray(sonst));
    }
}

} // namespace quelvarn
