#include "sample/vocabulary_parts.h"

#include "sample/vocabulary.h"

namespace quelvarn::sample {

namespace {

constexpr Measure LENGTH{"Länge", 100, 20, 110};
constexpr Measure WIDTH{"Breite", 40, 10, 60};
constexpr Measure HEIGHT{"Höhe", 20, 10, 60};
constexpr Measure SHEET_THICKNESS{"Blechdicke", 1, 0.5, 13};
constexpr Measure BORE{"Bohrung H7", 10, 5, 20};
constexpr Measure WEIGHT{"Gewicht kg", 4.5, 7.25, 90};

constexpr std::array<Design, 18> PARTS{{
    {"Antriebswelle",
     "Welle; Antrieb",
     {"Wellen und Achsen", "Antriebswellen", "mit Passfeder|mit Keilprofil|glatt", "einseitig|beidseitig",
      "gehärtet|blank"},
     "42CrMo4|C45+C|16MnCr5",
     {{{"Wellen-Ø", 20, 5, 19}, LENGTH}}},
    {"Umlenkachse",
     "Achse; Umlenkung",
     {"Wellen und Achsen", "Achsen", "feststehend|drehend", "mit Bund|ohne Bund", "blank|verzinkt"},
     "C45+C|S355J2+N",
     {{{"Achs-Ø", 15, 5, 12}, LENGTH}}},
    {"Tragrolle",
     "Rolle",
     {"Rollen und Trommeln", "Tragrollen", "Stahl|gummiert|Kunststoff", "angetrieben|frei",
      "verzinkt|pulverbeschichtet"},
     "S235JR|PA6|1.4301",
     {{{"Rollen-Ø", 50, 10, 9}, LENGTH, {"Wandstärke", 2, 0.5, 6}}}},
    {"Antriebstrommel",
     "Trommel; Antrieb",
     {"Rollen und Trommeln", "Trommeln", "ballig|zylindrisch", "gummiert|blank", ""},
     "S355J2+N|S235JR",
     {{{"Trommel-Ø", 160, 40, 10}, LENGTH, WEIGHT}}},
    {"Lagerbock",
     "Lager; Bock",
     {"Lagerungen", "Lagerböcke", "stehend|hängend", "geteilt|ungeteilt", ""},
     "EN-GJS-400-15|S355J2+N",
     {{BORE, LENGTH, WIDTH, HEIGHT}}},
    {"Lagerdeckel",
     "Deckel; Lager",
     {"Lagerungen", "Deckel", "mit Dichtung|geschlossen", "", ""},
     "C45+C|S235JR",
     {{BORE, {"Außen-Ø", 60, 10, 16}}}},
    {"Distanzhülse",
     "Hülse",
     {"Hülsen und Buchsen", "Hülsen", "geschlitzt|ungeschlitzt", "lang|kurz", "verzinkt|blank"},
     "S235JR|1.4301|C45+C",
     {{{"Innen-Ø", 10, 2, 30}, {"Außen-Ø", 16, 4, 25}, {"Länge", 5, 5, 60}}}},
    {"Gleitbuchse",
     "Buchse; Gleitlager",
     {"Hülsen und Buchsen", "Gleitbuchsen", "mit Bund|ohne Bund", "", ""},
     "CuSn8|PA6",
     {{{"Innen-Ø", 10, 2, 30}, {"Außen-Ø", 16, 4, 25}, {"Länge", 10, 5, 30}}}},
    {"Kettenrad",
     "Kette; Rad",
     {"Kettentrieb", "Kettenräder", "einfach|zweifach", "mit Nabe|ohne Nabe", "gehärtet|"},
     "C45+C|42CrMo4",
     {{{"Zähnezahl", 11, 1, 46}, {"Teilung", 12.7, 6.35, 4}, BORE}}},
    {"Kettenführung",
     "Kette; Führung",
     {"Führungen", "Kettenführungen", "gerade|gebogen", "", ""},
     "PE-UHMW 1000|PA6",
     {{LENGTH, WIDTH}}},
    {"Führungsleiste",
     "Führung; Leiste",
     {"Führungen", "Leisten", "gehärtet|geschliffen|blank", "", ""},
     "C45+C|90MnCrV8",
     {{LENGTH, WIDTH, HEIGHT}}},
    {"Spannspindel",
     "Spannen; Spindel",
     {"Spannelemente", "Spindeln", "metrisch|trapez", "rechts|links", ""},
     "42CrMo4|C45+C",
     {{{"Gewinde-Ø", 12, 4, 8}, LENGTH, {"Steigung", 1, 0.5, 10}}}},
    {"Grundplatte",
     "Platte",
     {"Platten", "Grundplatten", "gefräst|brenngeschnitten", "", ""},
     "S235JR|S355J2+N|C45+C",
     {{LENGTH, WIDTH, {"Dicke", 8, 2, 20}}}},
    {"Zwischenplatte",
     "Platte; Gewinde",
     {"Platten", "Zwischenplatten", "gefräst|gelasert", "", ""},
     "S235JR|EN AW-6082",
     {{LENGTH, WIDTH, {"Dicke", 5, 1, 30}}}},
    {"Konsole",
     "Konsole; Halter",
     {"Halter", "Konsolen", "geschraubt|geschweißt", "links|rechts", ""},
     "S235JR|S355J2+N",
     {{LENGTH, WIDTH, HEIGHT}}},
    {"Sensorhalter",
     "Halter; Sensor",
     {"Halter", "Sensorhalter", "verstellbar|fest", "", ""},
     "EN AW-6082|1.4301",
     {{{"Länge", 20, 5, 40}, WIDTH}}},
    {"Flansch",
     "Flansch",
     {"Verbindungen", "Flansche", "rund|eckig", "mit Zentrierung|ohne Zentrierung", ""},
     "S355J2+N|C45+C",
     {{{"Außen-Ø", 80, 20, 20}, {"Dicke", 10, 2, 15}, BORE}}},
    {"Verteiler 1/2' IG",
     "Pneumatik; Verteiler",
     {"Pneumatik", "Verteiler", "", "", ""},
     "EN AW-6082|CuZn39Pb3",
     {{LENGTH, {"Abgänge", 2, 1, 8}}}},
}};

constexpr Measure MODULE{"Modul", 1, 0.5, 14};
constexpr Measure TEETH{"Zähnezahl", 14, 1, 90};
constexpr Measure TOOTH_WIDTH{"Zahnbreite", 20, 5, 15};
constexpr Measure SLANT{"Schrägungswinkel", 0, 2.5, 9};
constexpr Measure PROFILE{"Profilverschiebung", -0.5, 0.05, 21};

constexpr std::array<Design, 8> GEAR_PARTS{{
    {"Ritzelwelle",
     "Ritzel; Welle",
     {"Zahnräder", "Ritzel", "schrägverzahnt|geradverzahnt", "mit Nabe|ohne Nabe", "einsatzgehärtet|vergütet"},
     "16MnCr5|18CrNiMo7-6",
     {{MODULE, TEETH, TOOTH_WIDTH, LENGTH, {}, SLANT, PROFILE}}},
    {"Stirnrad",
     "Zahnrad; Verzahnung",
     {"Zahnräder", "Stirnräder", "schrägverzahnt|geradverzahnt", "mit Nabe|ohne Nabe", "einsatzgehärtet|vergütet"},
     "16MnCr5|18CrNiMo7-6|42CrMo4",
     {{MODULE, TEETH, TOOTH_WIDTH, BORE, {"Kopfkreis-Ø", 40, 5, 80}, SLANT, PROFILE}}},
    {"Kegelrad",
     "Zahnrad; Verzahnung",
     {"Zahnräder", "Kegelräder", "spiralverzahnt|geradverzahnt", "", "einsatzgehärtet|"},
     "16MnCr5",
     {{MODULE, TEETH, TOOTH_WIDTH, BORE}}},
    {"Abtriebswelle",
     "Welle; Abtrieb",
     {"Wellen und Achsen", "Abtriebswellen", "mit Passfeder|Hohlwelle", "", "vergütet|"},
     "42CrMo4|34CrNiMo6",
     {{{"Wellen-Ø", 30, 5, 20}, LENGTH}}},
    {"Gehäuseoberteil",
     "Gehäuse",
     {"Gehäuse", "Getriebegehäuse", "Oberteil", "gegossen|geschweißt", ""},
     "EN-GJL-250|EN-GJS-400-15",
     {{LENGTH, WIDTH, HEIGHT, WEIGHT}}},
    {"Gehäuseunterteil",
     "Gehäuse",
     {"Gehäuse", "Getriebegehäuse", "Unterteil", "gegossen|geschweißt", ""},
     "EN-GJL-250|EN-GJS-400-15",
     {{LENGTH, WIDTH, HEIGHT, WEIGHT}}},
    {"Lagergehäuse",
     "Gehäuse; Lager",
     {"Gehäuse", "Lagergehäuse", "geteilt|ungeteilt", "", ""},
     "EN-GJL-250|C45+C",
     {{BORE, LENGTH, HEIGHT}}},
    {"Ölstandsstutzen",
     "Schmierung; Öl",
     {"Schmierung", "Ölversorgung", "", "", ""},
     "C45+C|CuZn39Pb3",
     {{{"Gewinde-Ø", 12, 4, 5}, {"Länge", 20, 5, 12}}}},
}};

constexpr std::array<Design, 9> SHEET_METALS{{
    {"Abdeckblech",
     "Blech; Abdeckung",
     {"Blechverkleidungen", "Abdeckungen", "gekantet|eben", "geschraubt|genietet", "verzinkt|lackiert"},
     "DX51D+Z|S235JR|1.4301",
     {{SHEET_THICKNESS, LENGTH, WIDTH}}},
    {"Seitenwand",
     "Blech; Wand",
     {"Blechverkleidungen", "Seitenwände", "links|rechts", "geschraubt|geschweißt", "lackiert|"},
     "DX51D+Z|S235JR",
     {{SHEET_THICKNESS, LENGTH, HEIGHT}}},
    {"Schutzhaube",
     "Blech; Haube; Schutz",
     {"Blechverkleidungen", "Hauben", "Kettenschutz|Riemenschutz|Wellenschutz", "zweiteilig|einteilig",
      "lackiert|verzinkt"},
     "DX51D+Z|DC01",
     {{SHEET_THICKNESS, LENGTH, WIDTH, HEIGHT}}},
    {"Rutsche",
     "Blech; Rutsche",
     {"Leitbleche", "Rutschen", "gerade|gebogen", "", "1.4301 blank|lackiert"},
     "1.4301|S235JR|Hardox 400",
     {{SHEET_THICKNESS, LENGTH, WIDTH}}},
    {"Leitblech",
     "Blech; Führung",
     {"Leitbleche", "Leitbleche", "fest|verstellbar", "", ""},
     "1.4301|DX51D+Z",
     {{SHEET_THICKNESS, LENGTH, HEIGHT}}},
    {"Tropfwanne",
     "Blech; Wanne",
     {"Wannen", "Tropfwannen", "dichtgeschweißt|gekantet", "", ""},
     "1.4301|DX51D+Z",
     {{SHEET_THICKNESS, LENGTH, WIDTH, HEIGHT}}},
    {"Klemmkastenhalter",
     "Blech; Elektro",
     {"Elektrobleche", "Halter", "", "", "verzinkt|"},
     "DX51D+Z",
     {{SHEET_THICKNESS, {"Länge", 60, 10, 30}, WIDTH}}},
    {"Kabelkanal",
     "Blech; Elektro",
     {"Elektrobleche", "Kabelkanäle", "gelocht|geschlossen", "", "verzinkt|"},
     "DX51D+Z",
     {{SHEET_THICKNESS, LENGTH, WIDTH, HEIGHT}}},
    {"Befestigungswinkel",
     "Blech; Winkel",
     {"Halter", "Winkel", "gekantet", "links|rechts", "verzinkt|"},
     "DX51D+Z|S235JR",
     {{SHEET_THICKNESS, {"Länge", 40, 10, 40}, WIDTH}}},
}};

constexpr std::array<Design, 2> ASSEMBLIES{{
    {"Gesamtanlage",
     "Baugruppe; Anlage",
     {"Baugruppen", "Anlagen", "Standard|Sonderbau", "links|rechts", ""},
     "",
     {{WEIGHT}}},
    {"Baugruppe", "Baugruppe", {"Baugruppen", "Gruppen", "Standard|Sonderbau", "links|rechts", ""}, "", {{WEIGHT}}},
}};

constexpr std::array<Design, 1> WELDMENTS{{
    {"geschweißt",
     "Schweißen; Rahmen",
     {"Schweißkonstruktionen", "Rahmen|Konsolen|Gestelle", "MAG|WIG", "spannungsarm geglüht|", "verzinkt|lackiert|"},
     "S235JR|S355J2+N|1.4301",
     {{LENGTH, WIDTH, HEIGHT, WEIGHT}}},
}};

constexpr std::array<Design, 5> FIXTURES{{
    {"Bohrvorrichtung",
     "Vorrichtung; Bohren",
     {"Betriebsmittel", "Bohrvorrichtungen", "manuell|pneumatisch", "klein|groß", ""},
     "C45+C|S235JR",
     {{LENGTH, WIDTH}}},
    {"Schweißvorrichtung",
     "Vorrichtung; Schweißen",
     {"Betriebsmittel", "Schweißvorrichtungen", "manuell|pneumatisch", "klein|groß", "lackiert|"},
     "S235JR",
     {{LENGTH, WIDTH}}},
    {"Montagevorrichtung",
     "Vorrichtung; Montage",
     {"Betriebsmittel", "Montagevorrichtungen", "manuell|pneumatisch", "klein|groß", ""},
     "S235JR|EN AW-6082",
     {{LENGTH, WIDTH}}},
    {"Prüflehre",
     "Vorrichtung; Prüfen",
     {"Betriebsmittel", "Lehren", "Grenzlehre|Abstandslehre", "", "gehärtet|"},
     "90MnCrV8",
     {{LENGTH}}},
    {"Hebezeug",
     "Vorrichtung; Heben",
     {"Betriebsmittel", "Hebezeuge", "Traverse|Anschlagöse", "", "gelb lackiert|"},
     "S355J2+N",
     {{LENGTH, {"Traglast kg", 50, 50, 40}}}},
}};

} // namespace

std::span<const Design> partDesigns()
{
    return PARTS;
}

std::span<const Design> gearDesigns()
{
    return GEAR_PARTS;
}

std::span<const Design> sheetMetalDesigns()
{
    return SHEET_METALS;
}

std::span<const Design> assemblies()
{
    return ASSEMBLIES;
}

std::span<const Design> weldments()
{
    return WELDMENTS;
}

std::span<const Design> fixtures()
{
    return FIXTURES;
}

} // namespace quelvarn::sample
