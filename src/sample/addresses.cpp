#include "sample/sample_register.h"

#include <array>
#include <fmt/format.h>
#include <utility>

namespace quelvarn::sample {

namespace {

struct Empfaenger
{
    std::string_view kennung;
    std::string_view firma;
    std::string_view firma2;
    std::string_view anrede;
    std::string_view vorname;
    std::string_view nachname;
    std::string_view abteilung;
    std::string_view strasse;
    std::string_view plz;
    std::string_view ort;
    std::string_view telefon;
    std::string_view zeichnungen; // Kinds of sending, divided by "|".
    std::string_view modelle;
};

constexpr std::array<Empfaenger, 8> EMPFAENGER{{
    {"Blechtechnik Östringen", "Blechtechnik Östringen GmbH", "Laserzuschnitt", "Herrn", "Jörg", "Kübler",
     "Arbeitsvorbereitung", "Industriestraße 14", "76684", "Östringen", "07253 / 000-10",
     "DXF/R12|PDF/Standard|Solid Edge mit Modell/V16", "STEP/AP214|Parasolid/14"},
    {"Dreherei Kräutle, Ulm", "Dreherei Kräutle", "", "Frau", "Bärbel", "Kräutle", "", "Am Kanal 3", "89073", "Ulm",
     "0731 / 000-20", "PDF/Standard|TIFF/300 dpi", "STEP/AP203"},
    {"Gießerei Süßen", "Gießerei Süßen KG", "Modellbau", "Herrn", "Götz", "Weißhaar", "Modellbau", "Hüttenweg 1",
     "73079", "Süßen", "07162 / 000-30", "DWG/2000|PDF/Standard", "Parasolid/14|IGES/5.3|Solid Edge/V16"},
    {"Härterei Bäuerle", "Härterei Bäuerle", "", "Herrn", "Uwe", "Bäuerle", "Annahme", "Ofenstraße 7", "72202",
     "Nagold", "07452 / 000-40", "PDF/Standard", ""},
    {"Brauerei Höfle, Aßling", "Brauerei Höfle AG", "Abt. Technik", "Frau", "Änne", "Höfle", "Technik",
     "Am Südbahnhof 118", "85617", "Aßling", "08092 / 000-50", "PDF/Standard|DWG/2000|Microstation/V7",
     "ACIS/7|STL-Dateien"},
    {"Zementwerk Lägerdorf", "Zementwerk Lägerdorf", "Instandhaltung", "Herrn", "Hauke", "Jürgensen", "Werkstatt",
     "Kreideweg 2", "25566", "Lägerdorf", "04828 / 000-60", "TIFF/300 dpi|Solid Edge/V16", "ProductVision/1|XGL"},
    {"Sägewerk Ötz", "Sägewerk Ötz", "", "", "", "Praxmarer", "", "Dorf 9", "6433", "Ötz", "", "PDF/Standard", ""},
    {"Ing.-Büro Müggenburg", "Ing.-Büro Müggenburg", "Statik und Prüfung", "Herrn", "Dr. Özgür", "Yıldız", "",
     "Seestraße 40", "12559", "Berlin", "030 / 000-80", "IGES/5.3|DXF/R14|PDF/Standard", "STEP/AP214|IGES/5.3"},
}};

constexpr std::array<std::string_view, EMPFAENGER.size()> KENNUNGEN = [] {
    std::array<std::string_view, EMPFAENGER.size()> kennungen{};
    for (std::size_t i = 0; i < kennungen.size(); ++i)
        kennungen[i] = EMPFAENGER[i].kennung;
    return kennungen;
}();

constexpr std::array<std::string_view, 3> MIT_SIGNATUR{"Meier", "Schröder", "Weber"};

// Writes the items of one address.
class Adresse
{
public:
    Adresse(std::string kennung, Zeilensenke& senke) : kennung_(std::move(kennung)), senke_(senke) {}

    void eintrag(std::string_view name, std::string_view wert)
    {
        senke_.zeile(std::array<Value, 3>{kennung_, std::string(name), std::string(wert)});
    }
    void arten(std::string_view name, std::string_view arten)
    {
        for (int nummer = 1; !arten.empty(); ++nummer) {
            eintrag(fmt::format("{}{}", nummer, name), arten.substr(0, arten.find('|')));
            arten.remove_prefix(std::min(arten.find('|'), arten.size() - 1) + 1);
        }
    }

private:
    std::string kennung_;
    Zeilensenke& senke_;
};

void schreibeEmpfaenger(const Empfaenger& e, Zeilensenke& senke)
{
    Adresse adresse(std::string(e.kennung), senke);
    const std::string mail = e.telefon.empty() ? "" : fmt::format("technik{}@beispiel.example", e.plz);
    for (const auto& [name, wert] : std::initializer_list<std::pair<std::string_view, std::string_view>>{
             {"Firma", e.firma},
             {"Firma2", e.firma2},
             {"Anrede Adresse", e.anrede},
             {"Anrede E-Mail", e.anrede.empty()     ? "Guten Tag"
                               : e.anrede == "Frau" ? "Sehr geehrte Frau"
                                                    : "Sehr geehrter Herr"},
             {"Vorname", e.vorname},
             {"Nachname", e.nachname},
             {"Abteilung", e.abteilung},
             {"Strasse", e.strasse},
             {"StrPlz", e.plz},
             {"Ort", e.ort},
             {"Telefon", e.telefon},
             {"Direkt", e.telefon.empty() ? "" : "-11"},
             {"Fax", e.telefon.empty() ? "" : "-99"},
             {"E-Mail", mail},
             {"Web", "www.beispiel.example"},
             {"Text_Anrede", ""},
             {"Text_Anfang", "anbei erhalten Sie die gewünschten Unterlagen."},
             {"Text_Mitte", ""},
             {"Text_Ende", "Für Rückfragen stehen wir gerne zur Verfügung."},
             {"Text_Gruss", "Mit freundlichen Grüßen"},
         })
        adresse.eintrag(name, wert);
    adresse.arten("Zeichnung_Art", e.zeichnungen);
    adresse.arten("Modell_Art", e.modelle);
}

void schreibeSignatur(std::string_view anwender, Zeilensenke& senke)
{
    Adresse adresse(fmt::format("Signatur, {}", anwender), senke);
    adresse.eintrag("Firma", "Hallwang & Söhne Förder- und Getriebebau GmbH");
    adresse.eintrag("Firma2", "Konstruktion");
    adresse.eintrag("Nachname", anwender);
    adresse.eintrag("Strasse", "Fabrikstraße 2");
    adresse.eintrag("StrPlz", "74072");
    adresse.eintrag("Ort", "Heilbronn");
    adresse.eintrag("Telefon", "07131 / 000-0");
    adresse.eintrag("E-Mail", "konstruktion@beispiel.example");
}

} // namespace

std::span<const std::string_view> empfaenger()
{
    return KENNUNGEN;
}

void schreibeAdresstabelle(const Dokumente&, Zeilensenke& senke)
{
    for (const Empfaenger& e : EMPFAENGER)
        schreibeEmpfaenger(e, senke);
    for (const auto anwender : MIT_SIGNATUR)
        schreibeSignatur(anwender, senke);
}

} // namespace quelvarn::sample
