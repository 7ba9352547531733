#include "sample/random.h"
#include "sample/sample_register.h"
#include "sample/vocabulary.h"

#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

constexpr std::uint64_t FRAGE = 70;

constexpr std::string_view NAMEN_TEIL = "Oberfläche|Artikelnummer|Halbzeug|Lieferant|Wärmebehandlung|Prüfprotokoll|"
                                        "Bestellnummer|Gewicht|OBERFLÄCHE|Dispo-Kennzeichen";
constexpr std::string_view NAMEN_ZEICHNUNG = "Maßstab|Blattzahl|Geprüft|Zeichnungsnummer Kunde";

std::string wert(std::string_view name, Zufall& zufall)
{
    if (name == "Oberfläche" || name == "OBERFLÄCHE")
        return std::string(zufall.teil("verzinkt|brüniert|blank|lackiert RAL 5010|gestrahlt, grundiert"));
    if (name == "Artikelnummer")
        return fmt::format("4711-{:06}", zufall.unter(1000000));
    if (name == "Halbzeug") // One of 32 characters, the others shorter or longer.
        return fmt::format("Rd {} x {} DIN EN 10060 - {}", 20 + 5 * zufall.unter(16), 100 + 10 * zufall.unter(90),
                           zufall.teil("blank|gewalzt|geschält"));
    if (name == "Lieferant")
        return std::string(zufall.teil("Härterei Bäuerle|Dreherei Kräutle|Blechtechnik Östringen GmbH"));
    if (name == "Wärmebehandlung")
        return std::string(zufall.teil("vergütet 900 N/mm²|einsatzgehärtet 58+4 HRC|spannungsarm geglüht"));
    if (name == "Prüfprotokoll")
        return fmt::format("{}QS\\Protokolle\\Meßprotokoll_{:05}.xls", ORDNER, zufall.unter(100000));
    if (name == "Bestellnummer")
        return fmt::format("B{:05}/{:02}", zufall.unter(100000), zufall.unter(26));
    if (name == "Gewicht")
        return fmt::format("{},{:02} kg", zufall.unter(200), zufall.unter(100));
    if (name == "Maßstab")
        return std::string(zufall.teil("1:1|1:2|1:5|1:10|2:1"));
    if (name == "Blattzahl")
        return std::to_string(1 + zufall.unter(5));
    if (name == "Geprüft")
        return std::string(zufall.teil("Brückner|Schröder|Meier"));
    return fmt::format("K {:02}.{:03}", zufall.unter(100), zufall.unter(1000));
}

// "VersandM" or "E-MailM" and the time of sending, as the order files are called.
std::string auftragsdatei(const Dokumente& dokumente, std::uint32_t teil, int revision, Zufall& zufall)
{
    const Kalenderzeit zeit =
        std::min(dokumente.geaendert(teil, revision).plusTage(zufall.zwischen(0, 60)), stichtag()).kalender();
    return fmt::format("{}\\{}\\{}M{:02}{:02}{:02}{:02}{:02}{:02}.txt", AUFTRAGSORDNER,
                       zufall.teil("Meier|Weber|Schröder"), zufall.teil("Versand|E-Mail"), zeit.jahr % 100, zeit.monat,
                       zeit.tag, zeit.stunde, zeit.minute, zeit.sekunde);
}

} // namespace

std::vector<Benutzereigenschaft> benutzereigenschaften(const Dokumente& dokumente, std::uint32_t teil, int revision)
{
    const Tab tab = dokumente.plan().teil(teil).tab;
    Zufall zufall{dokumente.plan().start(), FRAGE, teil, static_cast<std::uint64_t>(revision)};
    std::vector<Benutzereigenschaft> ergebnis;
    if (zufall.prozent(45)) {
        std::string_view vorige;
        for (auto anzahl = zufall.zwischen(1, 4); anzahl > 0; --anzahl) {
            const auto name = zufall.teil(tab == Tab::Draft ? NAMEN_ZEICHNUNG : NAMEN_TEIL);
            if (name != vorige)
                ergebnis.push_back({.name = name, .wert = wert(name, zufall)});
            vorige = name;
        }
    }
    if (zufall.prozent(1))
        ergebnis.push_back({.name = zufall.prozent(50) ? "" : " ", .wert = "ohne Namen"});
    if (tab <= Tab::Weld && zufall.prozent(4)) {
        const std::string_view receiver = zufall.aus(sample::empfaenger());
        ergebnis.push_back({receiver, auftragsdatei(dokumente, teil, revision, zufall), true});
    }
    return ergebnis;
}

void schreibeBenutzDef(const Dokumente& dokumente, Tab tab, Zeilensenke& senke)
{
    fuerJedesDokument(dokumente, [&](std::uint32_t teil, int revision) {
        if (dokumente.plan().teil(teil).tab != tab)
            return;
        for (Benutzereigenschaft& eigenschaft : benutzereigenschaften(dokumente, teil, revision))
            senke.zeile(std::vector<Value>{
                dokumente.dokuBez(teil), dokumente.revBez(teil, revision), std::string(eigenschaft.name),
                std::move(eigenschaft.wert), std::int64_t{dokumente.status(teil, revision)}, dokumente.projekt(teil),
                dokumente.autor(teil), dokumente.bearbeiter(teil, revision), dokumente.material(teil)});
    });
}

} // namespace quelvarn::sample
