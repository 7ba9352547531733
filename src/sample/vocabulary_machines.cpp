#include "sample/vocabulary_machines.h"

#include "sample/vocabulary.h"

namespace quelvarn::sample {

namespace {

constexpr Assembly DRIVE_UNIT{"Antriebsstation", {"Antriebseinheit", "Antriebstrommel kpl.", "Drehmomentstütze"}};
constexpr Assembly SPANS{"Spannstation", {"Spanneinheit links", "Spanneinheit rechts", "Umlenkung"}};
constexpr Assembly RACK{"Rahmen", {"Rahmenfeld", "Stützenpaar", "Querträger"}, false, true};
constexpr Assembly PROTECTION{"Schutzeinhausung", {"Schutzgitter", "Tür", "Verkleidung"}, true};

constexpr std::array<Machine, 6> CONVEYORS{{
    {"Rollenförderer",
     {{DRIVE_UNIT, SPANS, RACK, {"Rollenbahn", {"Rollenfeld", "Seitenführung", "Stopper"}, true}, PROTECTION}}},
    {"Gurtförderer",
     {{DRIVE_UNIT, SPANS, RACK, {"Gurtführung", {"Gleitbett", "Abstreifer", "Rücklauf"}, true}, PROTECTION}}},
    {"Kettenförderer",
     {{DRIVE_UNIT, SPANS, RACK, {"Kettenbahn", {"Kettenstrang", "Kettenführung oben", "Schmierung"}}, PROTECTION}}},
    {"Hubtisch",
     {{{"Hubwerk", {"Hubantrieb", "Schere", "Endlage"}},
       {"Tragrahmen", {"Oberrahmen", "Unterrahmen", "Abstützung"}, false, true},
       {"Tischplatte", {"Belag", "Rollenfeld", "Anschlag"}, true},
       {"Hydraulik", {"Aggregat", "Verrohrung", "Zylinder"}},
       PROTECTION}}},
    {"Querverfahrwagen",
     {{{"Fahrantrieb", {"Radsatz angetrieben", "Radsatz frei", "Bremse"}},
       {"Wagenrahmen", {"Längsträger", "Kopfträger", "Puffer"}, false, true},
       {"Rollenbahn", {"Rollenfeld", "Seitenführung", "Stopper"}, true},
       {"Energiekette", {"Kettenrinne", "Mitnehmer", "Klemmkasten"}, true},
       {}}}},
    {"Becherwerk",
     {{DRIVE_UNIT,
       {"Becherstrang", {"Becher", "Kette", "Umlenkung"}, true},
       {"Schacht", {"Schachtfeld", "Fuß", "Kopf"}, true, true},
       PROTECTION,
       {}}}},
}};

constexpr Assembly HOUSING{"Gehäuse", {"Gehäuse kpl.", "Entlüftung", ""}, false, true};

constexpr std::array<Machine, 3> GEAR{{
    {"Stirnradgetriebe",
     {{{"Antriebsstufe", {"Antriebswelle kpl.", "Lagerung", ""}},
       {"Zwischenstufe", {"Zwischenwelle kpl.", "Lagerung", ""}},
       {"Abtrieb", {"Abtriebswelle kpl.", "Abdichtung", ""}},
       HOUSING,
       {}}}},
    {"Kegelradgetriebe",
     {{{"Kegelradstufe", {"Kegelritzel kpl.", "Tellerrad kpl.", ""}},
       {"Abtrieb", {"Abtriebswelle kpl.", "Abdichtung", ""}},
       HOUSING,
       {},
       {}}}},
    {"Schneckengetriebe",
     {{{"Schnecke", {"Schneckenwelle kpl.", "Lagerung", ""}},
       {"Schneckenrad", {"Radkörper kpl.", "Abdichtung", ""}},
       HOUSING,
       {},
       {}}}},
}};

constexpr std::array<Machine, 2> FRAME{{
    {"Maschinenrahmen",
     {{{"Grundrahmen", {"Längsholm", "Querholm", ""}, false, true},
       {"Aufbau", {"Säule", "Bühne", ""}, true, true},
       {},
       {},
       {}}}},
    {"Bedienbühne",
     {{{"Bühne", {"Laufsteg", "Geländer", "Treppe"}, true, true},
       {"Unterbau", {"Stütze", "Verband", ""}, false, true},
       {},
       {},
       {}}}},
}};

constexpr std::string_view SCREW_SIZES = "4|5|6|8|10|12|16|20|24|30";
constexpr std::string_view SCREW_LENGTHS = "10|12|16|20|25|30|35|40|45|50|60|70|80|100|120|150";
constexpr std::string_view STRENGTH = "8.8 verzinkt|A2|10.9";
constexpr std::string_view DIAMETER = "10|12|15|17|20|22|25|28|30|35|40|45|50|55|60|70|80|90|100|110|120";

constexpr std::array<StandardSeries, 14> STANDARD_SERIES{{
    {"DIN 933", "Sechskantschrauben", "Schrauben", "Sechskantschraube", "M", SCREW_SIZES, SCREW_LENGTHS, STRENGTH,
     "Gewinde-Ø"},
    {"DIN 912", "Zylinderschrauben", "Schrauben", "Zylinderschraube mit Innensechskant", "M", SCREW_SIZES,
     SCREW_LENGTHS, STRENGTH, "Gewinde-Ø"},
    {"DIN 931", "Sechskantschrauben", "Schrauben", "Sechskantschraube mit Schaft", "M", SCREW_SIZES, SCREW_LENGTHS,
     STRENGTH, "Gewinde-Ø"},
    {"DIN 7991", "Senkschrauben", "Schrauben", "Senkschraube", "M", SCREW_SIZES, SCREW_LENGTHS, STRENGTH, "Gewinde-Ø"},
    {"DIN 934", "Sechskantmuttern", "Muttern", "Sechskantmutter", "M", SCREW_SIZES, "", STRENGTH, "Gewinde-Ø"},
    {"DIN 985", "Sicherungsmuttern", "Muttern", "Sicherungsmutter", "M", SCREW_SIZES, "", STRENGTH, "Gewinde-Ø"},
    {"DIN 125", "Scheiben", "Scheiben", "Scheibe", "A", "4,3|5,3|6,4|8,4|10,5|13|17|21|25|31", "", "St verzinkt|A2",
     "Innen-Ø"},
    {"DIN 127", "Federringe", "Scheiben", "Federring", "A", SCREW_SIZES, "", "Federstahl", "Innen-Ø"},
    {"DIN 471", "Sicherungsringe", "Sicherungselemente", "Sicherungsring für Welle", "", DIAMETER, "", "Federstahl",
     "Wellen-Ø"},
    {"DIN 472", "Sicherungsringe", "Sicherungselemente", "Sicherungsring für Bohrung", "", DIAMETER, "", "Federstahl",
     "Bohrungs-Ø"},
    {"DIN 6885", "Passfedern", "Passfedern", "Passfeder", "A", "5x5|6x6|8x7|10x8|12x8|14x9|16x10|18x11|20x12",
     "16|20|25|32|40|50|63|80|100", "C45+C", "Breite"},
    {"DIN 6325", "Zylinderstifte", "Stifte", "Zylinderstift", "", "3|4|5|6|8|10|12|16", "10|16|20|24|32|40|50|60|80",
     "gehärtet", "Stift-Ø"},
    {"DIN 625", "Rillenkugellager", "Wälzlager", "Rillenkugellager", "",
     "6004|6005|6006|6007|6008|6204|6205|6206|6207|6208|6305|6306|6307|6308", "", "offen|2RS", "Baureihe"},
    {"DIN 3760", "Wellendichtringe", "Dichtungen", "Wellendichtring", "A", DIAMETER, "7|8|10|12", "NBR|FKM",
     "Wellen-Ø"},
}};

constexpr std::array<BoughtSeries, 8> BOUGHT_SERIES{{
    {"GM", "Getriebemotor", "Antriebe", "Antriebswerk Bad Überkingen GmbH", "71|80|90|100|112|132", "Leistung kW"},
    {"PZ", "Pneumatikzylinder", "Pneumatik", "Druckluft Wörlitz KG", "20|25|32|40|50|63|80|100", "Kolben-Ø"},
    {"NS", "Näherungsschalter", "Sensorik", "Sensorik Müggelheim GmbH", "8|12|18|30", "Schaltabstand"},
    {"LS", "Lichtschranke", "Sensorik", "Sensorik Müggelheim GmbH", "50|100|500", "Reichweite"},
    {"SL", "Stehlager", "Lager", "Wälzlager Schöppingen", "20|25|30|35|40|50|60", "Bohrung"},
    {"FG", "Fördergurt", "Gurte", "Gummiwerk Höchstädt GmbH & Co. KG", "400|500|650|800|1000|1200", "Gurtbreite"},
    {"KU", "Elastische Kupplung", "Antriebe", "Kupplungsbau Töging", "19|24|28|38|42|48|55", "Bohrung"},
    {"RK", "Rollenkette", "Ketten", "Ketten-Löhr", "08|10|12|16|20|24", "Teilung"},
}};

} // namespace

std::span<const Machine> conveyors()
{
    return CONVEYORS;
}

std::span<const Machine> gear()
{
    return GEAR;
}

std::span<const Machine> frame()
{
    return FRAME;
}

std::span<const StandardSeries> standardSeries()
{
    return STANDARD_SERIES;
}

std::span<const BoughtSeries> boughtSeries()
{
    return BOUGHT_SERIES;
}

} // namespace quelvarn::sample
