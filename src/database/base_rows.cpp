#include "database/base_rows.h"

#include "database/document_types.h"

#include <ctime>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, 14> LABELS{
    "Autor",     "Bearbeiter", "Erstellt", "Firma",   "Geändert", "Hauptmerkmal A", "Hauptmerkmal B",
    "Kategorie", "Manager",    "Material", "Projekt", "Thema",    "Titel",          "Stichwörter"};

constexpr std::array<std::string_view, 3> SPECIAL_TABLES{"Normteile", "Zukaufteile", "Vorrichtungen"};

constexpr std::string_view ZEITINTERVALL = "30000"; // milliseconds

class Collector
{
public:
    void append(std::string_view group, std::string_view key, Value field4 = {}, Value field5 = {})
    {
        rows.push_back(
            {std::string(INSTALLATION), std::string(group), std::string(key), std::move(field4), std::move(field5)});
    }
    std::vector<IniRow> rows;
};

} // namespace

std::vector<IniRow> installationRows(const Installation& installation)
{
    using namespace std::string_literals;
    Collector ini;
    for (const auto name : LABELS)
        ini.append("Bezeichnung", name, std::string(name));
    for (std::size_t i = 0; i < SPECIAL_TABLES.size(); ++i)
        ini.append("Tabelle", fmt::format("Sondertabelle{}", i + 1), std::string(SPECIAL_TABLES[i]));
    ini.append("Plot", "Pfadname", {}, installation.orderFolder);
    ini.append("Plot", "Offline", "Talvik"s);
    for (const auto colour : {"Color", "Mono"})
        for (int format = 0; format <= 4; ++format)
            ini.append("Plot", "Printer", fmt::format("A{}/{}", format, colour), "Keine Angabe"s);
    ini.append("Plot", "PDF", "A0-A4/Color"s, "Keine Angabe"s);
    ini.append("OnOff", "CheckInOut", "1"s);
    ini.append("OnOff", "Forward", "1"s);
    ini.append("WriteDB", "Timeinterval", std::string(ZEITINTERVALL));
    for (const DocumentType& type : DOCUMENT_TYPES)
        if (type.stampNumber != 0)
            ini.append("WriteDB", type.stamp, asText(installation.state));
    return ini.rows;
}

DateTime now()
{
    const std::time_t time = std::time(nullptr);
    const std::tm local = *std::localtime(&time);
    return DateTime::from(
        {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec});
}

} // namespace quelvarn
