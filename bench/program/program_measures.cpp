#include "bench/program/program_measures.h"

#include "bench/bare_sqlite.h"
#include "bench/program/painted.h"
#include "bench/program/program_at_work.h"
#include "database/connection.h"
#include "database/recordset.h"

#include <QAbstractItemView>

#include <fmt/format.h>
#include <stdexcept>

namespace quelvarn::bench {

namespace {

constexpr int BAUTEILE = 0;
constexpr int ZEILENWECHSEL = 200;
constexpr int TABWECHSEL = 20;

// The rows that the measures visit, with their files in place: a person looks at documents that exist.
class Zeilenweg
{
public:
    Zeilenweg(LaufendesProgramm& programm, const std::filesystem::path& datei) : programm_(programm)
    {
        verbindung_.Open(datei);
        liste_.Open("SELECT filename FROM PartTabelle ORDER BY DokuBez, RevBez DESC", verbindung_);
    }

    std::size_t naechste() { return bereite((stelle_ + 1) % liste_.RecordCount()); }
    std::size_t irgendeine() { return bereite((stelle_ + 314'159) % liste_.RecordCount()); }

private:
    std::size_t bereite(std::size_t stelle)
    {
        stelle_ = stelle;
        liste_.setzeAbsolutePosition(stelle);
        programm_.legeDateiAn(liste_.Text("filename"));
        return stelle;
    }

    LaufendesProgramm& programm_;
    Connection verbindung_;
    Recordset liste_;
    std::size_t stelle_ = 0;
};

void messeOeffnen(Messreihe& reihe, LaufendesProgramm& programm, const std::filesystem::path& datei)
{
    BareSqlite sqlite(datei);
    reihe.vergleiche(
        "program: open a table, rows painted", reihe.beiVielen(1.5),
        {[&] {
             programm.klicke("ImgSEDoku");
             Malwaechter(programm.gitter(BAUTEILE)).warte();
         },
         [&] { programm.zeigeStartseite(); }},
        "sqlite3_step, same order",
        {[&] { sqlite.listeAuf("SELECT rowid, DokuBez, RevBez FROM PartTabelle ORDER BY DokuBez, RevBez DESC"); }});
}

void messeTabwechsel(Messreihe& reihe, LaufendesProgramm& programm)
{
    const auto zeigeTab = [&](int tab) {
        programm.druecke(Qt::Key_1 + tab, Qt::ControlModifier);
        Malwaechter(programm.gitter(tab)).warte();
    };
    reihe.begrenze("program: tab switch back, painted", 20,
                   {[&] { zeigeTab(BAUTEILE); }, [&] { zeigeTab(BAUTEILE + 1); }, TABWECHSEL});
}

void messeZeilenwechsel(Messreihe& reihe, LaufendesProgramm& programm, Zeilenweg& weg, bool knoten)
{
    const std::string bei = knoten ? "Knoten on" : "Knoten off";
    programm.session().Tree.Knoten = knoten;
    QAbstractItemView& gitter = programm.gitter(BAUTEILE);
    Malwaechter waechter(gitter);
    std::size_t ziel = 0;
    const auto pruefe = [&] {
        if (gitter.currentIndex().row() != static_cast<int>(ziel))
            throw std::runtime_error(fmt::format("the grid is not on row {}", ziel));
    };
    const auto zuZeile = [&] {
        gitter.setCurrentIndex(gitter.model()->index(static_cast<int>(ziel), 0));
        waechter.warte();
    };
    ziel = weg.irgendeine();
    zuZeile();
    reihe.begrenze("program: next row by key, painted, " + bei, 5,
                   {[&] {
                        programm.druecke(Qt::Key_Down);
                        waechter.warte();
                    },
                    [&] {
                        pruefe();
                        ziel = weg.naechste();
                    },
                    ZEILENWECHSEL});
    pruefe();
    reihe.begrenze("program: row anywhere, painted, " + bei, 5,
                   {zuZeile, [&] { ziel = weg.irgendeine(); }, ZEILENWECHSEL});
}

} // namespace

void messeProgramm(Messreihe& reihe, const std::filesystem::path& datei)
{
    LaufendesProgramm programm(datei);
    messeOeffnen(reihe, programm, datei);
    messeTabwechsel(reihe, programm);
    Zeilenweg weg(programm, datei);
    for (const bool knoten : {true, false})
        messeZeilenwechsel(reihe, programm, weg, knoten);
}

} // namespace quelvarn::bench
