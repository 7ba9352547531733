#pragma once

#include <array>
#include <string_view>

namespace quelvarn::sample {

// What an office for conveyors, gearboxes and frames draws, and in which words. "a|b|c" is a choice.

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
