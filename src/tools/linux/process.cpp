#include "tools/process.h"

#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace quelvarn::tools {

Prozess::Prozess() : terminal_(isatty(STDERR_FILENO) != 0) {}

Prozess::~Prozess() = default;

std::vector<std::string> Prozess::worte(int anzahl, const char* const* argumente)
{
    return {argumente + 1, argumente + anzahl};
}

int prozessnummer()
{
    return getpid();
}

bool processRuns(int number)
{
    return kill(number, 0) == 0 || errno != ESRCH;
}

bool openFilesCanBeReplaced()
{
    return true;
}

} // namespace quelvarn::tools
