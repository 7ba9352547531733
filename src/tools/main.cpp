#include "tools/befehle.h"

#include <iostream>
#include <string>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool meldungenAmTerminal()
{
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return isatty(2) != 0;
#endif
}

} // namespace

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> worte(argv + 1, argv + argc);
    quelvarn::tools::Konsole konsole{std::cout, std::cerr, meldungenAmTerminal()};
    const int ergebnis = quelvarn::tools::fuehreAus(worte, konsole);
    std::cout.flush();
    return std::cout.good() ? ergebnis : quelvarn::tools::FEHLGESCHLAGEN;
}
