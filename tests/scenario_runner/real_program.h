#pragma once

#include <QProcess>

#include <filesystem>
#include <optional>
#include <string>

namespace quelvarn::scenario {

// The program as people start it, in a process of its own without a screen. It cannot be driven, but it can be ended
// from outside; what it leaves behind lies in the same world as everything else.
class RealProgram
{
public:
    // `folder`: for its settings; `drives`: the folder of drive links. Returns when its window is there.
    // Throws Difference when it does not come up, and Skipped where it cannot be told.
    RealProgram(const std::filesystem::path& folder, const std::filesystem::path& drives);
    ~RealProgram();
    RealProgram(const RealProgram&) = delete;
    RealProgram& operator=(const RealProgram&) = delete;

    // "TERM", "INT", "HUP" or "KILL"; returns when it has ended. Throws Difference when it goes on.
    void end(const std::string& signal);
    bool running() const { return process_.state() != QProcess::NotRunning; }
    // Empty while it runs, and when a signal ended it.
    std::optional<int> exitCode() const;

private:
    void waitForWindow(const std::filesystem::path& captions);

    QProcess process_;
};

} // namespace quelvarn::scenario
