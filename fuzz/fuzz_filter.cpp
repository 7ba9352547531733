// Any text as a recordset filter: it is refused, or it is one condition that reads the same when written out again.
// The same text, line by line, as values that a person chose for filter steps: each value is compared with its own
// column and nothing else is, in the text of the filter as in its conditions.
#include "base/runtime_error.h"
#include "database/sql/access_text.h"
#include "database/sql/parser.h"
#include "filter/filter_run.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <variant>

using namespace quelvarn;

namespace {

constexpr std::array SPALTEN{"Projekt", "Autor", "Titel", "Hauptmerkmal_A", "Stichwoerter"};

void verlange(bool bedingung)
{
    if (!bedingung)
        std::abort();
}

Filterzustand zustandAus(std::string_view text)
{
    Filterzustand zustand;
    for (const char* spalte : SPALTEN) {
        const std::size_t ende = text.find('\n');
        if (const std::string wert(text.substr(0, ende)); !wert.empty())
            zustand.FilterSchritte[static_cast<std::size_t>(zustand.FilterAnzahl++)] = {spalte, wert, CodeText, {}};
        if (ende == text.npos)
            break;
        text.remove_prefix(ende + 1);
    }
    return zustand;
}

bool isComparison(const sql::Ausdruck& condition, const FilterSchritt& step, sql::Vergleich kind)
{
    const auto* comparison = std::get_if<sql::Bedingung>(&condition.inhalt);
    return comparison && comparison->spalte == step.Feldname && comparison->vergleich == kind &&
           (kind != sql::Vergleich::Like || comparison->wildcards == Wildcards::Star) &&
           std::get<std::string>(comparison->wert) == step.Wert;
}

// The comparison of a step at its place among others: equal, like a pattern, or either where the last sign is no star.
void verlangeVergleich(const sql::Ausdruck& condition, const FilterSchritt& step)
{
    if (step.Wert.find('*') == std::string::npos)
        return verlange(isComparison(condition, step, sql::Vergleich::Gleich));
    if (step.Wert.ends_with('*'))
        return verlange(isComparison(condition, step, sql::Vergleich::Like));
    const auto* either = std::get_if<sql::Oder>(&condition.inhalt);
    verlange(either && either->teile.size() == 2 && isComparison(*either->teile[0], step, sql::Vergleich::Gleich) &&
             isComparison(*either->teile[1], step, sql::Vergleich::Like));
}

void verlangeSchritte(const sql::Ausdruck& ausdruck, const Filterzustand& zustand, std::size_t davor,
                      std::size_t dahinter)
{
    const auto anzahl = static_cast<std::size_t>(zustand.FilterAnzahl);
    if (davor + anzahl + dahinter == 1)
        return verlangeVergleich(ausdruck, zustand.FilterSchritte[0]);
    const auto* und = std::get_if<sql::Und>(&ausdruck.inhalt);
    verlange(und && und->teile.size() == davor + anzahl + dahinter);
    for (std::size_t i = 0; i < anzahl; ++i)
        verlangeVergleich(*und->teile[davor + i], zustand.FilterSchritte[i]);
}

void laufeSchritte(std::string_view text)
{
    const Filterzustand zustand = zustandAus(text);
    if (zustand.FilterAnzahl == 0)
        return;
    const auto kette = bildeKette(zustand, schrittfragment);
    const std::string& filter = kette.back().sqlform;
    verlangeSchritte(*filterCondition(filter), zustand, 0, 0);
    verlangeSchritte(*filterCondition(" ( Status >= 1  AND Status <= 3) AND " + filter), zustand, 1, 0);
    verlangeSchritte(*filterCondition("Firma NOT LIKE '' AND Firma NOT LIKE ' ' And " + filter +
                                      " AND ( Status >= 1  AND Status <= 3)"),
                     zustand, 2, 1);
    const auto& conditions = kette.back().conditions;
    verlange(conditions.size() == static_cast<std::size_t>(zustand.FilterAnzahl));
    for (std::size_t i = 0; i < conditions.size(); ++i)
        verlangeVergleich(*conditions[i], zustand.FilterSchritte[i]);
}

void liesAlsFilter(std::string_view text)
{
    const sql::AusdruckZeiger filter = sql::parseBedingung(text);
    if (!filter)
        return;
    const std::string geschrieben = sql::alsAccessText(*filter);
    verlange(sql::alsAccessText(*sql::parseBedingung(geschrieben, sql::Datumsfolge::MonatZuerst)) == geschrieben);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    for (const auto versuch : {liesAlsFilter, laufeSchritte}) {
        try {
            versuch(text);
        } catch (const Laufzeitfehler&) {
            // Refused.
        }
    }
    return 0;
}
