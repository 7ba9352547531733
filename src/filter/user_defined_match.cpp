#include "filter/user_defined_match.h"

#include "base/collation.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/sql/conditions.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::string_view VERSAND = "*Versand";

} // namespace

BenutzDefSchritte::Schritt::Schritt(const std::string& Name, const std::string& Wert)
    : name(Name), wert(Wert), muster(trimRightBlanks(Wert), Wildcards::Star), musterBeiKurzen(Wert.ends_with('*')),
      versand(Wert.starts_with(VERSAND))
{}

bool BenutzDefSchritte::Schritt::jederWert() const
{
    return wert == "*" || versand;
}

bool BenutzDefSchritte::Schritt::fitsPattern(std::string_view text) const
{
    const std::string_view trimmed = trimRightBlanks(text);
    return muster.matches(text) || (trimmed.size() < text.size() && muster.matches(trimmed));
}

bool BenutzDefSchritte::Schritt::passt(std::string_view text, bool lang) const
{
    if (wert == "*" || equalText(text, wert))
        return true;
    if (lang && versand)
        return true; // The pattern is then the file name of the row itself.
    return (lang || musterBeiKurzen) && fitsPattern(text);
}

sql::AusdruckZeiger BenutzDefSchritte::Schritt::bedingung() const
{
    if (jederWert())
        return nullptr;
    if (wert.find('*') == std::string::npos)
        return sql::equal("Wert", wert);
    return sql::like("Wert", std::string(trimRightBlanks(wert)) + (wert.ends_with('*') ? "" : "*"), Wildcards::Star);
}

BenutzDefSchritte::BenutzDefSchritte(const Filterzustand& zustand)
{
    if (zustand.FilterSchritte[0].Wert.empty() || zustand.FilterAnzahl >= ALLE_GEFUELLT)
        return;
    for (std::size_t i = 0; i < static_cast<std::size_t>(zustand.FilterAnzahl); ++i)
        schritte_.emplace_back(zustand.FilterSchritte[i].Wert, zustand.FilterSchritte[i].Muster);
}

bool BenutzDefSchritte::trifft(std::string_view Name, std::string_view Wert) const
{
    if (letztes_ && Name == letzterName_ && Wert == letzterWert_)
        return *letztes_;
    letzterName_ = Name;
    letzterWert_ = Wert;
    letztes_ = passt(Name, Wert);
    return *letztes_;
}

bool BenutzDefSchritte::passt(std::string_view Name, std::string_view Wert) const
{
    const bool lang = countCharacters(Wert) >= AB_PFAD;
    return std::ranges::any_of(
        schritte_, [&](const Schritt& schritt) { return equalText(schritt.name, Name) && schritt.passt(Wert, lang); });
}

std::vector<sql::AusdruckZeiger> BenutzDefSchritte::vorauswahl() const
{
    std::vector<sql::AusdruckZeiger> bedingungen;
    for (auto erster = schritte_.begin(); erster != schritte_.end(); ++erster) {
        const auto gleicher = [&](const Schritt& schritt) { return equalText(schritt.name, erster->name); };
        if (std::any_of(schritte_.begin(), erster, gleicher))
            continue;
        std::vector<sql::AusdruckZeiger> werte;
        bool jeder = false;
        for (auto schritt = erster; schritt != schritte_.end(); ++schritt) {
            if (!gleicher(*schritt))
                continue;
            jeder = jeder || schritt->jederWert();
            if (!schritt->jederWert())
                werte.push_back(schritt->bedingung());
        }
        auto name = sql::equal("Name", erster->name);
        bedingungen.push_back(jeder ? std::move(name) : sql::all(std::move(name), sql::any(std::move(werte))));
    }
    return bedingungen;
}

} // namespace quelvarn
