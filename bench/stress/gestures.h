#pragma once

#include <string>

namespace quelvarn {
struct SessionState;
}

namespace quelvarn::stress {

// What a person does that writes, as the program does it.
enum class Gesture {
    CountUp,          // One row of Ini: read, count up, write back.
    CheckOut,         // One row of CheckInOut comes,
    CheckIn,          // and goes again.
    SaveTexts,        // Old rows of Ini go and new ones come, in one transaction.
    SaveSwitches,     // Many rows of Ini change, in one transaction.
    AddFavourites,    // Three rows of Ini come, in one transaction,
    RemoveFavourites, // and go again, in one transaction.
};

inline constexpr int TEXTS = 6;
inline constexpr int SWITCHES = 10;
inline constexpr int FAVOURITES = 3;

// Groups of Ini rows (Feld2) that the tool writes.
inline constexpr const char* COUNTER_GROUP = "Lastzaehler";
inline constexpr const char* TEXT_GROUP = "Lasttexte";
inline constexpr const char* SWITCH_GROUP = "Lastschalter";

// Turn after turn of a user, without end: the number tells what is done.
Gesture gestureOf(long turn);
// The turn whose rows CheckIn and RemoveFavourites take away.
long undoneBy(long turn);
const char* nameOf(Gesture gesture);

std::string userOf(int process);
inline constexpr const char* ALL_USERS = "!Last-%"; // A pattern.
std::string fileOf(const std::string& user, long turn);
std::string documentOf(long turn);

// Throws what the database throws.
void perform(SessionState& session, long turn);

} // namespace quelvarn::stress
