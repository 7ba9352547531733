#include "database/sql/literal.h"

#include "base/date_time.h"
#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace quelvarn::sql {
namespace {

bool istZiffer(char zeichen)
{
    return zeichen >= '0' && zeichen <= '9';
}

bool beginntZahl(char zeichen)
{
    return istZiffer(zeichen) || zeichen == '+' || zeichen == '-' || zeichen == '.';
}

bool beginntLiteral(Leser leser)
{
    const char zeichen = leser.vorschau();
    return zeichen == '\'' || zeichen == '"' || zeichen == '#' || beginntZahl(zeichen) || leser.nimmWort("NULL");
}

bool endetZuweisung(Leser leser)
{
    std::string spalte;
    if (leser.nimmZeichen(","))
        return leser.nimmName(spalte) && leser.nimmZeichen("=");
    return leser.nimmWort("WHERE") || leser.nimmEnde();
}

bool endetBedingung(Leser leser, Stelle stelle, int klammern)
{
    while (leser.nimmZeichen(")")) {
        if (--klammern < 0)
            return false;
    }
    if (leser.nimmEnde() || leser.nimmWort("AND") || leser.nimmWort("OR"))
        return true;
    return stelle == Stelle::Bedingung && leser.nimmWort("ORDER") && leser.nimmWort("BY");
}

// "11/15/26 08:00:00" with the first two numbers exchanged; "" when it has no such form.
std::string vertauscht(std::string_view datum)
{
    const auto keineZiffer = [](char zeichen) { return !istZiffer(zeichen); };
    const auto ersteEnde = std::ranges::find_if(datum, keineZiffer);
    if (ersteEnde == datum.end())
        return {};
    const auto zweiteEnde = std::find_if(ersteEnde + 1, datum.end(), keineZiffer);
    return std::string(ersteEnde + 1, zweiteEnde) + *ersteEnde + std::string(datum.begin(), ersteEnde) +
           std::string(zweiteEnde, datum.end());
}

} // namespace

Value Literalleser::lies(Stelle stelle, int klammern)
{
    const char zeichen = leser_.vorschau();
    if (zeichen == '\'')
        return text(stelle, klammern);
    if (zeichen == '"')
        return textInAnfuehrung();
    if (zeichen == '#')
        return datum();
    if (beginntZahl(zeichen))
        return zahl();
    if ((stelle == Stelle::Einfuegewert || stelle == Stelle::Zuweisung) && leser_.nimmWort("NULL"))
        return std::monostate{};
    leser_.syntaxfehler();
}

std::string Literalleser::text(Stelle stelle, int klammern)
{
    const std::string_view alles = leser_.text();
    const std::size_t anfang = leser_.position();
    std::string wert;
    for (std::size_t position = anfang + 1;;) {
        const std::size_t lauf = alles.find('\'', position);
        if (lauf == std::string_view::npos)
            leser_.syntaxfehler(anfang);
        wert += alles.substr(position, lauf - position);
        const std::size_t laenge = laufLaenge(lauf);
        position = lauf + laenge;
        const bool endet = kannEnden(position, stelle, klammern) &&
                           (laenge % 2 == 1 || !wirdNochGeschlossen(position, stelle, klammern));
        wert.append(endet ? laenge / 2 : (laenge + 1) / 2, '\'');
        if (endet) {
            leser_.gehezu(position);
            return wert;
        }
    }
}

std::size_t Literalleser::laufLaenge(std::size_t position) const
{
    const std::size_t ende = std::min(leser_.text().find_first_not_of('\'', position), leser_.text().size());
    return ende - position;
}

bool Literalleser::kannEnden(std::size_t position, Stelle stelle, int klammern) const
{
    Leser danach = leser_;
    danach.gehezu(position);
    switch (stelle) {
    case Stelle::ErsteGrenze:
        return danach.nimmWort("AND");
    case Stelle::Liste:
        return danach.nimmZeichen(",") ? beginntLiteral(danach) : danach.nimmZeichen(")");
    case Stelle::Einfuegewert:
        return danach.nimmZeichen(",") ? beginntLiteral(danach) : danach.nimmZeichen(")") && danach.nimmEnde();
    case Stelle::Zuweisung:
        return endetZuweisung(danach);
    case Stelle::Filterbedingung:
    case Stelle::Bedingung:
        break;
    }
    return endetBedingung(danach, stelle, klammern);
}

