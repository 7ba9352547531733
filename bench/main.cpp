#include "bench/database_measures.h"
#include "bench/register_data.h"
#include "bench/report.h"

#include <algorithm>
#include <exception>
#include <fmt/format.h>
#include <stdexcept>
#include <string>

using namespace quelvarn::bench;

namespace {

struct Auftrag
{
    std::size_t dokumente = 1'000'000;
    int laeufe = 7;
    std::filesystem::path json;
    std::filesystem::path datenbank;
};

Auftrag leseAuftrag(int anzahl, char** argumente)
{
    Auftrag auftrag;
    for (int i = 1; i < anzahl; i += 2) {
        const std::string name = argumente[i];
        const std::string wert = i + 1 < anzahl ? argumente[i + 1] : "";
        if (name == "--documents" && !wert.empty())
            auftrag.dokumente = std::stoull(wert);
        else if (name == "--runs" && !wert.empty())
            auftrag.laeufe = std::max(std::stoi(wert), 1);
        else if (name == "--json" && !wert.empty())
            auftrag.json = wert;
        else if (name == "--database" && !wert.empty())
            auftrag.datenbank = wert;
        else
            throw std::invalid_argument("quelvarn-bench [--documents N] [--runs N] [--database FILE] [--json FILE]");
    }
    if (auftrag.datenbank.empty())
        auftrag.datenbank =
            std::filesystem::temp_directory_path() / fmt::format("quelvarn-bench-{}.qv", auftrag.dokumente);
    return auftrag;
}

} // namespace

// Ends with 1 when a bound is exceeded.
int main(int anzahl, char** argumente)
{
    try {
        const Auftrag auftrag = leseAuftrag(anzahl, argumente);
        legeRegisterBereit(auftrag.datenbank, auftrag.dokumente);
        Messreihe reihe(auftrag.laeufe);
        messeDatenbank(reihe, auftrag.datenbank);
        zeigeTabelle(reihe.messungen());
        if (!auftrag.json.empty())
            schreibeJson(auftrag.json, reihe.messungen());
        const bool gehalten = std::all_of(reihe.messungen().begin(), reihe.messungen().end(),
                                          [](const Messung& messung) { return messung.gehalten(); });
        return gehalten ? 0 : 1;
    } catch (const std::exception& fehler) {
        fmt::print(stderr, "{}\n", fehler.what());
        return 2;
    }
}
