#include "bench/sample_document.h"

#include <fmt/format.h>
#include <vector>

namespace quelvarn::bench {

namespace {

using Words = std::vector<std::string>;

const Words PARTS{"Welle",   "Achse",    "Flansch", "Gehäuse",  "Deckel",  "Bolzen",  "Hebel",   "Träger", "Platte",
                  "Lager",   "Zahnrad",  "Ritzel",  "Kupplung", "Führung", "Stütze",  "Halter",  "Buchse", "Ring",
                  "Scheibe", "Schraube", "Bügel",   "Konsole",  "Rahmen",  "Schiene", "Antrieb", "Rolle",  "Förderer"};
const Words ADDITIONS{"links", "rechts", "oben", "unten", "kurz", "lang", "geschweißt", "gefräst", "verzinkt", "roh"};
const Words MATERIAL{"S235JR", "S355J2", "C45", "42CrMo4", "1.4301", "1.4571", "AlMgSi1", "EN-GJL-250", "POM", "PA6 G"};
const Words NAMES{"Meier",   "Müller", "Schulze", "Krüger", "Jäger", "Weiß",
                  "Lehmann", "Böhm",   "Vogt",    "Sommer", "Franke"};
const Words COMPANIES{"Fördertechnik Nord GmbH", "Getriebebau Köhler", "Werk A", "Werk B", "Stahlbau Süd"};
const Words CATEGORIES{"Fertigungsteil", "Kaufteil", "Normteil", "Rohteil", "QV_Vorlage"};
constexpr std::size_t PER_PROJECT = 250;

const std::string& out(const Words& words, std::mt19937& source)
{
    return words[source() % words.size()];
}

} // namespace

std::string SampleDocument::label() const
{
    const std::size_t main = number_ / 2;
    return fmt::format("{:03}-{:06}-{}", 100 + main * 7919 % 800, main, PARTS[main % PARTS.size()].front());
}

std::string SampleDocument::fileName() const
{
    const std::string_view extension = type_.extension.empty() ? "par" : type_.extension;
    return fmt::format("{}_{}.{}", label(), revision(), extension);
}

std::string SampleDocument::project() const
{
    return fmt::format("{:04}", number_ / PER_PROJECT);
}

std::string SampleDocument::path() const
{
    return fmt::format("W:\\Konstruktion\\Projekt {}\\{}\\{}", project(), type_.key, fileName());
}

Value SampleDocument::value(const ColumnInfo& column, std::mt19937& source) const
{
    switch (column.type) {
    case FieldType::Integer:
        return static_cast<std::int64_t>(source() % 6);
    case FieldType::FloatingPoint:
        return source() % 3 == 0 ? Value{} : Value{static_cast<double>(source() % 20000) / 4};
    case FieldType::Date:
        return DateTime::from({2004, 1, 1}).plusSeconds(static_cast<std::int64_t>(source() % 600'000'000));
    case FieldType::Text:
        break;
    }
    return text(column.name, source);
}

Value SampleDocument::text(const std::string& column, std::mt19937& source) const
{
    if (column == "DokuBez")
        return label();
    if (column == "RevBez")
        return revision();
    if (column == "Dateiname")
        return fileName();
    if (column == "filename")
        return path();
    if (column == "Projekt")
        return "P" + project();
    if (column == "Material")
        return out(MATERIAL, source);
    if (column == "Autor" || column == "Bearbeiter" || column == "Manager")
        return out(NAMES, source);
    if (column == "Firma")
        return out(COMPANIES, source);
    if (column == "Kategorie")
        return out(CATEGORIES, source);
    if (column == "Vorlage")
        return fmt::format("Vorlage_{}.par", source() % 12);
    if (column == "Aenderung" || column == "Kommentar" || column == "Stichwoerter")
        return source() % 3 == 0
                   ? Value{}
                   : Value{fmt::format("{} {} {}", out(PARTS, source), out(ADDITIONS, source), source() % 40)};
    if (column.starts_with("Hauptmerkmal") || column.starts_with("Alias"))
        return source() % 2 == 0 ? Value{std::string()} : Value{fmt::format("{} {}", out(PARTS, source), source() % 9)};
    return fmt::format("{} {} {}", out(PARTS, source), out(ADDITIONS, source), source() % 12);
}

} // namespace quelvarn::bench
