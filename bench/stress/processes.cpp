#include "stress/processes.h"

#include "session/session_state.h"
#include "stress/accounting.h"
#include "stress/gestures.h"
#include "stress/ledger.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fmt/format.h>
#include <random>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace quelvarn::stress {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int SHORTEST_LIFE = 5; // Milliseconds between two kills.
constexpr int LONGEST_LIFE = 150;

void takeTurns(const Options& options, int process, const std::filesystem::path& folder, Clock::time_point end)
{
    const auto file = ledgerOf(folder, process);
    long turn = readAccount(file).next;
    Ledger ledger(file);
    SessionState session;
    session.user.Anwender = userOf(process);
    session.database.connection.openAddress(options.target);
    const std::string neighbour = userOf((process + 1) % options.processes);
    for (; Clock::now() < end; ++turn) {
        ledger.begin(turn);
        const auto begin = Clock::now();
        perform(session, turn);
        if (!isWhole(session.database.connection.engine(), neighbour))
            throw std::runtime_error("half of what " + neighbour + " wrote is to be seen");
        ledger.done(turn, std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin));
    }
}

pid_t start(const Options& options, int process, const std::filesystem::path& folder, Clock::time_point end)
{
    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("cannot start a process");
    if (child > 0)
        return child;
    int result = 0;
    try {
        takeTurns(options, process, folder, end);
    } catch (const std::exception& fault) {
        fmt::print("{}: {}\n", userOf(process), fault.what());
        result = 1;
    }
    std::fflush(stdout);
    _exit(result);
}

// False when it ended with a fault.
bool endedWell(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return (WIFEXITED(status) && WEXITSTATUS(status) == 0) || (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
}

} // namespace

std::filesystem::path ledgerOf(const std::filesystem::path& folder, int process)
{
    return folder / fmt::format("ledger-{}", process);
}

Outcome runProcesses(const Options& options, const std::filesystem::path& folder)
{
    const auto end = Clock::now() + std::chrono::seconds(options.seconds);
    std::vector<pid_t> children;
    for (int i = 0; i < options.processes; ++i)
        children.push_back(start(options, i, folder, end));
    Outcome outcome;
    std::minstd_rand random{std::random_device{}()};
    const auto number = [&](int least, int most) { return std::uniform_int_distribution(least, most)(random); };
    while (options.kill && Clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(number(SHORTEST_LIFE, LONGEST_LIFE)));
        const int victim = number(0, options.processes - 1);
        kill(children[victim], SIGKILL);
        outcome.faults += endedWell(children[victim]) ? 0 : 1;
        children[victim] = start(options, victim, folder, end);
        ++outcome.kills;
    }
    for (const pid_t child : children)
        outcome.faults += endedWell(child) ? 0 : 1;
    return outcome;
}

} // namespace quelvarn::stress
