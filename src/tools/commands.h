#pragma once

#include "tools/arguments.h"
#include "tools/console.h"

#include <span>
#include <string>
#include <string_view>

namespace quelvarn::tools {

inline constexpr int GOOD = 0;
inline constexpr int FAILED = 1;
inline constexpr int WRONG_OPERATED = 2;

// One command of the program.
struct Command
{
    std::string_view name;
    std::string_view shortText;
    std::string_view help;   // Whole text of --help; the first line is the call.
    std::size_t atLeast = 1; // Positional arguments.
    std::size_t atMost = 1;
    std::span<const Option> option;
    int (*execute)(const Arguments&, Console&);
};

extern const Command CREATE_COMMAND;
extern const Command IMPORT_COMMAND;
extern const Command SAMPLE_COMMAND;
extern const Command CHECK_COMMAND;
extern const Command QUERY_COMMAND;
extern const Command RIGHTS_COMMAND;

// Runs the command that the words name and reports what goes wrong. The exit code of the process.
int execute(std::span<const std::string> words, Console& console);

} // namespace quelvarn::tools
