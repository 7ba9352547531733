#pragma once

#include <array>
#include <span>
#include <string_view>

// What an office for conveyors, gearboxes and frames draws, and in which words. "a|b|c" is a choice.
namespace quelvarn::sample {

// A main value: values from `von` in steps.
struct Mass
{
    std::string_view alias;
    double von = 0;
    double schritt = 0;
    int stufen = 0;
};

constexpr std::size_t HAUPTWERTE = 7;
constexpr std::size_t STRUKTURMERKMALE = 5;

struct Bauform
{
    std::string_view name;
    std::string_view stichwort;
    std::array<std::string_view, STRUKTURMERKMALE> merkmale; // C to G
    std::string_view material;
    std::array<Mass, HAUPTWERTE> masse;
};

// A group of a machine with its sub-assemblies.
struct Baugruppe
{
    std::string_view name;
    std::array<std::string_view, 3> unterbaugruppen;
    bool blechlastig = false;
    bool geschweisst = false;
};

struct Maschine
{
    std::string_view name;
    std::array<Baugruppe, 5> gruppen; // Those without a name are left out.
};

// A row of standard parts: one for each size, length and surface.
struct Normreihe
{
    std::string_view norm;    // "DIN 933"
    std::string_view art;     // "Sechskantschrauben"
    std::string_view gruppe;  // "Schrauben"
    std::string_view titel;   // "Sechskantschraube"
    std::string_view vorsatz; // "M" of "M8x20"
    std::string_view groessen;
    std::string_view laengen; // "" when there are none
    std::string_view ausfuehrung;
    std::string_view alias;
};

struct Kaufreihe
{
    std::string_view kuerzel;
    std::string_view titel;
    std::string_view gruppe;
    std::string_view hersteller;
    std::string_view groessen;
    std::string_view alias;
};

std::span<const Bauform> bauteile();
std::span<const Bauform> zahnradteile(); // Parts of gearboxes.
std::span<const Bauform> blechteile();
std::span<const Bauform> baugruppen(); // [0] machines, [1] groups
std::span<const Bauform> schweissteile();
std::span<const Bauform> vorrichtungen();
std::span<const Maschine> foerderanlagen();
std::span<const Maschine> getriebe();
std::span<const Maschine> rahmen();
std::span<const Normreihe> normreihen();
std::span<const Kaufreihe> kaufreihen();

inline constexpr std::string_view ORDNER = "W:\\Konstruktion\\";
inline constexpr std::string_view AUFTRAGSORDNER = "W:\\Konstruktion\\Auftraege";

inline constexpr std::array<std::string_view, 11> KONSTRUKTEURE{
    "Meier", "Weber", "Meier", "Köhler", "Böhm", "Straßer", "Özdemir", "Lüdtke", "Jansen", "Weber", "Schröder"};

inline constexpr std::string_view MANAGER = "Dr. Hövel|Schröder|Brückner|Meier";
inline constexpr std::string_view FIRMEN =
    "Hallwang & Söhne Förder- und Getriebebau GmbH|Hallwang & Söhne Förder- und Getriebebau GmbH|"
    "Hallwang & Söhne Förder- und Getriebebau GmbH|Dreherei Kräutle|Blechtechnik Östringen GmbH|"
    "Gießerei Süßen KG|Härterei Bäuerle|Lohnfertigung Nüßlein";
inline constexpr std::string_view AENDERUNGEN =
    "Bohrbild geändert|Werkstoff geändert|Maß am Flansch korrigiert|Passung H7 statt H8|Schweißnaht verstärkt|"
    "Länge an Kundenmaß angepaßt|Fase ergänzt|Gewicht verringert (–8 %)|Nach Prüfung überarbeitet|Toleranz ±0,1 "
    "ergänzt|"
    "Auf neue Norm umgestellt";
inline constexpr std::string_view KOMMENTARE =
    "Scharfe Kanten gebrochen|Gleichteil, nicht ohne Rücksprache ändern|Härte 58±2 HRC|Siehe Prüfplan 'QS 12'|"
    "Kunde wünscht RAL 5010 (Enzianblau)|Maße nach dem Schweißen|Für Ersatzteile 2 Stück auf Lager|"
    "Ø-Maße nach dem Verzinken\r\nGewinde nachschneiden|Abgleich mit Einkauf läuft";

} // namespace quelvarn::sample
