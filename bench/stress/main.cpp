#include "base/collation.h"
#include "database/connection.h"
#include "database/new_database.h"
#include "database/open_engine.h"
#include "stress/accounting.h"
#include "stress/gestures.h"
#include "stress/processes.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fmt/format.h>
#include <string_view>
#include <unistd.h>

using namespace quelvarn;
using namespace quelvarn::stress;

namespace {

constexpr const char* HELP = R"(quelvarn-stress REGISTER [--processes 8] [--seconds 60] [--kill]

Several processes write one register at once, as several copies of the program do: settings and favourites in Ini,
several rows in one transaction, and rows of CheckInOut. Each keeps a ledger of what was committed to it. Afterwards
every row must be there, exactly once and whole, the database must pass its engine's own check, and no single turn may
have taken longer than two seconds.

  REGISTER      a path, or an address postgresql://...; where nothing is yet, an empty register is made for the run
  --kill        kills one of the processes (SIGKILL) several times a second and starts another in its place

The result is 0 when all is well, 1 otherwise.
)";

constexpr auto LONGEST_TURN = std::chrono::seconds(2);
constexpr std::size_t FINDINGS = 100;

// Nothing when the call cannot be understood.
std::optional<Options> readOptions(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "--kill")
            options.kill = true;
        else if (word == "--processes" && i + 1 < argc)
            options.processes = std::atoi(argv[++i]);
        else if (word == "--seconds" && i + 1 < argc)
            options.seconds = std::atoi(argv[++i]);
        else if (word.starts_with("--") || !options.target.empty())
            return std::nullopt;
        else
            options.target = word;
    }
    if (options.target.empty() || options.processes < 1 || options.seconds < 1)
        return std::nullopt;
    return options;
}

Connection open(const Options& options)
{
    Connection connection;
    connection.openAddress(options.target);
    return connection;
}

// False when the register was there before.
bool makeWhereMissing(const Options& options)
{
    if (options.target.find("://") == std::string::npos) {
        if (std::filesystem::exists(options.target))
            return false;
        createRegister(*openSqlite(options.target, true));
        return true;
    }
    const Connection connection = open(options);
    if (connection.engine().findTable("Ini"))
        return false;
    createRegister(connection.engine());
    return true;
}

void removeMade(const Options& options)
{
    if (options.target.find("://") == std::string::npos) {
        std::filesystem::remove(options.target);
        return;
    }
    const Connection connection = open(options);
    for (const TableSchema& table : registerSchema())
        connection.engine().removeTable(table.name);
}

void removeTraces(const Options& options)
{
    Connection connection = open(options);
    connection.execute("DELETE FROM CheckInOut WHERE AnwenderNutzer Like '!Last-%'");
    connection.execute("DELETE FROM Ini WHERE Feld1 Like '!Last-%'");
}

// What was found wrong, told line by line.
std::size_t compareAll(const Options& options, const std::filesystem::path& folder)
{
    const Connection connection = open(options);
    std::vector<std::string> faults = connection.engine().findDamage(FINDINGS).findings;
    std::size_t turns = 0;
    std::size_t unsure = 0;
    Account slowest;
    for (int process = 0; process < options.processes; ++process) {
        const Account account = readAccount(ledgerOf(folder, process));
        turns += account.done.size();
        unsure += account.unsure.size();
        if (account.slowestTook > slowest.slowestTook)
            slowest = account;
        std::ranges::move(compare(connection.engine(), userOf(process), account), std::back_inserter(faults));
    }
    fmt::print("{} turns, {} cut off by a kill; the slowest took {:.2f} s ({})\n", turns, unsure,
               std::chrono::duration<double>(slowest.slowestTook).count(),
               slowest.slowest < 0 ? "none" : nameOf(gestureOf(slowest.slowest)));
    if (slowest.slowestTook > LONGEST_TURN)
        faults.emplace_back("a turn took longer than two seconds");
    if (turns == 0)
        faults.emplace_back("no turn came to its end");
    for (const std::string& fault : faults)
        fmt::print("{}\n", fault);
    return faults.size();
}

bool run(const Options& options)
{
    const auto folder = std::filesystem::temp_directory_path() / fmt::format("quelvarn-stress-{}", getpid());
    std::filesystem::create_directory(folder);
    const bool made = makeWhereMissing(options);
    removeTraces(options);
    const Outcome outcome = runProcesses(options, folder);
    if (options.kill)
        fmt::print("{} processes were killed\n", outcome.kills);
    const std::size_t faults = compareAll(options, folder);
    if (faults > 0 || outcome.faults > 0) {
        fmt::print("FAILED; the ledgers are in {}\n", folder.string());
        return false; // With all its rows, to be looked at.
    }
    removeTraces(options);
    if (made)
        removeMade(options);
    std::filesystem::remove_all(folder);
    fmt::print("No row lost, none half, no fault.\n");
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    const auto options = readOptions(argc, argv);
    if (!options) {
        fmt::print(stderr, "{}", HELP);
        return 2;
    }
    try {
        return run(*options) ? 0 : 1;
    } catch (const std::exception& fault) {
        fmt::print(stderr, "{}\n", fault.what());
        return 1;
    }
}
