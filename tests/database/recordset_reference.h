#pragma once

#include "base/collation.h"
#include "base/like_pattern.h"
#include "base/utf8.h"
#include "database/value.h"

#include <functional>
#include <optional>
#include <random>
#include <string>
#include <vector>

// Random rows and conditions, with what they mean told row by row: the measure for every quicker way.
namespace quelvarn::referenz {

using Zeile = std::vector<Value>; // by the columns below
struct Feld
{
    std::string name;
    FeldTyp typ;
};
inline const std::vector<Feld> FELDER{{"Titel", FeldTyp::Text},
                                      {"Thema", FeldTyp::Text},
                                      {"Nr", FeldTyp::Ganzzahl},
                                      {"Wert", FeldTyp::Gleitkomma},
                                      {"Tag", FeldTyp::Datum}};

// True, false, or nothing where Null is compared.
using Urteil = std::optional<bool>;
struct Bedingung
{
    std::string alsFilter; // day first; means the same where the patterns are those of filters
    std::string alsSql;    // month first
    std::function<Urteil(const Zeile&)> trifft;
};

inline bool passt(std::u32string_view text, std::u32string_view muster)
{
    if (muster.empty())
        return text.empty();
    if (muster[0] == U'%')
        return passt(text, muster.substr(1)) || (!text.empty() && passt(text.substr(1), muster));
    if (text.empty())
        return false;
    if (muster[0] == U'[') {
        const std::size_t ende = muster.find(U']');
        return muster.substr(1, ende - 1).find(text[0]) != muster.npos &&
               passt(text.substr(1), muster.substr(ende + 1));
    }
    return (muster[0] == U'_' || muster[0] == text[0]) && passt(text.substr(1), muster.substr(1));
}

inline int vergleiche(const Value& links, const Value& rechts)
{
    if (const auto* text = std::get_if<std::string>(&links))
        return sortKey(*text).compare(sortKey(alsText(rechts)));
    const double l = alsZahl(links);
    const double r = alsZahl(rechts);
    return l < r ? -1 : l > r ? 1 : 0;
}

class Zufall
{
public:
    explicit Zufall(unsigned saat) : quelle_(saat) {}
    bool filterPatterns = false; // '*' alone is a wildcard; else '%', '_' and classes are.
    std::size_t unter(std::size_t grenze) { return quelle_() % grenze; }
    template <class T> const T& aus(const std::vector<T>& liste) { return liste[unter(liste.size())]; }

    std::string text()
    {
        static const std::vector<std::string> STUECKE{"a", "A", "ä", "Ä", "b",  "B", "ß", "ss",
                                                      " ", "1", "é", "-", "ab", "_", "["};
        std::string ergebnis;
        for (std::size_t n = unter(4); n > 0; --n)
            ergebnis += aus(STUECKE);
        return ergebnis;
    }

    Value wert(FeldTyp typ)
    {
        if (unter(6) == 0)
            return {};
        switch (typ) {
        case FeldTyp::Text:
            return text();
        case FeldTyp::Ganzzahl:
            return static_cast<std::int64_t>(unter(7)) - 2;
        case FeldTyp::Gleitkomma:
            return (static_cast<double>(unter(9)) - 4) / 2;
        case FeldTyp::Datum:
            break;
        }
        return tag();
    }

    Zeile zeile()
    {
        Zeile ergebnis;
        for (const Feld& feld : FELDER)
            ergebnis.push_back(wert(feld.typ));
        return ergebnis;
    }

    Bedingung bedingung(int tiefe)
    {
        if (tiefe == 0 || unter(3) == 0)
            return blatt();
        if (unter(5) == 0) {
            const Bedingung teil = bedingung(tiefe - 1);
            return {"NOT (" + teil.alsFilter + ")", "NOT (" + teil.alsSql + ")", [=](const Zeile& zeile) -> Urteil {
                        const Urteil urteil = teil.trifft(zeile);
                        return urteil ? Urteil(!*urteil) : urteil;
                    }};
        }
        const bool und = unter(2) == 0;
        const std::string wort = und ? ") AND (" : ") OR (";
        const Bedingung links = bedingung(tiefe - 1);
        const Bedingung rechts = bedingung(tiefe - 1);
        return {"(" + links.alsFilter + wort + rechts.alsFilter + ")", "(" + links.alsSql + wort + rechts.alsSql + ")",
                [=](const Zeile& zeile) { return verbunden(links.trifft(zeile), rechts.trifft(zeile), und); }};
    }

private:
    static Urteil verbunden(Urteil links, Urteil rechts, bool und)
    {
        if (links == Urteil(!und) || rechts == Urteil(!und))
            return !und;
        return links && rechts ? Urteil(und) : std::nullopt;
    }

