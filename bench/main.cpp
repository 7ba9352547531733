#ifdef QUELVARN_BENCH_ACCESS
#include "bench/access/import_measures.h"
#endif
#include "bench/database_measures.h"
#include "bench/filter_measures.h"
#include "bench/register_data.h"
#include "bench/relation_measures.h"
#include "bench/report.h"
#include "bench/user_defined_measures.h"
#include "bench/value_list_measures.h"
#ifdef QUELVARN_BENCH_UI
#include "bench/program/program_run.h"
#endif

#include <algorithm>
#include <exception>
#include <fmt/format.h>
#include <stdexcept>
#include <string>

using namespace quelvarn::bench;

namespace {

constexpr const char* AUFRUF =
    "quelvarn-bench [--documents N] [--runs N] [--database FILE] [--json FILE]\n"
    "               [--access FILE] [--without-program | --only-program] [--without-qt-peer] [--qt-peer-runs N]";

// A smaller register is for trying things out: its figures are only shown beside those of the peers.
constexpr std::size_t DOKUMENTE_DER_GRENZEN = 500'000;

struct Auftrag
{
    std::size_t dokumente = 1'000'000;
    int laeufe = 7;
    int qtLaeufe = 1; // 0 leaves the peer out.
    bool programm = true;
    bool core = true;
    std::filesystem::path json;
    std::filesystem::path datenbank;
    std::filesystem::path access; // Nothing is imported where it is missing.
};

void nimmWert(Auftrag& auftrag, const std::string& name, const std::string& wert)
{
    if (name == "--documents")
        auftrag.dokumente = std::stoull(wert);
    else if (name == "--runs")
        auftrag.laeufe = std::max(std::stoi(wert), 1);
    else if (name == "--qt-peer-runs")
        auftrag.qtLaeufe = std::max(std::stoi(wert), 1);
    else if (name == "--json")
        auftrag.json = wert;
    else if (name == "--access")
        auftrag.access = wert;
    else if (name == "--database")
        auftrag.datenbank = wert;
    else
        throw std::invalid_argument(AUFRUF);
}

Auftrag leseAuftrag(int anzahl, char** argumente)
{
    Auftrag auftrag;
    for (int i = 1; i < anzahl; ++i) {
        const std::string name = argumente[i];
        if (name == "--without-program")
            auftrag.programm = false;
        else if (name == "--only-program")
            auftrag.core = false;
        else if (name == "--without-qt-peer")
            auftrag.qtLaeufe = 0;
        else if (i + 1 < anzahl)
            nimmWert(auftrag, name, argumente[++i]);
        else
            throw std::invalid_argument(AUFRUF);
    }
    if (auftrag.datenbank.empty())
        auftrag.datenbank =
            std::filesystem::temp_directory_path() / fmt::format("quelvarn-bench-{}.qv", auftrag.dokumente);
    return auftrag;
}

void measureCore(Messreihe& reihe, const Auftrag& auftrag)
{
#ifdef QUELVARN_BENCH_ACCESS
    const auto access =
        auftrag.access.empty() ? std::filesystem::path(QUELVARN_TEST_DATA) / "werk-a.mdb" : auftrag.access;
    if (std::filesystem::exists(access))
        messeImport(reihe, access);
#endif
    messeDatenbank(reihe, auftrag.datenbank);
    messeFilterseite(reihe, auftrag.datenbank);
    messeBenutzDef(reihe, auftrag.datenbank);
    messeVerwendung(reihe, auftrag.datenbank);
    messeListen(reihe, auftrag.datenbank);
}

void messe(Messreihe& reihe, const Auftrag& auftrag)
{
    if (auftrag.core)
        measureCore(reihe, auftrag);
#ifdef QUELVARN_BENCH_UI
    if (auftrag.programm)
        messeFenster(reihe, auftrag.datenbank, auftrag.qtLaeufe);
#endif
}

} // namespace

// Ends with 1 when a bound is exceeded.
int main(int anzahl, char** argumente)
{
    try {
        const Auftrag auftrag = leseAuftrag(anzahl, argumente);
        legeRegisterBereit(auftrag.datenbank, auftrag.dokumente);
        Messreihe reihe(auftrag.laeufe, auftrag.dokumente >= DOKUMENTE_DER_GRENZEN);
        messe(reihe, auftrag);
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
