#pragma once

#include <QProcess>

#include <filesystem>
#include <string>

namespace quelvarn::scenario {

// Another program that holds a register: everything, or for writing only. It is a process of its own, since locks of
// one process do not keep itself out.
class LockHolder
{
public:
    // `mode`: "all", or "writing": others may read. Throws Difference when the register cannot be had.
    LockHolder(const std::filesystem::path& registerFile, const std::string& mode);
    ~LockHolder();
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;

private:
    QProcess process_;
};

// What that process does: takes the lock, says so and holds it until its input ends. Its exit code.
int holdLock(const std::string& mode, const std::string& registerFile);

} // namespace quelvarn::scenario
