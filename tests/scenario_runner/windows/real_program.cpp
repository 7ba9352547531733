#include "scenario_runner/real_program.h"

#include "scenario_runner/script.h"

namespace quelvarn::scenario {

RealProgram::RealProgram(const std::filesystem::path&, const std::filesystem::path&)
{
    throw Skipped("whether the program's window is there can be told on Linux only");
}

RealProgram::~RealProgram() = default;

void RealProgram::waitForWindow(const std::filesystem::path&) {}

void RealProgram::end(const std::string&) {}

std::optional<int> RealProgram::exitCode() const
{
    return std::nullopt;
}

} // namespace quelvarn::scenario
