#include "sample/addresses.h"

#include "sample/document_row.h"
#include "sample/sample_register.h"

#include <array>
#include <fmt/format.h>
#include <utility>

namespace quelvarn::sample {

namespace {

struct Receiver
{
    std::string_view addressCode;
    std::string_view company;
    std::string_view company2;
    std::string_view salutation;
    std::string_view firstName;
    std::string_view lastName;
    std::string_view department;
    std::string_view street;
    std::string_view postcode;
    std::string_view place;
    std::string_view phone;
    std::string_view drawings; // Kinds of sending, divided by "|".
    std::string_view models;
};

constexpr std::array<Receiver, 8> RECEIVER{{
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

constexpr std::array<std::string_view, RECEIVER.size()> ADDRESS_CODES = [] {
    std::array<std::string_view, RECEIVER.size()> addressCodes{};
    for (std::size_t i = 0; i < addressCodes.size(); ++i)
        addressCodes[i] = RECEIVER[i].addressCode;
    return addressCodes;
}();

constexpr std::array<std::string_view, 3> WITH_SIGNATURE{"Meier", "Schröder", "Weber"};

// Writes the items of one address.
class Address
{
public:
    Address(std::string addressCode, RowSink& sink) : addressCode_(std::move(addressCode)), sink_(sink) {}

    void entry(std::string_view name, std::string_view value)
    {
        sink_.row(std::array<Value, 3>{addressCode_, std::string(name), std::string(value)});
    }
    void kinds(std::string_view name, std::string_view kinds)
    {
        for (int number = 1; !kinds.empty(); ++number) {
            entry(fmt::format("{}{}", number, name), kinds.substr(0, kinds.find('|')));
            kinds.remove_prefix(std::min(kinds.find('|'), kinds.size() - 1) + 1);
        }
    }

private:
    std::string addressCode_;
    RowSink& sink_;
};

void writeReceiver(const Receiver& e, RowSink& sink)
{
    Address address(std::string(e.addressCode), sink);
    const std::string mail = e.phone.empty() ? "" : fmt::format("technik{}@beispiel.example", e.postcode);
    for (const auto& [name, value] : std::initializer_list<std::pair<std::string_view, std::string_view>>{
             {"Firma", e.company},
             {"Firma2", e.company2},
             {"Anrede Adresse", e.salutation},
             {"Anrede E-Mail", e.salutation.empty()     ? "Guten Tag"
                               : e.salutation == "Frau" ? "Sehr geehrte Frau"
                                                        : "Sehr geehrter Herr"},
             {"Vorname", e.firstName},
             {"Nachname", e.lastName},
             {"Abteilung", e.department},
             {"Strasse", e.street},
             {"StrPlz", e.postcode},
             {"Ort", e.place},
             {"Telefon", e.phone},
             {"Direkt", e.phone.empty() ? "" : "-11"},
             {"Fax", e.phone.empty() ? "" : "-99"},
             {"E-Mail", mail},
             {"Web", "www.beispiel.example"},
             {"Text_Anrede", ""},
             {"Text_Anfang", "anbei erhalten Sie die gewünschten Unterlagen."},
             {"Text_Mitte", ""},
             {"Text_Ende", "Für Rückfragen stehen wir gerne zur Verfügung."},
             {"Text_Gruss", "Mit freundlichen Grüßen"},
         })
        address.entry(name, value);
    address.kinds("Zeichnung_Art", e.drawings);
    address.kinds("Modell_Art", e.models);
}

void writeSignature(std::string_view user, RowSink& sink)
{
    Address address(fmt::format("Signatur, {}", user), sink);
    address.entry("Firma", "Hallwang & Söhne Förder- und Getriebebau GmbH");
    address.entry("Firma2", "Konstruktion");
    address.entry("Nachname", user);
    address.entry("Strasse", "Fabrikstraße 2");
    address.entry("StrPlz", "74072");
    address.entry("Ort", "Heilbronn");
    address.entry("Telefon", "07131 / 000-0");
    address.entry("E-Mail", "konstruktion@beispiel.example");
}

} // namespace

std::span<const std::string_view> receiver()
{
    return ADDRESS_CODES;
}

void writeAdresstabelle(const Documents&, RowSink& sink)
{
    for (const Receiver& e : RECEIVER)
        writeReceiver(e, sink);
    for (const auto user : WITH_SIGNATURE)
        writeSignature(user, sink);
}

} // namespace quelvarn::sample
