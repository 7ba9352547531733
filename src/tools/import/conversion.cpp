#include "base/number_format.h"
#include "base/text.h"
#include "tools/import/table_mapping.h"

#include <cmath>

namespace quelvarn::tools {

namespace {

constexpr std::string_view KEINE_ZAHL = "keine Zahl";
constexpr std::string_view KEINE_GANZE_ZAHL = "keine ganze Zahl";
constexpr std::string_view KEIN_DATUM = "kein Datum von 100 bis 9999";
constexpr std::string_view UNLESBAR = "in der Datei nicht lesbar";
constexpr std::string_view FREMD = "diese Art von Inhalt kennt das Register nicht";

// The first and the day behind the last that Access knows.
constexpr double ERSTER_TAG = -657434;
constexpr double HINTER_DEM_LETZTEN_TAG = 2958466;
constexpr double GANZZAHL_GRENZE = 9007199254740992.0; // Up to here every whole number is exact.

Value datum(double tage, std::string_view& grund)
{
    if (std::isfinite(tage) && tage >= ERSTER_TAG && tage < HINTER_DEM_LETZTEN_TAG)
        return Zeitpunkt::ausTagen(tage);
    grund = KEIN_DATUM;
    return {};
}

Value ausZahl(double zahl, FeldTyp typ, std::string_view& grund)
{
    if (!std::isfinite(zahl)) {
        grund = KEINE_ZAHL;
        return {};
    }
    switch (typ) {
    case FeldTyp::Gleitkomma:
        return zahl;
    case FeldTyp::Datum:
        return datum(zahl, grund);
    case FeldTyp::Text:
        return zahlAlsText(zahl);
    case FeldTyp::Ganzzahl:
        break;
    }
    if (zahl == std::floor(zahl) && std::abs(zahl) <= GANZZAHL_GRENZE)
        return static_cast<std::int64_t>(zahl);
    grund = KEINE_GANZE_ZAHL;
    return {};
}

Value ausGanzzahl(std::int64_t zahl, FeldTyp typ, std::string_view& grund)
{
    if (typ == FeldTyp::Ganzzahl)
        return zahl;
    if (typ == FeldTyp::Text)
        return std::to_string(zahl);
    return ausZahl(static_cast<double>(zahl), typ, grund);
}

Value ausDatum(double tage, FeldTyp typ, std::string_view& grund)
{
    if (typ == FeldTyp::Datum)
        return datum(tage, grund);
    if (typ != FeldTyp::Text)
        return ausZahl(tage, typ, grund);
    const Value wert = datum(tage, grund);
    return istNull(wert) ? Value{} : Value{alsText(wert)};
}

Value ausText(std::string_view text, FeldTyp typ, std::string_view& grund)
{
    if (typ == FeldTyp::Text) {
        if (text.find('\0') == std::string_view::npos)
            return std::string(text);
        std::string ohneNull(text);
        std::erase(ohneNull, '\0'); // No database keeps it inside a text.
        return ohneNull;
    }
    if (trim(text).empty())
        return {};
    if (typ == FeldTyp::Datum) {
        const auto zeit = parseDatum(text);
        grund = zeit ? grund : KEIN_DATUM;
        return zeit ? Value{*zeit} : Value{};
    }
    const auto zahl = parseZahl(text);
    if (zahl)
        return ausZahl(*zahl, typ, grund);
    grund = KEINE_ZAHL;
    return {};
}

} // namespace

Value alsWert(const Zelle& zelle, FeldTyp typ, std::string_view& grund)
{
    switch (zelle.art) {
    case Zellart::Null:
        return {};
    case Zellart::Ganzzahl:
        return ausGanzzahl(zelle.ganzzahl, typ, grund);
    case Zellart::Gleitkomma:
        return ausZahl(zelle.gleitkomma, typ, grund);
    case Zellart::Text:
        return ausText(zelle.text, typ, grund);
    case Zellart::Datum:
        return ausDatum(zelle.gleitkomma, typ, grund);
    case Zellart::Unlesbar:
        grund = UNLESBAR;
        return {};
    case Zellart::Fremd:
        break;
    }
    grund = FREMD;
    return {};
}

} // namespace quelvarn::tools
