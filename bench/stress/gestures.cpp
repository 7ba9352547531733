#include "stress/gestures.h"

#include "base/runtime_error.h"
#include "database/document_types.h"
#include "database/sql/conditions.h"
#include "register/favourite_rows.h"
#include "session/ini_reader/ini_rows.h"
#include "session/session_state.h"

#include <fmt/format.h>
#include <vector>

namespace quelvarn::stress {
namespace {

constexpr long ROUND = 6; // turns

std::string favouriteOf(long turn, int number)
{
    return fmt::format("Favorit {}-{}", turn, number);
}

void countUp(SessionState& session)
{
    IniRows ini(session.database.connection);
    Recordset row = ini.rows(session.user.Anwender, COUNTER_GROUP);
    if (row.empty())
        ini.append({session.user.Anwender, COUNTER_GROUP, "", "1"});
    else
        ini.update(row, "Feld4", std::to_string(std::stoll(row.Text("Feld4")) + 1));
    ini.commit();
}

Recordset openUses(SessionState& session, long turn)
{
    Recordset rows;
    rows.Open(sql::Query("CheckInOut")
                  .where(sql::all(sql::equal("ADNutzer", 1), sql::equal("AnwenderNutzer", session.user.Anwender),
                                  sql::equal("filenameNutzer", fileOf(session.user.Anwender, turn)))),
              session.database.connection, CursorType::KeySet, LockType::Optimistic);
    return rows;
}

void checkOut(SessionState& session, long turn)
{
    Recordset rows = openUses(session, turn);
    rows.AddNew();
    rows.setField("ADNutzer", std::int64_t{1});
    rows.setField("AnwenderNutzer", session.user.Anwender);
    rows.setField("RechnerNutzer", session.user.Anwender);
    rows.setField("filenameNutzer", fileOf(session.user.Anwender, turn));
    rows.setField("DokuBezNutzer", documentOf(turn));
    rows.Update();
}

// None is there when the process that checked out was killed over it.
void checkIn(SessionState& session, long turn)
{
    Recordset rows = openUses(session, turn);
    if (rows.RecordCount() > 1)
        throw RuntimeError(1, "stress",
                           fmt::format("{} rows of {}", rows.RecordCount(), fileOf(session.user.Anwender, turn)));
    if (!rows.empty())
        rows.Delete();
}

void saveTexts(SessionState& session, long turn)
{
    IniRows ini(session.database.connection);
    Recordset old = ini.rows(session.user.Anwender, TEXT_GROUP);
    ini.remove(old);
    for (int i = 0; i < TEXTS; ++i)
        ini.append({session.user.Anwender, TEXT_GROUP, fmt::format("Text{}", i), std::to_string(turn)});
    ini.commit();
}

void saveSwitches(SessionState& session, long turn)
{
    IniRows ini(session.database.connection);
    Recordset rows = ini.rows(session.user.Anwender, SWITCH_GROUP);
    for (int i = 0; rows.empty() && i < SWITCHES; ++i)
        ini.append({session.user.Anwender, SWITCH_GROUP, fmt::format("Schalter{}", i), std::to_string(turn)});
    for (; !rows.eof(); rows.MoveNext())
        ini.update(rows, "Feld4", std::to_string(turn));
    ini.commit();
}

void addFavourites(SessionState& session, long turn)
{
    Transaction transaction(session.database.connection);
    for (int i = 0; i < FAVOURITES; ++i)
        writeFavourite(session.database.connection, session.user, DOCUMENT_TYPES[0], {favouriteOf(turn, i), "0"});
    transaction.commit();
}

void removeFavourites(SessionState& session, long turn)
{
    std::vector<Favourite> favourites;
    for (int i = 0; i < FAVOURITES; ++i)
        favourites.push_back({favouriteOf(turn, i), "0"});
    removeFavourites(session.database.connection, session.user, DOCUMENT_TYPES[0], favourites);
}

} // namespace

Gesture gestureOf(long turn)
{
    const long round = turn / ROUND;
    switch (turn % ROUND) {
    case 0:
        return Gesture::CountUp;
    case 1:
        return Gesture::CheckOut;
    case 2: // Every third document stays checked out.
        return round % 3 == 0 ? Gesture::CountUp : Gesture::CheckIn;
    case 3:
        return Gesture::SaveTexts;
    case 4:
        return Gesture::SaveSwitches;
    default:
        return round % 2 == 0 ? Gesture::AddFavourites : Gesture::RemoveFavourites;
    }
}

long undoneBy(long turn)
{
    return turn - (gestureOf(turn) == Gesture::CheckIn ? 1 : ROUND);
}

const char* nameOf(Gesture gesture)
{
    switch (gesture) {
    case Gesture::CountUp:
        return "count up";
    case Gesture::CheckOut:
        return "check out";
    case Gesture::CheckIn:
        return "check in";
    case Gesture::SaveTexts:
        return "save texts";
    case Gesture::SaveSwitches:
        return "save switches";
    case Gesture::AddFavourites:
        return "add favourites";
    case Gesture::RemoveFavourites:
        break;
    }
    return "remove favourites";
}

std::string userOf(int process)
{
    return fmt::format("!Last-{}", process);
}

std::string fileOf(const std::string& user, long turn)
{
    return fmt::format("W:\\{}\\{}.par", user, turn);
}

std::string documentOf(long turn)
{
    return fmt::format("Dokument {}", turn);
}

void perform(SessionState& session, long turn)
{
    switch (gestureOf(turn)) {
    case Gesture::CountUp:
        return countUp(session);
    case Gesture::CheckOut:
        return checkOut(session, turn);
    case Gesture::CheckIn:
        return checkIn(session, undoneBy(turn));
    case Gesture::SaveTexts:
        return saveTexts(session, turn);
    case Gesture::SaveSwitches:
        return saveSwitches(session, turn);
    case Gesture::AddFavourites:
        return addFavourites(session, turn);
    case Gesture::RemoveFavourites:
        return removeFavourites(session, undoneBy(turn));
    }
}

} // namespace quelvarn::stress
