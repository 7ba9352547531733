#pragma once

#include "database/watched_file.h"
#include "platform/ports.h"

#include <functional>

namespace quelvarn {

struct OpenDatabase;

// Looks whether the file of the open database is still the one that was opened. Another register in its place is
// opened by itself; of a file that is gone the user is told, and what is shown stays until it is back.
class DatabaseWatch
{
public:
    // `openAgain` opens the session's database like one that was chosen, with boxes of its own.
    DatabaseWatch(OpenDatabase& database, Ports& ports, std::function<void()> openAgain);

    // In the time of the timer. Each state is told once; one of a share that does not answer is not told at all.
    void tick();
    // Before a table is built anew. False when another file was opened instead; throws DatabaseFault for one that is
    // away, and what opening another one throws.
    bool stillOpen();

private:
    void requireRegister() const;
    void openReplacement();
    void tickReplaced();

    OpenDatabase& database_;
    Ports& ports_;
    std::function<void()> openAgain_;
    FileState told_ = FileState::Same;
};

} // namespace quelvarn
