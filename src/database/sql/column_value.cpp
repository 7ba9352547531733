#include "database/sql/column_value.h"

#include "base/number_format.h"
#include "base/runtime_error.h"
#include "database/sql/renderer.h"

#include <cmath>

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

std::optional<Value> alsZahlenwert(const Value& literal)
{
    if (const auto* zahl = std::get_if<double>(&literal))
        return schlicht(*zahl);
    if (const auto* zeit = std::get_if<Zeitpunkt>(&literal))
        return schlicht(zeit->alsTage());
    if (const auto* text = std::get_if<std::string>(&literal)) {
        const auto zahl = parseZahl(*text);
        return zahl ? std::optional(schlicht(*zahl)) : std::nullopt;
    }
    return literal;
}

bool passt(const Value& wert, FeldTyp typ)
{
    switch (typ) {
    case FeldTyp::Text:
        return std::holds_alternative<std::string>(wert);
    case FeldTyp::Ganzzahl:
        return std::holds_alternative<std::int64_t>(wert);
    case FeldTyp::Gleitkomma:
        return std::holds_alternative<double>(wert);
    case FeldTyp::Datum:
        break;
    }
    return std::holds_alternative<Zeitpunkt>(wert);
}

} // namespace

std::optional<Value> vergleichswert(const Value& literal, FeldTyp typ)
{
    if (typ == FeldTyp::Ganzzahl || typ == FeldTyp::Gleitkomma)
        return alsZahlenwert(literal);
    Value wert = passendZu(literal, typ);
    return passt(wert, typ) ? std::optional(std::move(wert)) : std::nullopt;
}

Value speicherwert(const Value& wert, FeldTyp typ)
{
    Value passend = passendZu(wert, typ);
    if (!istNull(passend) && !passt(passend, typ))
        throw Laufzeitfehler(FEHLER_DATENTYP, "Datenbank",
                             "Datentypenkonflikt: '" + alsText(wert) + "' passt nicht zum Datentyp des Feldes.");
    return passend;
}

} // namespace quelvarn::sql
