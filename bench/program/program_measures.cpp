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

constexpr int PARTS = 0;
constexpr int ROW_CHANGE = 200;
constexpr int TAB_CHANGE = 20;

// The rows that the measures visit, with their files in place: a person looks at documents that exist.
class RowWay
{
public:
    RowWay(RunningProgram& program, const std::filesystem::path& file) : program_(program)
    {
        connection_.Open(file);
        list_.Open("SELECT filename FROM PartTabelle ORDER BY DokuBez, RevBez DESC", connection_);
    }

    std::size_t next() { return prepare((position_ + 1) % list_.RecordCount()); }
    std::size_t any() { return prepare((position_ + 314'159) % list_.RecordCount()); }

private:
    std::size_t prepare(std::size_t position)
    {
        position_ = position;
        list_.setPosition(position);
        program_.createFile(list_.Text("filename"));
        return position;
    }

    RunningProgram& program_;
    Connection connection_;
    Recordset list_;
    std::size_t position_ = 0;
};

void measureOpen(Measurements& series, RunningProgram& program, const std::filesystem::path& file)
{
    BareSqlite sqlite(file);
    series.compare("program: open a table, rows painted", series.atMany(1.5),
                   {[&] {
                        program.click("ImgSEDoku");
                        PaintWatch(program.grid(PARTS)).wait();
                    },
                    [&] { program.showStartPage(); }},
                   "sqlite3_step, same order", {[&] {
                       sqlite.listAll("SELECT rowid, DokuBez, RevBez FROM PartTabelle ORDER BY DokuBez, RevBez DESC");
                   }});
}

void measureTabChange(Measurements& series, RunningProgram& program)
{
    const auto showTab = [&](int tab) {
        program.press(Qt::Key_1 + tab, Qt::ControlModifier);
        PaintWatch(program.grid(tab)).wait();
    };
    series.limit("program: tab switch back, painted", 20,
                 {[&] { showTab(PARTS); }, [&] { showTab(PARTS + 1); }, TAB_CHANGE});
}

void measureRowChange(Measurements& series, RunningProgram& program, RowWay& route, bool node)
{
    const std::string at = node ? "Knoten on" : "Knoten off";
    program.session().Tree.Node = node;
    QAbstractItemView& grid = program.grid(PARTS);
    PaintWatch slotGuard(grid);
    std::size_t target = 0;
    const auto check = [&] {
        if (grid.currentIndex().row() != static_cast<int>(target))
            throw std::runtime_error(fmt::format("the grid is not on row {}", target));
    };
    const auto toRow = [&] {
        grid.setCurrentIndex(grid.model()->index(static_cast<int>(target), 0));
        slotGuard.wait();
    };
    target = route.any();
    toRow();
    series.limit("program: next row by key, painted, " + at, 5,
                 {[&] {
                      program.press(Qt::Key_Down);
                      slotGuard.wait();
                  },
                  [&] {
                      check();
                      target = route.next();
                  },
                  ROW_CHANGE});
    check();
    series.limit("program: row anywhere, painted, " + at, 5, {toRow, [&] { target = route.any(); }, ROW_CHANGE});
}

} // namespace

void measureProgram(Measurements& series, const std::filesystem::path& file)
{
    RunningProgram program(file);
    measureOpen(series, program, file);
    measureTabChange(series, program);
    RowWay route(program, file);
    for (const bool node : {true, false})
        measureRowChange(series, program, route, node);
}

} // namespace quelvarn::bench
