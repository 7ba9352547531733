#pragma once

#include <span>
#include <string>
#include <vector>

namespace quelvarn {

class Connection;
struct DokuTyp;
struct SessionState;

// A favourite as the Ini table keeps it; one revision of a document.
struct Favorit
{
    std::string DokuBez, RevBez;
};
bool derselbe(const Favorit& links, const Favorit& rechts);

// The user's rows of this type by name, each once.
std::vector<Favorit> leseFavoriten(SessionState& session, const DokuTyp& typ);
// Unless there is such a row already.
void schreibeFavorit(SessionState& session, const DokuTyp& typ, const Favorit& favorit);
// All of them in one transaction.
void loescheFavoriten(SessionState& session, const DokuTyp& typ, std::span<const Favorit> favoriten);

// The files of these documents, in their order; "" for one that is not in the table. Few statements, each by an index.
std::vector<std::string> dateienVon(Connection& verbindung, const DokuTyp& typ, std::span<const Favorit> favoriten);

} // namespace quelvarn
