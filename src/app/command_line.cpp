#include "app/command_line.h"

#include "session/program.h"

#include <QCoreApplication>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <fmt/format.h>
#include <string_view>

namespace quelvarn {
namespace {

constexpr int WRONG_USE = 2;

constexpr std::string_view HELP = R"(Aufruf: quelvarn [--help | --version]

Register der Solid-Edge-Dokumente. Das Programm öffnet die zuletzt benutzte Datenbank.

  --help, -h      diese Hilfe
  --version, -v   die Version
)";

void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtFatalMsg)
        return;
    fmt::print(stderr, "Quelvarn kann kein Fenster öffnen: Es gibt hier keine Anzeige.\n\n{}\n", text.toStdString());
    std::_Exit(EXIT_FAILURE);
}

QtMessageHandler handlerBefore = nullptr;

} // namespace

std::optional<int> answerWithoutWindow(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--help" || argument == "-h") {
            fmt::print("{}", HELP);
            return EXIT_SUCCESS;
        }
        if (argument == "--version" || argument == "-v") {
            fmt::print("Quelvarn {}.{}.{}\n", VERSION_MAJOR, VERSION_MINOR, VERSION_REVISION);
            return EXIT_SUCCESS;
        }
    }
    return std::nullopt;
}

DisplayCheck::DisplayCheck()
{
    handlerBefore = qInstallMessageHandler(endWithoutDisplay);
}

DisplayCheck::~DisplayCheck()
{
    qInstallMessageHandler(handlerBefore);
}

std::optional<int> refuseUnknownArguments()
{
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2)
        return std::nullopt;
    fmt::print(stderr, "Unbekannte Angabe: {}\n\n{}", arguments[1].toStdString(), HELP);
    return WRONG_USE;
}

} // namespace quelvarn