    Zeitpunkt tag()
    {
        return Zeitpunkt::aus(
            {2024, 1 + static_cast<int>(unter(3)), 1 + static_cast<int>(unter(3)), unter(2) ? 12 : 0});
    }

    Bedingung blatt()
    {
        const std::size_t nummer = unter(FELDER.size());
        const Feld& feld = FELDER[nummer];
        if (unter(8) == 0) {
            const bool nicht = unter(2) == 0;
            const std::string text = feld.name + (nicht ? " Is Not Null" : " Is Null");
            return {text, text, [=](const Zeile& zeile) -> Urteil { return istNull(zeile[nummer]) != nicht; }};
        }
        if (feld.typ == FeldTyp::Text && unter(2) == 0)
            return like(nummer);
        static const std::vector<std::pair<std::string, std::function<bool(int)>>> OPERATOREN{
            {"=", [](int o) { return o == 0; }}, {"<>", [](int o) { return o != 0; }},
            {"<", [](int o) { return o < 0; }},  {"<=", [](int o) { return o <= 0; }},
            {">", [](int o) { return o > 0; }},  {">=", [](int o) { return o >= 0; }}};
        const auto& [zeichen, pruefung] = aus(OPERATOREN);
        Value literal;
        while (istNull(literal))
            literal = wert(feld.typ == FeldTyp::Ganzzahl && unter(2) ? FeldTyp::Gleitkomma : feld.typ);
        const std::string davor = feld.name + " " + zeichen + " ";
        return {davor + literalText(literal, true), davor + literalText(literal, false),
                [=, &pruefung = pruefung](const Zeile& zeile) -> Urteil {
                    return istNull(zeile[nummer]) ? Urteil() : pruefung(vergleiche(zeile[nummer], literal));
                }};
    }

    Bedingung like(std::size_t nummer)
    {
        static const std::vector<std::string> STUECKE{"%", "%", "_", "a", "ä", "B", "ß", "[aé]", " ", "1"};
        static const std::vector<std::string> OF_FILTERS{"*", "*", "_", "a", "ä", "B", "ß", "[", " ", "1", "%"};
        std::string filtermuster;
        for (std::size_t n = unter(5); n > 0; --n)
            filtermuster += aus(filterPatterns ? OF_FILTERS : STUECKE);
        const std::string muster = filterPatterns ? asSqlPattern(filtermuster, Wildcards::Star) : filtermuster;
        const bool nicht = unter(3) == 0;
        const std::string davor = FELDER[nummer].name + (nicht ? " NOT LIKE '" : " Like '");
        return {davor + filtermuster + "'", davor + muster + "'",
                [=, gefaltet = toUtf32(foldCase(muster))](const Zeile& zeile) -> Urteil {
                    if (istNull(zeile[nummer]))
                        return std::nullopt;
                    return passt(toUtf32(foldCase(alsText(zeile[nummer]))), gefaltet) != nicht;
                }};
    }

    std::string literalText(const Value& literal, bool tagZuerst)
    {
        if (const auto* text = std::get_if<std::string>(&literal))
            return "'" + *text + "'";
        if (const auto* zeit = std::get_if<Zeitpunkt>(&literal)) {
            const Kalenderzeit k = zeit->kalender();
            const auto zwei = [](int zahl) { return std::string(zahl < 10 ? "0" : "") + std::to_string(zahl); };
            return "#" + zwei(tagZuerst ? k.tag : k.monat) + "/" + zwei(tagZuerst ? k.monat : k.tag) + "/24 " +
                   zwei(k.stunde) + ":00:00#";
        }
        if (const auto* ganz = std::get_if<std::int64_t>(&literal))
            return std::to_string(*ganz);
        std::string zahl = std::to_string(alsZahl(literal));
        return zahl;
    }

    std::mt19937 quelle_;
};

} // namespace quelvarn::referenz
