#include "tools/process.h"

#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace quelvarn::tools {

Process::Process() : terminal_(isatty(STDERR_FILENO) != 0) {}

Process::~Process() = default;

std::vector<std::string> Process::words(int count, const char* const* arguments)
{
    return {arguments + 1, arguments + count};
}

int processNumber()
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
