#include "tools/befehle.h"
#include "tools/prozess.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    using namespace quelvarn::tools;
    std::ios::sync_with_stdio(false);
    const Prozess prozess;
    const std::vector<std::string> worte = Prozess::worte(argc, argv);
    Konsole konsole{std::cout, std::cerr, prozess.meldungenAmTerminal()};
    const int ergebnis = fuehreAus(worte, konsole);
    std::cout.flush();
    return std::cout.good() ? ergebnis : FEHLGESCHLAGEN;
}
