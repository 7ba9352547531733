#pragma once

#include <string>
#include <vector>

namespace quelvarn::tools {

// What the process gets from its system. While the object lives, its streams carry UTF-8 with plain line ends,
// wherever they lead.
class Process
{
public:
    Process();
    ~Process(); // NOLINT(performance-trivially-destructible): on one system it has work.
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    // The words of the call behind the program's name.
    static std::vector<std::string> words(int count, const char* const* arguments);
    // A person watches the error stream, and the line can be rewritten there.
    bool boxesAtTerminal() const { return terminal_; }

private:
    bool terminal_ = false;
    unsigned charsetBefore_ = 0; // Of the console; 0 where nothing was changed.
};

int processNumber();
// Of this computer, whoever started it.
bool processRuns(int number);
// A file can be replaced by renaming another one over it while it is open.
bool openFilesCanBeReplaced();

} // namespace quelvarn::tools
