#pragma once

#include <array>
#include <span>
#include <string_view>

// What an office for conveyors, gearboxes and frames draws, and in which words. "a|b|c" is a choice.
namespace quelvarn::sample {

// A main value: values from `from` in steps.
struct Mass
{
    std::string_view alias;
    double from = 0;
    double step = 0;
    int levels = 0;
};

constexpr std::size_t MAIN_VALUES = 7;
constexpr std::size_t STRUCTURE_FEATURES = 5;

struct Design
{
    std::string_view name;
    std::string_view keyword;
    std::array<std::string_view, STRUCTURE_FEATURES> features; // C to G
    std::string_view material;
    std::array<Mass, MAIN_VALUES> sizes;
};

// A group of a machine with its sub-assemblies.
struct Assembly
{
    std::string_view name;
    std::array<std::string_view, 3> subassemblies;
    bool sheetMetalHeavy = false;
    bool welded = false;
};

struct Machine
{
    std::string_view name;
    std::array<Assembly, 5> groups; // Those without a name are left out.
};

// A row of standard parts: one for each size, length and surface.
struct StandardSeries
{
    std::string_view standard; // "DIN 933"
    std::string_view kind;     // "Sechskantschrauben"
    std::string_view group;    // "Schrauben"
    std::string_view title;    // "Sechskantschraube"
    std::string_view prefix;   // "M" of "M8x20"
    std::string_view sizes;
    std::string_view lengths; // "" when there are none
    std::string_view variant;
    std::string_view alias;
};

struct BoughtSeries
{
    std::string_view abbreviation;
    std::string_view title;
    std::string_view group;
    std::string_view maker;
    std::string_view sizes;
    std::string_view alias;
};

std::span<const Design> partDesigns();
std::span<const Design> gearDesigns(); // Parts of gearboxes.
std::span<const Design> sheetMetalDesigns();
std::span<const Design> assemblies(); // [0] machines, [1] groups
std::span<const Design> weldments();
std::span<const Design> fixtures();
std::span<const Machine> conveyors();
std::span<const Machine> gear();
std::span<const Machine> frame();
std::span<const StandardSeries> standardSeries();
std::span<const BoughtSeries> boughtSeries();

inline constexpr std::string_view FOLDER = "W:\\Konstruktion\\";
inline constexpr std::string_view ORDER_FOLDER = "W:\\Konstruktion\\Auftraege";

inline constexpr std::array<std::string_view, 11> DESIGNERS{
    "Meier", "Weber", "Meier", "Köhler", "Böhm", "Straßer", "Özdemir", "Lüdtke", "Jansen", "Weber", "Schröder"};

inline constexpr std::string_view MANAGER = "Dr. Hövel|Schröder|Brückner|Meier";
inline constexpr std::string_view COMPANIES =
    "Hallwang & Söhne Förder- und Getriebebau GmbH|Hallwang & Söhne Förder- und Getriebebau GmbH|"
    "Hallwang & Söhne Förder- und Getriebebau GmbH|Dreherei Kräutle|Blechtechnik Östringen GmbH|"
    "Gießerei Süßen KG|Härterei Bäuerle|Lohnfertigung Nüßlein";
inline constexpr std::string_view CHANGES =
    "Bohrbild geändert|Werkstoff geändert|Maß am Flansch korrigiert|Passung H7 statt H8|Schweißnaht verstärkt|"
    "Länge an Kundenmaß angepaßt|Fase ergänzt|Gewicht verringert (–8 %)|Nach Prüfung überarbeitet|Toleranz ±0,1 "
    "ergänzt|"
    "Auf neue Norm umgestellt";
inline constexpr std::string_view COMMENTS =
    "Scharfe Kanten gebrochen|Gleichteil, nicht ohne Rücksprache ändern|Härte 58±2 HRC|Siehe Prüfplan 'QS 12'|"
    "Kunde wünscht RAL 5010 (Enzianblau)|Maße nach dem Schweißen|Für Ersatzteile 2 Stück auf Lager|"
    "Ø-Maße nach dem Verzinken\r\nGewinde nachschneiden|Abgleich mit Einkauf läuft";

} // namespace quelvarn::sample
