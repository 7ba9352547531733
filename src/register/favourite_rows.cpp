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

constexpr std::string_view GROUP = "Favoriten"; // Feld2

// Feld5 is compared by whom it concerns: some engines keep an empty text as Null.
Favourite favouriteOf(const Recordset& row)
{
    return {textOrEmpty(row, "Feld4"), textOrEmpty(row, "Feld5")};
}

using Key = std::pair<std::string, std::string>;
Key key(std::string_view DokuBez, std::string_view RevBez)
{
    return {sortKey(DokuBez), sortKey(RevBez)};
}

using FileNames = std::map<Key, std::string>;
void readFiles(Connection& connection, const DocumentType& type, sql::ExpressionPointer some, FileNames& files)
{
    Recordset rows;
    rows.Open(sql::Query(type.table).columns({"DokuBez", "RevBez", "filename"}).where(std::move(some)), connection);
    for (; !rows.eof(); rows.MoveNext())
        files.try_emplace(key(rows.Text("DokuBez"), rows.Text("RevBez")), rows.Text("filename"));
}

} // namespace

bool same(const Favourite& left, const Favourite& right)
{
    return equalText(left.DokuBez, right.DokuBez) && equalText(left.RevBez, right.RevBez);
}

std::vector<Favourite> readFavourites(Connection& connection, const SessionUser& user, const DocumentType& type)
{
    IniRows ini(connection);
    std::vector<Favourite> favourites;
    for (Recordset rows = ini.read(
             sql::Query("Ini").where(iniRows(user.Anwender, GROUP, type.key)).sortedBy("Feld4").sortedBy("Feld5"));
         !rows.eof(); rows.MoveNext())
        favourites.push_back(favouriteOf(rows));
    favourites.erase(std::unique(favourites.begin(), favourites.end(), same), favourites.end());
    return favourites;
}

void writeFavourite(Connection& connection, const SessionUser& user, const DocumentType& type,
                    const Favourite& favourite)
{
    IniRows ini(connection);
    ini.writeAlone();
    for (Recordset rows = ini.read(sql::Query("Ini").where(
             sql::all(iniRows(user.Anwender, GROUP, type.key), sql::equal("Feld4", favourite.DokuBez))));
         !rows.eof(); rows.MoveNext())
        if (same(favouriteOf(rows), favourite))
            return;
    ini.append({user.Anwender, GROUP, type.key, favourite.DokuBez, favourite.RevBez});
    ini.commit();
}

void removeFavourites(Connection& connection, const SessionUser& user, const DocumentType& type,
                      std::span<const Favourite> favourites)
{
    std::vector<Key> intended;
    for (const Favourite& favourite : favourites)
        intended.push_back(key(favourite.DokuBez, favourite.RevBez));
    std::ranges::sort(intended);

    IniRows ini(connection);
    Recordset rows = ini.rows(user.Anwender, GROUP, type.key);
    Transaction transaction(connection);
    while (!rows.eof()) {
        const Favourite favourite = favouriteOf(rows);
        if (std::ranges::binary_search(intended, key(favourite.DokuBez, favourite.RevBez)))
            rows.Delete(); // Moves to the next row.
        else
            rows.MoveNext();
    }
    transaction.commit();
}

std::vector<std::string> filesOf(Connection& connection, const DocumentType& type,
                                 std::span<const Favourite> favourites)
{
    std::vector<sql::ExpressionPointer> asked;
    for (const Favourite& favourite : favourites)
        asked.push_back(sql::equal("DokuBez", favourite.DokuBez));
    FileNames files;
    for (sql::ExpressionPointer& some : sql::chunks(std::move(asked)))
        readFiles(connection, type, std::move(some), files);
    std::vector<std::string> names;
    for (const Favourite& favourite : favourites)
        names.push_back(files[key(favourite.DokuBez, favourite.RevBez)]);
    return names;
}

} // namespace quelvarn
