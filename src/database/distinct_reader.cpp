#include "database/distinct_reader.h"

#include "base/collation.h"

#include <algorithm>
#include <unordered_set>

namespace quelvarn {
namespace {

int vergleiche(const Value& links, const Value& rechts)
{
    const auto* linkerText = std::get_if<std::string>(&links);
    const auto* rechterText = std::get_if<std::string>(&rechts);
    if (linkerText && rechterText)
        return compareText(*linkerText, *rechterText);
    return links < rechts ? -1 : (rechts < links ? 1 : 0); // Null stands before everything.
}

// Equal for rows that are equal to the program. Each cell ends with a NUL, which no key holds.
std::string vergleichsschluessel(const Zeilenleser& zeile)
{
    std::string schluessel;
    for (std::size_t i = 0; i < zeile.spalten().size(); ++i) {
        schluessel += zeile.istNull(i) ? 'N' : 'W';
        schluessel += sortKey(zeile.text(i));
        schluessel += '\0';
    }
    return schluessel;
}

} // namespace

DistinctLeser::DistinctLeser(Zeilenleser& server, const std::vector<sql::Sortierung>& ordnung, std::size_t grenze)
    : spalten_(server.spalten())
{
    lies(server);
    sortiere(ordnung);
    if (grenze > 0 && zeilen_.size() > grenze)
        zeilen_.resize(grenze);
}

void DistinctLeser::lies(Zeilenleser& server)
{
    std::unordered_set<std::string> bekannt;
    while (server.next()) {
        if (!bekannt.insert(vergleichsschluessel(server)).second)
            continue;
        Zeile& zeile = zeilen_.emplace_back();
        for (std::size_t i = 0; i < spalten_.size(); ++i)
            zeile.push_back(server.wert(i));
    }
}

void DistinctLeser::sortiere(const std::vector<sql::Sortierung>& ordnung)
{
    std::vector<std::pair<std::size_t, bool>> stellen;
    for (const sql::Sortierung& teil : ordnung) {
        const auto spalte =
            std::ranges::find_if(spalten_, [&](const Spalte& s) { return equalText(s.name, teil.spalte); });
        stellen.emplace_back(spalte - spalten_.begin(), teil.absteigend); // The renderer has checked the name.
    }
    std::ranges::stable_sort(zeilen_, [&](const Zeile& links, const Zeile& rechts) {
        for (const auto& [stelle, absteigend] : stellen)
            if (const int unterschied = vergleiche(links[stelle], rechts[stelle]))
                return (unterschied < 0) != absteigend;
        return false;
    });
}

std::string_view DistinctLeser::text(std::size_t spalte) const
{
    text_ = alsText(zelle(spalte));
    return text_;
}

} // namespace quelvarn