// A pair of apostrophes where the text could end as well is one of the text itself when the text still finds its end
// later, as a doubled apostrophe does; otherwise the value ends with a single one.
bool Literalleser::wirdNochGeschlossen(std::size_t position, Stelle stelle, int klammern)
{
    const std::string_view alles = leser_.text();
    if (ungeraderLauf_ <= position) {
        endetDort_.clear();
        ungeraderLauf_ = position;
        std::size_t laenge = 0;
        while (laenge % 2 == 0 && ungeraderLauf_ != std::string_view::npos) {
            ungeraderLauf_ = alles.find('\'', ungeraderLauf_);
            if (ungeraderLauf_ != std::string_view::npos) {
                laenge = laufLaenge(ungeraderLauf_);
                ungeraderLauf_ += laenge;
            }
        }
    }
    if (ungeraderLauf_ == std::string_view::npos)
        return false;
    const auto [eintrag, neu] = endetDort_.try_emplace({stelle, klammern}, false);
    if (neu)
        eintrag->second = kannEnden(ungeraderLauf_, stelle, klammern);
    return eintrag->second;
}

std::string Literalleser::textInAnfuehrung()
{
    const std::string_view alles = leser_.text();
    const std::size_t anfang = leser_.position();
    std::string wert;
    for (std::size_t position = anfang + 1;;) {
        const std::size_t ende = alles.find('"', position);
        if (ende == std::string_view::npos)
            leser_.syntaxfehler(anfang);
        wert += alles.substr(position, ende - position);
        position = ende + 1;
        if (position == alles.size() || alles[position] != '"') {
            leser_.gehezu(position);
            return wert;
        }
        wert += '"';
        ++position;
    }
}

Value Literalleser::zahl()
{
    const std::string_view alles = leser_.text();
    const std::size_t anfang = leser_.position();
    const bool vorzeichen = alles[anfang] == '+' || alles[anfang] == '-';
    const std::int64_t faktor = alles[anfang] == '-' ? -1 : 1;
    const char* const beginn = alles.data() + anfang + (vorzeichen ? 1 : 0);
    const char* const ende = alles.data() + alles.size();

    double gleitkomma = 0;
    const auto gelesen = std::from_chars(beginn, ende, gleitkomma);
    leser_.gehezu(static_cast<std::size_t>(gelesen.ptr - alles.data()));
    // The first character keeps out "--1" and "inf", which from_chars would take.
    const bool lesbar = gelesen.ec == std::errc{} && (istZiffer(*beginn) || *beginn == '.');
    if (!lesbar || leser_.stehtVorWort())
        leser_.syntaxfehler(anfang);

    std::int64_t ganzzahl = 0;
    const auto ganz = std::from_chars(beginn, ende, ganzzahl);
    if (ganz.ec == std::errc{} && ganz.ptr == gelesen.ptr)
        return faktor * ganzzahl;
    return static_cast<double>(faktor) * gleitkomma +
           0.0; // No zero with a sign: written out, it would read as a whole one.
}

Zeitpunkt Literalleser::datum()
{
    const std::string_view alles = leser_.text();
    const std::size_t anfang = leser_.position();
    const std::size_t ende = alles.find('#', anfang + 1);
    if (ende == std::string_view::npos)
        leser_.syntaxfehler(anfang);
    const std::string tagZuerst(trim(alles.substr(anfang + 1, ende - anfang - 1)));
    const std::string monatZuerst = vertauscht(tagZuerst);

    const bool deutsch = folge_ == Datumsfolge::TagZuerst;
    // Where the first number cannot be what it should be, the two change places.
    auto zeit = parseDatum(deutsch ? tagZuerst : monatZuerst);
    if (!zeit)
        zeit = parseDatum(deutsch ? monatZuerst : tagZuerst);
    if (!zeit)
        zeit = parseIso(tagZuerst);
    if (!zeit)
        leser_.syntaxfehler(anfang);
    leser_.gehezu(ende + 1);
    return *zeit;
}

} // namespace quelvarn::sql
