#pragma once

#include <filesystem>
#include <string>

namespace quelvarn::stress {

struct Options
{
    std::string target;
    int processes = 8;
    int seconds = 60;
    bool kill = false;
};

struct Outcome
{
    int kills = 0;
    int faults = 0; // Processes that ended with one; each has told it.
};

// Where a user's ledger lies.
std::filesystem::path ledgerOf(const std::filesystem::path& folder, int process);

// Lets the processes work for the time, each as a user of its own. With `kill` one of them is killed again and again
// (SIGKILL), and another takes its place and its user.
Outcome runProcesses(const Options& options, const std::filesystem::path& folder);

} // namespace quelvarn::stress
