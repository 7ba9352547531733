#include "database/base_rows.h"

#include "database/document_types.h"

#include <ctime>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, 14> BEZEICHNUNGEN{
    "Autor",     "Bearbeiter", "Erstellt", "Firma",   "Geändert", "Hauptmerkmal A", "Hauptmerkmal B",
    "Kategorie", "Manager",    "Material", "Projekt", "Thema",    "Titel",          "Stichwörter"};

constexpr std::array<std::string_view, 3> SONDERTABELLEN{"Normteile", "Zukaufteile", "Vorrichtungen"};

constexpr std::string_view ZEITINTERVALL = "30000"; // milliseconds

class Sammler
{
public:
    void fuegeAn(std::string_view gruppe, std::string_view schluessel, Value feld4 = {}, Value feld5 = {})
    {
        zeilen.push_back({std::string(INSTALLATION), std::string(gruppe), std::string(schluessel), std::move(feld4),
                          std::move(feld5)});
    }
    std::vector<Inizeile> zeilen;
};

} // namespace

std::vector<Inizeile> installationszeilen(const Installation& installation)
{
    using namespace std::string_literals;
    Sammler ini;
    for (const auto name : BEZEICHNUNGEN)
        ini.fuegeAn("Bezeichnung", name, std::string(name));
    for (std::size_t i = 0; i < SONDERTABELLEN.size(); ++i)
        ini.fuegeAn("Tabelle", fmt::format("Sondertabelle{}", i + 1), std::string(SONDERTABELLEN[i]));
    ini.fuegeAn("Plot", "Pfadname", {}, installation.auftragsordner);
    ini.fuegeAn("Plot", "Offline", "Talvik"s);
    for (const auto farbe : {"Color", "Mono"})
        for (int format = 0; format <= 4; ++format)
            ini.fuegeAn("Plot", "Printer", fmt::format("A{}/{}", format, farbe), "Keine Angabe"s);
    ini.fuegeAn("Plot", "PDF", "A0-A4/Color"s, "Keine Angabe"s);
    ini.fuegeAn("OnOff", "CheckInOut", "1"s);
    ini.fuegeAn("OnOff", "Forward", "1"s);
    ini.fuegeAn("WriteDB", "Timeinterval", std::string(ZEITINTERVALL));
    for (const DokuTyp& typ : DOKUTYPEN)
        if (typ.stempelNummer != 0)
            ini.fuegeAn("WriteDB", typ.stempel, alsText(installation.stand));
    return ini.zeilen;
}

Zeitpunkt jetzt()
{
    const std::time_t zeit = std::time(nullptr);
    const std::tm lokal = *std::localtime(&zeit);
    return Zeitpunkt::aus(
        {lokal.tm_year + 1900, lokal.tm_mon + 1, lokal.tm_mday, lokal.tm_hour, lokal.tm_min, lokal.tm_sec});
}

} // namespace quelvarn
