#include "stress/ledger.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <fstream>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace quelvarn::stress {

Ledger::Ledger(const std::filesystem::path& file)
    : file_(open(file.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600))
{
    if (file_ < 0)
        throw std::runtime_error("cannot write " + file.string());
}

Ledger::~Ledger()
{
    close(file_);
}

// One call of the system a line: a killed process leaves whole lines.
void Ledger::write(const std::string& line)
{
    if (::write(file_, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
        throw std::runtime_error("cannot write the ledger");
}

void Ledger::begin(long turn)
{
    write(fmt::format("begin {} 0\n", turn));
}

void Ledger::done(long turn, std::chrono::microseconds took)
{
    write(fmt::format("done {} {}\n", turn, took.count()));
}

Account readAccount(const std::filesystem::path& file)
{
    Account account;
    std::ifstream stream(file);
    std::string word;
    long turn = 0;
    long took = 0;
    while (stream >> word >> turn >> took) {
        if (word == "begin") {
            account.unsure.insert(turn);
            account.next = turn + 1;
            continue;
        }
        account.unsure.erase(turn);
        account.done.insert(turn);
        if (std::chrono::microseconds(took) > account.slowestTook) {
            account.slowestTook = std::chrono::microseconds(took);
            account.slowest = turn;
        }
    }
    return account;
}

} // namespace quelvarn::stress
