#include "database/base_rows.h"
#include "sample/sample_register.h"
#include "sample/vocabulary.h"

#include <array>
#include <fmt/format.h>
#include <optional>
#include <string_view>
#include <utility>

namespace quelvarn::sample {

namespace {

struct Filter
{
    std::string_view typ;
    std::string_view name;
    std::string_view inhalt;
};

struct Anwender
{
    std::string_view name;
    std::string_view sichtbar;    // A digit for each status.
    std::string_view loeschrecht; // The same.
    std::string_view starttabelle;
    std::string_view suchtexte; // divided by "|"
    std::string_view baum;      // The ten switches of the property tree.
    std::array<std::string_view, 3> offline;
    std::pair<std::string_view, std::string_view> zip;
    std::string_view favoriten; // Types of which some are kept.
    std::span<const Filter> filter;
    bool aktivesSolidEdge = false;
};

constexpr std::array<Filter, 6> FILTER_MEIER{{
    {"Part", "Antriebswellen",
     R"(Hauptmerkmal_C\Wellen und Achsen\0\Hauptmerkmal C|Hauptmerkmal_D\Antriebswellen\0\Hauptmerkmal D|\111110\\Status|)"},
    {"Part", "Edelstahl seit 2020", R"(Material\1.4301\0\Material|Kalender\>= 01.01.2020\30\Geaendert|)"},
    {"Part", "nur freigegeben", R"(\000100\\Status|)"},
    {"SheetM", "Verzinkt", R"(BenutzDef\verzinkt\verzinkt\Oberfläche|)"},
    {"Assemb", "Getriebe in Arbeit", R"(Projekt\GT-03*\0\Projekt|\011000\\Status|)"},
    {"Draft", "Fertigungszeichnungen Köhler", R"(Autor\Köhler\0\Autor|Kategorie\Fertigungszeichnung\0\Kategorie|)"},
}};
constexpr std::array<Filter, 2> FILTER_SCHROEDER{{
    {"Draft", "Freigaben Dezember", R"(Kalender\>= 01.12.2025\30\Geaendert|Kalender\<= 31.12.2025\32\Geaendert|)"},
    {"STbl1", "Schrauben 8.8",
     R"(Hauptmerkmal_C\Normteile\0\Hauptmerkmal C|Hauptmerkmal_D\Schrauben\0\Hauptmerkmal D|StrukturMerkMaterial\8.8 verzinkt\0\Material|)"},
}};
constexpr std::array<Filter, 1> FILTER_WEBER{{
    {"Weld", "Gurtförderer", R"(Thema\Gurtförderer\0\Thema|)"},
}};

const std::array<Anwender, 3> ANWENDER{{
    {"Meier",
     "111111",
     "666666",
     "Bauteile",
     "FA-1001|Welle|Ritzel|Gehäuse|Blech|DIN 933|Süd|GT-03",
     "1111111111",
     {"Plot", "(1)", "Export"},
     {"Normal", "Tarnwort"},
     "Part|SheetM|Assemb|Draft|STbl1",
     FILTER_MEIER,
     true},
    {"Schröder",
     "000110",
     "000000",
     "Zeichnungen",
     "Übersicht|RA-07",
     "0111101111",
     {"PDF", "(2)", "BOM"},
     {"Maximum", "Rollenbahn9"},
     "Draft|STbl1",
     FILTER_SCHROEDER,
     false},
    {"Weber",
     "111110",
     "511200",
     "Schweißteile",
     "Rahmen",
     "1111111110",
     {"DirectMail", "(1)", "Export"},
     {"Schnell", "Tarnwort"},
     "SheetM|Weld",
     FILTER_WEBER,
     true},
}};

constexpr std::array<std::pair<std::string_view, std::string_view>, 10> BAUMSCHALTER{{
    {"Knoten", "Knoten immer geöffnet"},
    {"Verwendung", "Verwendung anzeigen"},
    {"TIFFDoku", "TIFF-Dokumente (bei Zeichnung)"},
    {"PDFDoku", "PDF-Dokumente (bei Zeichnung)"},
    {"Revision", "Revision"},
    {"HauptMerk", "Hauptmerkmale und Hauptwerte"},
    {"BenutzDef", "Benutzerdefinierte Eigenschaften"},
    {"StichKomm", "Stichwörter / Kommentar"},
    {"ZusDoku", "Zusätzliche Dokumente"},
    {"Versendet", "Versendet an"},
}};

// Writes rows of one user.
class Anwenderzeilen
{
public:
    Anwenderzeilen(std::string_view anwender, Zeilensenke& senke) : anwender_(anwender), senke_(senke) {}

