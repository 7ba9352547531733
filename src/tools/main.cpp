#include "tools/commands.h"
#include "tools/process.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    using namespace quelvarn::tools;
    std::ios::sync_with_stdio(false);
    std::cerr.tie(nullptr); // Progress is painted from another thread.
    const Process process;
    const std::vector<std::string> words = Process::words(argc, argv);
    Console console{std::cout, std::cerr, process.boxesAtTerminal()};
    const int result = execute(words, console);
    std::cout.flush();
    if (std::cout.good())
        return result;
    std::cerr << "Fehler: Das Ergebnis lässt sich nicht ausgeben: der Datenträger ist voll, oder niemand liest mehr.\n";
    return FAILED;
}
