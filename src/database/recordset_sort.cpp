#include "database/recordset_sort.h"

#include "base/collation.h"
#include "base/text.h"

#include <algorithm>

namespace quelvarn {

std::vector<Sortierfeld> leseSortierung(std::string_view ausdruck,
                                        const std::function<std::size_t(std::string_view)>& feldVon)
{
    std::vector<Sortierfeld> felder;
    if (trim(ausdruck).empty())
        return felder;
    for (const std::string& teil : split(ausdruck, ',')) {
        std::string_view name = trim(teil);
        bool absteigend = false;
        if (const auto luecke = name.rfind(' '); luecke != std::string_view::npos) {
            const std::string richtung = toLower(name.substr(luecke + 1));
            absteigend = richtung == "desc";
            if (absteigend || richtung == "asc")
                name = trim(name.substr(0, luecke));
        }
        if (name.size() > 2 && name.front() == '[' && name.back() == ']')
            name = name.substr(1, name.size() - 2);
        felder.push_back({feldVon(name), absteigend});
    }
    return felder;
}

void sortiere(std::vector<Zeilennummer>& zeilen, const std::vector<Sortierfeld>& felder,
              const std::function<const Column&(std::size_t)>& spalte)
{
    // The last field first: each pass keeps the order of the one before among equal values.
    std::for_each(felder.rbegin(), felder.rend(), [&](const Sortierfeld& feld) {
        const std::vector<std::int64_t> werte = spalte(feld.feld).ordnungswerte();
        const auto frueher = [&](Zeilennummer links, Zeilennummer rechts) { return werte[links] < werte[rechts]; };
        const auto spaeter = [&](Zeilennummer links, Zeilennummer rechts) { return werte[links] > werte[rechts]; };
        if (feld.absteigend)
            std::stable_sort(zeilen.begin(), zeilen.end(), spaeter);
        else
            std::stable_sort(zeilen.begin(), zeilen.end(), frueher);
    });
}

} // namespace quelvarn
