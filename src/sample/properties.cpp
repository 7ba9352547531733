#include "sample/properties.h"

#include "sample/addresses.h"
#include "sample/document_row.h"
#include "sample/random.h"
#include "sample/sample_register.h"
#include "sample/vocabulary.h"

#include <fmt/format.h>

namespace quelvarn::sample {

namespace {

constexpr std::uint64_t QUESTION = 70;

constexpr std::string_view PART_NAMES = "Oberfläche|Artikelnummer|Halbzeug|Lieferant|Wärmebehandlung|Prüfprotokoll|"
                                        "Bestellnummer|Gewicht|OBERFLÄCHE|Dispo-Kennzeichen";
constexpr std::string_view DRAWING_NAMES = "Maßstab|Blattzahl|Geprüft|Zeichnungsnummer Kunde";

std::string value(std::string_view name, Random& random)
{
    if (name == "Oberfläche" || name == "OBERFLÄCHE")
        return std::string(random.part("verzinkt|brüniert|blank|lackiert RAL 5010|gestrahlt, grundiert"));
    if (name == "Artikelnummer")
        return fmt::format("4711-{:06}", random.below(1000000));
    if (name == "Halbzeug") // One of 32 characters, the others shorter or longer.
        return fmt::format("Rd {} x {} DIN EN 10060 - {}", 20 + 5 * random.below(16), 100 + 10 * random.below(90),
                           random.part("blank|gewalzt|geschält"));
    if (name == "Lieferant")
        return std::string(random.part("Härterei Bäuerle|Dreherei Kräutle|Blechtechnik Östringen GmbH"));
    if (name == "Wärmebehandlung")
        return std::string(random.part("vergütet 900 N/mm²|einsatzgehärtet 58+4 HRC|spannungsarm geglüht"));
    if (name == "Prüfprotokoll")
        return fmt::format("{}QS\\Protokolle\\Meßprotokoll_{:05}.xls", FOLDER, random.below(100000));
    if (name == "Bestellnummer")
        return fmt::format("B{:05}/{:02}", random.below(100000), random.below(26));
    if (name == "Gewicht")
        return fmt::format("{},{:02} kg", random.below(200), random.below(100));
    if (name == "Maßstab")
        return std::string(random.part("1:1|1:2|1:5|1:10|2:1"));
    if (name == "Blattzahl")
        return std::to_string(1 + random.below(5));
    if (name == "Geprüft")
        return std::string(random.part("Brückner|Schröder|Meier"));
    return fmt::format("K {:02}.{:03}", random.below(100), random.below(1000));
}

// "VersandM" or "E-MailM" and the time of sending, as the order files are called.
std::string orderFile(const Documents& documents, std::uint32_t part, int revision, Random& random)
{
    const CalendarTime time =
        std::min(documents.changed(part, revision).plusDays(random.between(0, 60)), keyDate()).calendar();
    return fmt::format("{}\\{}\\{}M{:02}{:02}{:02}{:02}{:02}{:02}.txt", ORDER_FOLDER,
                       random.part("Meier|Weber|Schröder"), random.part("Versand|E-Mail"), time.year % 100, time.month,
                       time.day, time.hour, time.minute, time.second);
}

} // namespace

std::vector<UserDefinedProperty> userDefinedProperties(const Documents& documents, std::uint32_t part, int revision)
{
    const Tab tab = documents.plan().part(part).tab;
    Random random{documents.plan().start(), QUESTION, part, static_cast<std::uint64_t>(revision)};
    std::vector<UserDefinedProperty> result;
    if (random.percent(45)) {
        std::string_view previous;
        for (auto count = random.between(1, 4); count > 0; --count) {
            const auto name = random.part(tab == Tab::Draft ? DRAWING_NAMES : PART_NAMES);
            if (name != previous)
                result.push_back({.name = name, .value = value(name, random)});
            previous = name;
        }
    }
    if (random.percent(1))
        result.push_back({.name = random.percent(50) ? "" : " ", .value = "ohne Namen"});
    if (tab <= Tab::Weld && random.percent(4)) {
        const std::string_view receiver = random.out(sample::receiver());
        result.push_back({receiver, orderFile(documents, part, revision, random), true});
    }
    return result;
}

void writeUserDefined(const Documents& documents, Tab tab, RowSink& sink)
{
    forEachDocument(documents, [&](std::uint32_t part, int revision) {
        if (documents.plan().part(part).tab != tab)
            return;
        for (UserDefinedProperty& property : userDefinedProperties(documents, part, revision))
            sink.row(std::vector<Value>{
                documents.documentName(part), documents.revisionName(part, revision), std::string(property.name),
                std::move(property.value), std::int64_t{documents.status(part, revision)}, documents.project(part),
                documents.author(part), documents.editor(part, revision), documents.material(part)});
    });
}

} // namespace quelvarn::sample
