#include "bench/program/list_measures.h"

#include "bench/bare_sqlite.h"
#include "bench/program/own_list.h"
#include "bench/program/qt_list.h"

#include <fmt/format.h>
#include <malloc.h>
#include <stdexcept>
#include <unistd.h>

namespace quelvarn::bench {

namespace {

constexpr const char* TABELLE = "QSqlTableModel, all rows";
constexpr const char* AUSWAHL = "QSortFilterProxyModel";
constexpr int ZEILENWECHSEL = 100;
constexpr int SPRUNG = 314'159;

double belegt() // MB
{
    const struct mallinfo2 speicher = mallinfo2();
    return static_cast<double>(speicher.uordblks + speicher.hblkhd) / 1e6;
}

// Takes both lists through the same work.
class Listenvergleich
{
public:
    Listenvergleich(Messreihe& reihe, const std::filesystem::path& datei, const std::filesystem::path& kopie,
                    int qtLaeufe)
        : reihe_(reihe), unsere_(datei), andere_(kopie), qtLaeufe_(qtLaeufe)
    {}

    void messe()
    {
        speicher();
        vergleiche(
            "list: open, rows painted", TABELLE, [](Listenfenster& liste) { liste.oeffne(); },
            [](Listenfenster& liste) { liste.schliesse(); });
        zeilenwechsel();
        filter("list: first filter on a column, painted", "Titel", "gefräst", [](Listenfenster& liste) {
            liste.schliesse();
            liste.oeffne();
        });
        filter("list: filter once read, painted", "Titel", "gefräst", {});
        filter("list: filter, all texts different, painted", "filename", "0012", {});
        vergleiche(
            "list: sort by another column, painted", AUSWAHL, [](Listenfenster& liste) { liste.sortiere("Titel"); },
            [](Listenfenster& liste) { liste.sortiere(""); });
    }

private:
    using Schritt = std::function<void(Listenfenster&)>;

    void vergleiche(const std::string& name, const char* peer, const Schritt& tat, const Schritt& vorher)
    {
        vergleiche(name, peer, tat, vorher, vorher);
    }
    void vergleiche(const std::string& name, const char* peer, const Schritt& tat, const Schritt& vorher,
                    const Schritt& vorUnserer)
    {
        reihe_.vergleiche(name, {}, {[&] { tat(unsere_); }, [&] { vorUnserer(unsere_); }}, peer,
                          {[&] { tat(andere_); }, [&] { vorher(andere_); }, qtLaeufe_});
        if (unsere_.anzahl() != andere_.anzahl())
            throw std::runtime_error(
                fmt::format("{}: {} rows, of the peer {}", name, unsere_.anzahl(), andere_.anzahl()));
    }

    void speicher()
    {
        const double leer = belegt();
        unsere_.oeffne();
        const double mitUnserer = belegt();
        andere_.oeffne();
        reihe_.vergleicheGroesse("list: memory when open", "MB", mitUnserer - leer, TABELLE, belegt() - mitUnserer);
    }

    void zeilenwechsel()
    {
        int zeile = 0;
        const auto weiter = [&] { zeile = (zeile + SPRUNG) % unsere_.anzahl(); };
        reihe_.vergleiche("list: row anywhere, all fields read, painted", {},
                          {[&] { unsere_.zeigeZeile(zeile); }, weiter, ZEILENWECHSEL}, TABELLE,
                          {[&] { andere_.zeigeZeile(zeile); }, weiter, ZEILENWECHSEL});
    }

    // The peer holds all columns once it is open, so that its first filter is like any other.
    void filter(const std::string& name, const std::string& spalte, const std::string& text,
                const Schritt& unsereZuerst)
    {
        const Schritt ohneFilter = [&](Listenfenster& liste) { liste.filtere(spalte, ""); };
        const Schritt tat = [&](Listenfenster& liste) { liste.filtere(spalte, text); };
        vergleiche(name, AUSWAHL, tat, ohneFilter, unsereZuerst ? unsereZuerst : ohneFilter);
        ohneFilter(unsere_);
        ohneFilter(andere_);
    }

    Messreihe& reihe_;
    EigeneListe unsere_;
    QtListe andere_;
    int qtLaeufe_;
};

// The peer holds each cell as an object of its own.
bool reichtDerSpeicher(std::int64_t dokumente)
{
    constexpr std::int64_t JE_DOKUMENT = 5'000;
    const std::int64_t frei = static_cast<std::int64_t>(sysconf(_SC_AVPHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    return dokumente * JE_DOKUMENT < frei;
}

} // namespace

void messeListen(Messreihe& reihe, const std::filesystem::path& datei, int qtLaeufe)
{
    if (!QtListe::gibtEs() || !reichtDerSpeicher(BareSqlite(datei).zahl("SELECT COUNT(*) FROM PartTabelle"))) {
        fmt::print("without the peer of ready-made parts: its driver or memory for it is missing\n");
        return;
    }
    Listenvergleich(reihe, datei, legeSchlichteKopieBereit(datei), qtLaeufe).messe();
}

} // namespace quelvarn::bench
