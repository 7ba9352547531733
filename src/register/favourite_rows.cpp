#include "register/favourite_rows.h"

#include "base/collation.h"
#include "database/document_types.h"
#include "database/sql/conditions.h"
#include "session/ini_reader/ini_rows.h"
#include "session/session_state.h"

#include <algorithm>
#include <map>
#include <utility>

namespace quelvarn {
namespace {

constexpr std::string_view GRUPPE = "Favoriten"; // Feld2

// Feld5 is compared by whom it concerns: some engines keep an empty text as Null.
Favorit favoritVon(const Recordset& zeile)
{
    return {textOderLeer(zeile, "Feld4"), textOderLeer(zeile, "Feld5")};
}

using Schluessel = std::pair<std::string, std::string>;
Schluessel schluessel(std::string_view DokuBez, std::string_view RevBez)
{
    return {sortKey(DokuBez), sortKey(RevBez)};
}

using Dateinamen = std::map<Schluessel, std::string>;
void leseDateien(Connection& verbindung, const DokuTyp& typ, sql::AusdruckZeiger einige, Dateinamen& dateien)
{
    Recordset zeilen;
    zeilen.Open(sql::Query(typ.tabelle).columns({"DokuBez", "RevBez", "filename"}).where(std::move(einige)),
                verbindung);
    for (; !zeilen.Eof(); zeilen.MoveNext())
        dateien.try_emplace(schluessel(zeilen.Text("DokuBez"), zeilen.Text("RevBez")), zeilen.Text("filename"));
}

} // namespace

bool derselbe(const Favorit& links, const Favorit& rechts)
{
    return equalText(links.DokuBez, rechts.DokuBez) && equalText(links.RevBez, rechts.RevBez);
}

std::vector<Favorit> leseFavoriten(SessionState& session, const DokuTyp& typ)
{
    IniZeilen ini(session.database.Verbindung);
    std::vector<Favorit> favoriten;
    for (Recordset zeilen = ini.lese(sql::Query("Ini")
                                         .where(iniRows(session.user.Anwender, GRUPPE, typ.schluessel))
                                         .sortedBy("Feld4")
                                         .sortedBy("Feld5"));
         !zeilen.Eof(); zeilen.MoveNext())
        favoriten.push_back(favoritVon(zeilen));
    favoriten.erase(std::unique(favoriten.begin(), favoriten.end(), derselbe), favoriten.end());
    return favoriten;
}

void schreibeFavorit(SessionState& session, const DokuTyp& typ, const Favorit& favorit)
{
    IniZeilen ini(session.database.Verbindung);
    ini.writeAlone();
    for (Recordset zeilen = ini.lese(sql::Query("Ini").where(
             sql::all(iniRows(session.user.Anwender, GRUPPE, typ.schluessel), sql::equal("Feld4", favorit.DokuBez))));
         !zeilen.Eof(); zeilen.MoveNext())
        if (derselbe(favoritVon(zeilen), favorit))
            return;
    ini.fuegeAn({session.user.Anwender, GRUPPE, typ.schluessel, favorit.DokuBez, favorit.RevBez});
    ini.schliesseAb();
}

void loescheFavoriten(SessionState& session, const DokuTyp& typ, std::span<const Favorit> favoriten)
{
    std::vector<Schluessel> gemeint;
    for (const Favorit& favorit : favoriten)
        gemeint.push_back(schluessel(favorit.DokuBez, favorit.RevBez));
    std::ranges::sort(gemeint);

    IniZeilen ini(session.database.Verbindung);
    Recordset zeilen = ini.zeilen(session.user.Anwender, GRUPPE, typ.schluessel);
    Transaktion transaktion(session.database.Verbindung);
    while (!zeilen.Eof()) {
        const Favorit favorit = favoritVon(zeilen);
        if (std::ranges::binary_search(gemeint, schluessel(favorit.DokuBez, favorit.RevBez)))
            zeilen.Delete(); // Moves to the next row.
        else
            zeilen.MoveNext();
    }
    transaktion.schliesseAb();
}

std::vector<std::string> dateienVon(Connection& verbindung, const DokuTyp& typ, std::span<const Favorit> favoriten)
{
    std::vector<sql::AusdruckZeiger> gefragte;
    for (const Favorit& favorit : favoriten)
        gefragte.push_back(sql::equal("DokuBez", favorit.DokuBez));
    Dateinamen dateien;
    for (sql::AusdruckZeiger& einige : sql::chunks(std::move(gefragte)))
        leseDateien(verbindung, typ, std::move(einige), dateien);
    std::vector<std::string> namen;
    for (const Favorit& favorit : favoriten)
        namen.push_back(dateien[schluessel(favorit.DokuBez, favorit.RevBez)]);
    return namen;
}

} // namespace quelvarn
