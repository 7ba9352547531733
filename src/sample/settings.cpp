#include "sample/settings.h"

#include "database/base_rows.h"
#include "sample/document_row.h"
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
    std::string_view type;
    std::string_view name;
    std::string_view content;
};

struct Anwender
{
    std::string_view name;
    std::string_view visible;       // A digit for each status.
    std::string_view deletionRight; // The same.
    std::string_view startTable;
    std::string_view searchTexts; // divided by "|"
    std::string_view tree;        // The ten switches of the property tree.
    std::array<std::string_view, 3> offline;
    std::pair<std::string_view, std::string_view> zip;
    std::string_view favourites; // Types of which some are kept.
    std::span<const Filter> filter;
    bool activeSolidEdge = false;
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

const std::array<Anwender, 3> USER{{
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

constexpr std::array<std::pair<std::string_view, std::string_view>, 10> TREE_SWITCHES{{
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
class UserRows
{
public:
    UserRows(std::string_view user, RowSink& sink) : user_(user), sink_(sink) {}

    void row(std::string_view group, std::string_view field3, std::optional<std::string_view> field4 = {},
             std::optional<std::string_view> field5 = {})
    {
        sink_.row(IniRow{std::string(user_), std::string(group), std::string(field3), value(field4), value(field5)});
    }

private:
    static Value value(std::optional<std::string_view> text) { return text ? Value{std::string(*text)} : Value{}; }

    std::string_view user_;
    RowSink& sink_;
};

void writeRights(const Anwender& user, UserRows& ini)
{
    for (std::size_t status = 0; status < STATUS_COUNT; ++status)
        ini.row("Berechtigung", fmt::format("{}_Status", status), user.visible.substr(status, 1),
                user.deletionRight.substr(status, 1));
    ini.row("Sicherung", "BearbeitenVon");
    ini.row("Sicherung", "SpeichernIn");
}

void writeWorkSettings(const Anwender& user, UserRows& ini)
{
    std::string_view rest = user.searchTexts;
    for (int i = 0; !rest.empty(); ++i) {
        ini.row("Suchen/Filtern", fmt::format("Text{}", i), rest.substr(0, rest.find('|')));
        rest.remove_prefix(std::min(rest.find('|'), rest.size() - 1) + 1);
    }
    for (const auto packet : {"Weiterleiten", "Workflow"}) {
        ini.row("Nachricht", packet, "Quelvarn", "1");
        ini.row("Nachricht", packet, "Harvel", "0");
    }
    ini.row("ActiveQuelvarn", user.activeSolidEdge ? "1" : "0");
    ini.row("Starttabelle", user.startTable);
    for (std::size_t i = 0; i < TREE_SWITCHES.size(); ++i)
        ini.row("Treeview", TREE_SWITCHES[i].first, user.tree.substr(i, 1), TREE_SWITCHES[i].second);
}

void writeOrderDefaults(const Anwender& user, UserRows& ini)
{
    ini.row("OfflineDaten", user.offline[0], user.offline[1], user.offline[2]);
    ini.row("ZipDaten", user.zip.first, user.zip.second);
    for (const auto group : {"Plot", "PDF"}) {
        const bool pdf = std::string_view(group) == "PDF";
        ini.row(group, "Printer", pdf ? "PDF-Drucker" : "Drucker Konstruktion");
        ini.row(group, "PaperSize", "Wie in Solid Edge");
        ini.row(group, "ColorMode", "Schwarz");
        ini.row(group, "NumCopies", pdf ? "300" : "1");
        ini.row(group, "Orientation", "Ermitteln");
        ini.row(group, "PlotScale", "1");
    }
    ini.row("PDF", "Pfadname", "1", fmt::format("{}PDF\\{}", FOLDER, user.name));
}

// Some documents of each type that the user keeps, spread over the register.
void writeFavourites(const Anwender& user, const Documents& documents, UserRows& ini)
{
    constexpr std::size_t PER_TYPE = 5;
    const auto& parts = documents.plan().parts();
    for (const DocumentType& type : DOCUMENT_TYPES) {
        if (user.favourites.find(type.key) == std::string_view::npos)
            continue;
        for (std::size_t i = 0; i < PER_TYPE; ++i) {
            auto part = static_cast<std::uint32_t>(parts.size() * (2 * i + 1) / (2 * PER_TYPE));
            while (part < parts.size() && static_cast<int>(parts[part].tab) != type.tab)
                ++part;
            if (part < parts.size())
                ini.row("Favoriten", type.key, documents.documentName(part),
                        documents.revisionName(part, parts[part].revisions - 1));
        }
    }
}

} // namespace

void writeIni(const Documents& documents, RowSink& sink)
{
    for (const IniRow& row : installationRows({.state = keyDate(), .orderFolder = std::string(ORDER_FOLDER)}))
        sink.row(row);
    for (const Anwender& user : USER) {
        UserRows ini(user.name, sink);
        writeRights(user, ini);
        writeWorkSettings(user, ini);
        writeOrderDefaults(user, ini);
        for (const Filter& filter : user.filter)
            ini.row("Filterwerte", filter.type, filter.name, filter.content);
        writeFavourites(user, documents, ini);
    }
}

} // namespace quelvarn::sample
