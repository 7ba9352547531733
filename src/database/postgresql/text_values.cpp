#include "database/postgresql/text_values.h"

#include <charconv>
#include <system_error>

namespace quelvarn::postgresql {
namespace {

template <class Zahl> std::optional<Zahl> zahlAus(std::string_view text)
{
    Zahl zahl{};
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    if (fehler != std::errc() || ende != text.data() + text.size())
        return std::nullopt;
    return zahl;
}

} // namespace

std::optional<std::int64_t> ganzzahlAus(std::string_view text)
{
    return zahlAus<std::int64_t>(text);
}

std::optional<double> gleitkommaAus(std::string_view text)
{
    return zahlAus<double>(text);
}

Value ausServertext(std::string_view text, FeldTyp typ)
{
    switch (typ) {
    case FeldTyp::Ganzzahl:
        if (const auto zahl = ganzzahlAus(text))
            return *zahl;
        break;
    case FeldTyp::Gleitkomma:
        if (const auto zahl = gleitkommaAus(text))
            return *zahl;
        break;
    case FeldTyp::Datum:
        if (const auto zeit = parseIso(text))
            return *zeit;
        break;
    case FeldTyp::Text:
        break;
    }
    return std::string(text);
}

FeldTyp feldTypAus(std::string_view typname)
{
    if (typname == "int2" || typname == "int4" || typname == "int8")
        return FeldTyp::Ganzzahl;
    if (typname == "float4" || typname == "float8" || typname == "numeric")
        return FeldTyp::Gleitkomma;
    if (typname == "timestamp" || typname == "timestamptz" || typname == "date")
        return FeldTyp::Datum;
    return FeldTyp::Text;
}

} // namespace quelvarn::postgresql
