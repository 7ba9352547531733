#include "scenario_runner/warnings.h"

#include "ui/qt_warnings.h"

#include <QtGlobal>

#include <cstdio>
#include <mutex>
#include <string>
#include <utility>

namespace quelvarn::scenario {

namespace {

// They come from the threads that load pictures, too.
struct Warnings
{
    std::mutex mutex;
    std::string text;
};

Warnings& warnings()
{
    static Warnings all;
    return all;
}

void keep(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (!test::isFault(type, text))
        return;
    if (type == QtFatalMsg)
        std::fprintf(stderr, "Qt: %s\n", qPrintable(text)); // The process ends behind this.
    const std::lock_guard lock(warnings().mutex);
    warnings().text += "\n  Qt: " + text.toStdString();
}

} // namespace

void keepWarnings()
{
    qInstallMessageHandler(keep);
}

std::string takeWarnings()
{
    const std::lock_guard lock(warnings().mutex);
    return std::exchange(warnings().text, {});
}

} // namespace quelvarn::scenario
