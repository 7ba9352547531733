#include "base/collation.h"
#include "base/windows_path.h"
#include "database/connection.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "register/detail_lists.h"
#include "register/document_questions.h"
#include "register/text_list.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>
#include <utility>
#include <vector>

namespace quelvarn {
namespace {

using Wertpaar = std::pair<std::string, std::string>; // Name, Wert

// The rows of one document by name: sent-to notes, or all others.
std::vector<Wertpaar> leseZeilen(Connection& verbindung, std::string_view tabelle, const DokuRecord& record,
                                 bool versendet)
{
    Recordset zeilen;
    zeilen.Open(sql::Query(tabelle)
                    .columns({"Name", "Wert"})
                    .distinct()
                    .where(sql::all(sql::equal("DokuBez", record.DokuBez), sql::equal("RevBez", record.RevBez)))
                    .sortedBy("Name")
                    .sortedBy("Wert"),
                verbindung);
    std::vector<Wertpaar> alle;
    std::vector<std::string> namen;
    for (; !zeilen.Eof(); zeilen.MoveNext()) {
        alle.emplace_back(zeilen.Text("Name"), zeilen.Text("Wert"));
        namen.push_back(alle.back().first);
    }
    const std::set<std::string> bekannt = kennungen(verbindung, namen);
    std::erase_if(alle, [&](const Wertpaar& zeile) { return bekannt.contains(sortKey(zeile.first)) != versendet; });
    return alle;
}

} // namespace

Recordset benutzDefListe(Connection& verbindung, std::string_view tabelleBenutzDef, const DokuRecord& record)
{
    Textliste liste{"Name", "Wert"};
    for (const auto& [name, wert] : leseZeilen(verbindung, tabelleBenutzDef, record, false))
        liste.zeile({{"Name", name}, {"Wert", wert}});
    return liste.fertig();
}

Recordset sendToListe(Connection& verbindung, std::string_view tabelleBenutzDef, const DokuRecord& record)
{
    Textliste liste{"SendToDatum", "Kennung", "OrderDateiname", "Orderfilename"};
    for (const auto& [name, wert] : leseZeilen(verbindung, tabelleBenutzDef, record, true)) {
        const std::string datei = DateiName(wert);
        liste.zeile({{"SendToDatum", SendToDatum(datei)},
                     {"Kennung", name},
                     {"OrderDateiname", datei},
                     {"Orderfilename", wert}});
    }
    return liste.fertig();
}

std::string SendToDatum(std::string_view OrderDateiname)
{
    constexpr std::size_t STEMPEL = 12;
    constexpr std::size_t MIT_ENDUNG = 16; // "110214103000.txt"
    if (OrderDateiname.size() < MIT_ENDUNG)
        return {};
    const std::string_view stempel = OrderDateiname.substr(OrderDateiname.size() - MIT_ENDUNG, STEMPEL);
    if (stempel.find_first_not_of("0123456789") != std::string_view::npos)
        return {};
    return fmt::format("{}.{}.{}  {}:{}", stempel.substr(4, 2), stempel.substr(2, 2), stempel.substr(0, 2),
                       stempel.substr(6, 2), stempel.substr(8, 2));
}

} // namespace quelvarn
