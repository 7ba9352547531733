// Several processes write Ini and CheckInOut rows of one register at once, as several copies of the program do.
// Afterwards every row that a process believes it wrote must be there, exactly once and whole.
//
//     quelvarn-stress REGISTER [--processes 8] [--seconds 60]
//
// Where no file is yet, an empty SQLite register is made for the time of the run.

#include "base/runtime_error.h"
#include "database/connection.h"
#include "database/create.h"
#include "database/recordset.h"
#include "database/sql/conditions.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fmt/format.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace quelvarn;

namespace {

struct Options
{
    std::string target;
    int processes = 8;
    int seconds = 60;
};

Options readOptions(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--processes") == 0 && i + 1 < argc)
            options.processes = std::atoi(argv[++i]);
        else if (std::strcmp(argv[i], "--seconds") == 0 && i + 1 < argc)
            options.seconds = std::atoi(argv[++i]);
        else
            options.target = argv[i];
    }
    return options;
}

std::string nameOf(int process)
{
    return fmt::format("Last{}", process);
}

sql::Select counterOf(const std::string& user)
{
    return sql::Query("Ini").where(sql::all(sql::equal("Feld1", user), sql::equal("Feld2", "Last")));
}

sql::Select useOf(const std::string& user, long turn)
{
    return sql::Query("CheckInOut")
        .where(sql::all(sql::equal("ADNutzer", 1), sql::equal("AnwenderNutzer", user),
                        sql::equal("filenameNutzer", fmt::format("W:\\{}.par", turn))));
}

// A setting of the user's own, changed over and over: read, count up, write back.
void countUp(Connection& connection, const std::string& user)
{
    Recordset row;
    row.Open(counterOf(user), connection, CursorTyp::Statisch, SperrTyp::Optimistisch);
    if (row.Eof()) {
        row.AddNew();
        row.setzeFeld("Feld1", user);
        row.setzeFeld("Feld2", std::string("Last"));
        row.setzeFeld("Feld4", std::string("1"));
    } else {
        row.setzeFeld("Feld4", std::to_string(std::stoll(row.Text("Feld4")) + 1));
    }
    row.Update();
}

void checkOut(Connection& connection, const std::string& user, long turn)
{
    Recordset rows;
    rows.Open(useOf(user, turn), connection, CursorTyp::Schluesselmenge, SperrTyp::Optimistisch);
    rows.AddNew();
    rows.setzeFeld("ADNutzer", std::int64_t{1});
    rows.setzeFeld("AnwenderNutzer", user);
    rows.setzeFeld("RechnerNutzer", user);
    rows.setzeFeld("filenameNutzer", fmt::format("W:\\{}.par", turn));
    rows.setzeFeld("DokuBezNutzer", fmt::format("Dokument {}", turn));
    rows.Update();
}

void checkIn(Connection& connection, const std::string& user, long turn)
{
    Recordset rows;
    rows.Open(useOf(user, turn), connection, CursorTyp::Schluesselmenge, SperrTyp::Optimistisch);
    if (rows.RecordCount() != 1)
        throw Laufzeitfehler(1, "stress", fmt::format("{}: {} rows of turn {}", user, rows.RecordCount(), turn));
    rows.Delete();
}

// Every third document stays checked out. Prints turns and the slowest one, for the parent's sum.
int work(const Options& options, int process)
{
    const auto user = nameOf(process);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(options.seconds);
    long turns = 0;
    double slowest = 0;
    try {
        Connection connection;
        connection.OpenAdresse(options.target);
        for (; std::chrono::steady_clock::now() < end; ++turns) {
            const auto begin = std::chrono::steady_clock::now();
            countUp(connection, user);
            checkOut(connection, user, turns);
            if (turns % 3 != 0)
                checkIn(connection, user, turns);
            slowest =
                std::max(slowest, std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
        }
        Recordset own;
        own.Open(sql::Query("CheckInOut").where(sql::equal("AnwenderNutzer", user)), connection);
        Recordset count;
        count.Open(counterOf(user), connection);
        const long expected = (turns + 2) / 3;
        fmt::print("{}: {} turns, slowest {:.2f} s, rows {} of {}, counter {} of {}\n", user, turns, slowest,
                   own.RecordCount(), expected, count.Text("Feld4"), turns);
        const bool whole = static_cast<long>(own.RecordCount()) == expected && count.RecordCount() == 1 &&
                           count.Text("Feld4") == std::to_string(turns);
        return whole && turns > 0 ? 0 : 1;
    } catch (const std::exception& fault) {
        fmt::print("{}: fault after {} turns: {}\n", user, turns, fault.what());
        return 1;
    }
}

void removeTraces(const std::string& target)
{
    Connection connection;
    connection.OpenAdresse(target);
    connection.Execute("DELETE FROM CheckInOut WHERE AnwenderNutzer Like 'Last%'");
    connection.Execute("DELETE FROM Ini WHERE Feld2 = 'Last'");
}

// False when the register was there before.
bool makeWhereMissing(const std::string& target)
{
    if (target.find("://") != std::string::npos || std::filesystem::exists(target))
        return false;
    legeRegisterAn(*oeffneSqlite(target, true));
    return true;
}

// True when every process found all its rows.
bool runProcesses(const Options& options)
{
    std::vector<pid_t> children;
    for (int i = 0; i < options.processes; ++i)
        if (const pid_t child = fork(); child == 0) {
            const int result = work(options, i);
            std::fflush(stdout);
            _exit(result);
        } else {
            children.push_back(child);
        }
    bool good = true;
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        good = good && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    return good;
}

} // namespace

int main(int argc, char** argv)
{
    const auto options = readOptions(argc, argv);
    if (options.target.empty()) {
        fmt::print(stderr, "quelvarn-stress REGISTER [--processes 8] [--seconds 60]\n");
        return 2;
    }
    const bool made = makeWhereMissing(options.target);
    removeTraces(options.target);
    const bool good = runProcesses(options);
    removeTraces(options.target);
    if (made)
        std::filesystem::remove(options.target);
    fmt::print("{}\n", good ? "No row lost, no fault." : "FAILED");
    return good ? 0 : 1;
}
