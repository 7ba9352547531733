#include "filter/value_list.h"

#include "base/collation.h"
#include "base/text.h"

namespace quelvarn {

Werteliste werteliste(std::vector<std::string> werte)
{
    const bool nurLeer = werte.size() == 1 && trimRightBlanks(werte.front()).empty();
    std::string anzahl = std::to_string(nurLeer ? 0 : werte.size());
    return {std::move(werte), std::move(anzahl)};
}

std::string anzeigename(const SessionState& session, std::string_view Feldname)
{
    std::string schluessel = replaceAll(toLower(Feldname), "_", " ");
    if (Feldname == "Stichwoerter")
        schluessel = "stichwörter";
    else if (Feldname == "Geaendert")
        schluessel = "geändert";
    const auto name = session.labels.Bezeichnungen.find(schluessel);
    return name == session.labels.Bezeichnungen.end() ? std::string(Feldname) : name->second;
}

} // namespace quelvarn
