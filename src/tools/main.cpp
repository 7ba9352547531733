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
    const Prozess prozess;
    const std::vector<std::string> worte = Prozess::worte(argc, argv);
    Konsole konsole{std::cout, std::cerr, prozess.meldungenAmTerminal()};
    const int ergebnis = fuehreAus(worte, konsole);
    std::cout.flush();
    if (std::cout.good())
        return ergebnis;
    std::cerr << "Fehler: Das Ergebnis lässt sich nicht ausgeben: der Datenträger ist voll, oder niemand liest mehr.\n";
    return FEHLGESCHLAGEN;
}
