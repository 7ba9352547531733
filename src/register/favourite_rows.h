#pragma once

#include <span>
#include <string>
#include <vector>

namespace quelvarn {

class Connection;
struct DocumentType;
class Connection;
struct SessionUser;

// A favourite as the Ini table keeps it; one revision of a document.
struct Favourite
{
    std::string DokuBez, RevBez;
};
bool same(const Favourite& left, const Favourite& right);

// The user's rows of this type by name, each once.
std::vector<Favourite> readFavourites(Connection& connection, const SessionUser& user, const DocumentType& type);
// Unless there is such a row already.
void writeFavourite(Connection& connection, const SessionUser& user, const DocumentType& type,
                    const Favourite& favourite);
// All of them in one transaction.
void removeFavourites(Connection& connection, const SessionUser& user, const DocumentType& type,
                      std::span<const Favourite> favourites);

// The files of these documents, in their order; "" for one that is not in the table. Few statements, each by an index.
std::vector<std::string> filesOf(Connection& connection, const DocumentType& type,
                                 std::span<const Favourite> favourites);

} // namespace quelvarn