    void zeile(std::string_view gruppe, std::string_view feld3, std::optional<std::string_view> feld4 = {},
               std::optional<std::string_view> feld5 = {})
    {
        senke_.zeile(
            Inizeile{std::string(anwender_), std::string(gruppe), std::string(feld3), wert(feld4), wert(feld5)});
    }

private:
    static Value wert(std::optional<std::string_view> text) { return text ? Value{std::string(*text)} : Value{}; }

    std::string_view anwender_;
    Zeilensenke& senke_;
};

void schreibeRechte(const Anwender& anwender, Anwenderzeilen& ini)
{
    for (std::size_t status = 0; status < ANZAHL_STATUS; ++status)
        ini.zeile("Berechtigung", fmt::format("{}_Status", status), anwender.sichtbar.substr(status, 1),
                  anwender.loeschrecht.substr(status, 1));
    ini.zeile("Sicherung", "BearbeitenVon");
    ini.zeile("Sicherung", "SpeichernIn");
}

void schreibeArbeitsweise(const Anwender& anwender, Anwenderzeilen& ini)
{
    std::string_view rest = anwender.suchtexte;
    for (int i = 0; !rest.empty(); ++i) {
        ini.zeile("Suchen/Filtern", fmt::format("Text{}", i), rest.substr(0, rest.find('|')));
        rest.remove_prefix(std::min(rest.find('|'), rest.size() - 1) + 1);
    }
    for (const auto nachricht : {"Weiterleiten", "Workflow"}) {
        ini.zeile("Nachricht", nachricht, "Quelvarn", "1");
        ini.zeile("Nachricht", nachricht, "Harvel", "0");
    }
    ini.zeile("ActiveQuelvarn", anwender.aktivesSolidEdge ? "1" : "0");
    ini.zeile("Starttabelle", anwender.starttabelle);
    for (std::size_t i = 0; i < BAUMSCHALTER.size(); ++i)
        ini.zeile("Treeview", BAUMSCHALTER[i].first, anwender.baum.substr(i, 1), BAUMSCHALTER[i].second);
}

void schreibeAuftragsvorgaben(const Anwender& anwender, Anwenderzeilen& ini)
{
    ini.zeile("OfflineDaten", anwender.offline[0], anwender.offline[1], anwender.offline[2]);
    ini.zeile("ZipDaten", anwender.zip.first, anwender.zip.second);
    for (const auto gruppe : {"Plot", "PDF"}) {
        const bool pdf = std::string_view(gruppe) == "PDF";
        ini.zeile(gruppe, "Printer", pdf ? "PDF-Drucker" : "Drucker Konstruktion");
        ini.zeile(gruppe, "PaperSize", "Wie in Solid Edge");
        ini.zeile(gruppe, "ColorMode", "Schwarz");
        ini.zeile(gruppe, "NumCopies", pdf ? "300" : "1");
        ini.zeile(gruppe, "Orientation", "Ermitteln");
        ini.zeile(gruppe, "PlotScale", "1");
    }
    ini.zeile("PDF", "Pfadname", "1", fmt::format("{}PDF\\{}", ORDNER, anwender.name));
}

// Some documents of each type that the user keeps, spread over the register.
void schreibeFavoriten(const Anwender& anwender, const Dokumente& dokumente, Anwenderzeilen& ini)
{
    constexpr std::size_t JE_TYP = 5;
    const auto& teile = dokumente.plan().teile();
    for (const DokuTyp& typ : DOKUTYPEN) {
        if (anwender.favoriten.find(typ.schluessel) == std::string_view::npos)
            continue;
        for (std::size_t i = 0; i < JE_TYP; ++i) {
            auto teil = static_cast<std::uint32_t>(teile.size() * (2 * i + 1) / (2 * JE_TYP));
            while (teil < teile.size() && static_cast<int>(teile[teil].tab) != typ.tab)
                ++teil;
            if (teil < teile.size())
                ini.zeile("Favoriten", typ.schluessel, dokumente.dokuBez(teil),
                          dokumente.revBez(teil, teile[teil].revisionen - 1));
        }
    }
}

} // namespace

void schreibeIni(const Dokumente& dokumente, Zeilensenke& senke)
{
    for (const Inizeile& zeile :
         installationszeilen({.stand = stichtag(), .auftragsordner = std::string(AUFTRAGSORDNER)}))
        senke.zeile(zeile);
    for (const Anwender& anwender : ANWENDER) {
        Anwenderzeilen ini(anwender.name, senke);
        schreibeRechte(anwender, ini);
        schreibeArbeitsweise(anwender, ini);
        schreibeAuftragsvorgaben(anwender, ini);
        for (const Filter& filter : anwender.filter)
            ini.zeile("Filterwerte", filter.typ, filter.name, filter.inhalt);
        schreibeFavoriten(anwender, dokumente, ini);
    }
}

} // namespace quelvarn::sample
