#include "app/command_line.h"

#include <cstdio>
#include <cstdlib>

namespace quelvarn {

void tellCaller(const Answer& answer)
{
    std::FILE* output = answer.exitCode == EXIT_SUCCESS ? stdout : stderr;
    std::fputs(answer.text.c_str(), output);
    std::fflush(output);
}

} // namespace quelvarn
