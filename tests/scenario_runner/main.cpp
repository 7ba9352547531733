// quelvarn-scenario [--pictures FOLDER] FILE...: plays scenarios on the real windows. See docs/scenarios.md.

#include "scenario_runner/lock_holder.h"
#include "scenario_runner/script.h"
#include "scenario_runner/steps.h"
#include "scenario_runner/warnings.h"

#include <QApplication>
#include <QCursor>

#include <cstdio>
#include <fmt/format.h>
#include <string>
#include <vector>

namespace {

enum Exit { Passed = 0, Failed = 1, Usage = 2, NotHere = 77 };

int play(const std::vector<std::string>& files, const std::string& pictures)
{
    int result = NotHere;
    for (const auto& file : files) {
        try {
            quelvarn::scenario::runScenario(file, pictures);
            fmt::print("passed   {}\n", file);
            if (result == NotHere)
                result = Passed;
        } catch (const quelvarn::scenario::Skipped& reason) {
            fmt::print("skipped  {}: {}\n", file, reason.what());
        } catch (const std::exception& fault) {
            fmt::print("FAILED   {}\n", fault.what());
            result = Failed;
        }
        std::fflush(stdout);
    }
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && std::string(argv[1]) == "--hold-lock")
        return quelvarn::scenario::holdLock(argv[2], argv[3]);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    quelvarn::scenario::keepWarnings();
    QApplication application(argc, argv);
    QCursor::setPos(10000, 10000); // Beside the window: no control looks as if the pointer were on it.
    std::vector<std::string> files;
    std::string pictures;
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]) == "--pictures" && i + 1 < argc)
            pictures = argv[++i];
        else
            files.emplace_back(argv[i]);
    }
    if (files.empty()) {
        fmt::print(stderr, "quelvarn-scenario [--pictures FOLDER] FILE...\n");
        return Usage;
    }
    return play(files, pictures);
}
