#pragma once

#include <string>
#include <vector>

namespace quelvarn::tools {

// What the process gets from its system. While the object lives, its streams carry UTF-8 with plain line ends,
// wherever they lead.
class Prozess
{
public:
    Prozess();
    ~Prozess(); // NOLINT(performance-trivially-destructible): on one system it has work.
    Prozess(const Prozess&) = delete;
    Prozess& operator=(const Prozess&) = delete;

    // The words of the call behind the program's name.
    static std::vector<std::string> worte(int anzahl, const char* const* argumente);
    // A person watches the error stream, and the line can be rewritten there.
    bool meldungenAmTerminal() const { return terminal_; }

private:
    bool terminal_ = false;
    unsigned zeichensatzVorher_ = 0; // Of the console; 0 where nothing was changed.
};

int prozessnummer();
// Of this computer, whoever started it.
bool processRuns(int number);
// A file can be replaced by renaming another one over it while it is open.
bool openFilesCanBeReplaced();

} // namespace quelvarn::tools
