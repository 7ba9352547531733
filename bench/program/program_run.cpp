#include "bench/program/program_run.h"

#include "bench/program/list_measures.h"
#include "bench/program/program_measures.h"

#include <QApplication>
#include <QLocale>

namespace quelvarn::bench {

void messeFenster(Messreihe& reihe, const std::filesystem::path& datei, int qtLaeufe)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    char name[] = "quelvarn-bench";
    char* argumente[] = {name, nullptr};
    int anzahl = 1;
    const QApplication anwendung(anzahl, argumente);
    messeProgramm(reihe, datei);
    if (qtLaeufe > 0)
        messeListen(reihe, datei, qtLaeufe);
}

} // namespace quelvarn::bench
