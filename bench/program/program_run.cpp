#include "bench/program/program_run.h"

#include "bench/program/list_measures.h"
#include "bench/program/program_measures.h"

#include <QApplication>
#include <QLocale>

namespace quelvarn::bench {

void measureWindow(Measurements& series, const std::filesystem::path& file, int qtRuns)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    char name[] = "quelvarn-bench";
    char* arguments[] = {name, nullptr};
    int count = 1;
    const QApplication application(count, arguments);
    measureProgram(series, file);
    if (qtRuns > 0)
        measureLists(series, file, qtRuns);
}

} // namespace quelvarn::bench
