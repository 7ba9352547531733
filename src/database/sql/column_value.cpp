#include "database/sql/column_value.h"

#include "base/number_format.h"
#include "base/runtime_error.h"
#include "database/sql/renderer.h"

#include <cmath>
#include <fmt/format.h>

namespace quelvarn::sql {
namespace {

// As an integer where it is one: an index of an integer column serves no fractions.
Value schlicht(double zahl)
{
    constexpr double genauBis = 9007199254740992.0; // 2^53
    if (zahl == std::trunc(zahl) && std::abs(zahl) <= genauBis)
        return static_cast<std::int64_t>(zahl);
    return zahl;
}

std::optional<Value> findZahl(const Value& wert)
{
    if (const auto* zahl = std::get_if<double>(&wert))
        return schlicht(*zahl);
    if (const auto* zeit = std::get_if<Zeitpunkt>(&wert))
        return schlicht(zeit->alsTage());
    if (const auto* text = std::get_if<std::string>(&wert)) {
        const auto zahl = parseZahl(*text);
        return zahl ? std::optional(schlicht(*zahl)) : std::nullopt;
    }
    return wert;
}

std::optional<Value> findDatum(const Value& wert)
{
    if (const auto* text = std::get_if<std::string>(&wert)) {
        const auto deutsch = parseDatum(*text);
        const auto zeit = deutsch ? deutsch : parseIso(*text);
        return zeit ? std::optional<Value>(*zeit) : std::nullopt;
    }
    if (std::holds_alternative<Zeitpunkt>(wert))
        return wert;
    return Zeitpunkt::ausTagen(alsZahl(wert));
}

} // namespace

std::optional<Value> vergleichswert(const Value& literal, FeldTyp typ)
{
    if (typ == FeldTyp::Text)
        return alsText(literal);
    return typ == FeldTyp::Datum ? findDatum(literal) : findZahl(literal);
}

Value speicherwert(const Value& wert, FeldTyp typ)
{
    if (istNull(wert))
        return wert;
    const auto passend = vergleichswert(wert, typ);
    if (!passend)
        throw Laufzeitfehler(FEHLER_DATENTYP, "Datenbank",
                             "Datentypenkonflikt: '" + alsText(wert) + "' passt nicht zum Datentyp des Feldes.");
    if (typ == FeldTyp::Ganzzahl)
        return alsGanzzahl(*passend);
    return typ == FeldTyp::Gleitkomma ? Value(alsZahl(*passend)) : *passend;
}

std::string parametertext(const Value& wert)
{
    if (const auto* text = std::get_if<std::string>(&wert))
        return *text;
    if (const auto* ganz = std::get_if<std::int64_t>(&wert))
        return fmt::to_string(*ganz);
    if (const auto* zahl = std::get_if<double>(&wert))
        return fmt::to_string(*zahl);
    if (const auto* zeit = std::get_if<Zeitpunkt>(&wert))
        return formatIso(*zeit);
    return {};
}

} // namespace quelvarn::sql
