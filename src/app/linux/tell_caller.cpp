#include "app/tell_caller.h"

#include "app/command_line.h"

#include <cstdio>
#include <cstdlib>

namespace quelvarn {

void tellCaller(const Reply& reply)
{
    std::FILE* output = reply.exitCode == EXIT_SUCCESS ? stdout : stderr;
    std::fputs(reply.text.c_str(), output);
    std::fflush(output);
}

} // namespace quelvarn
