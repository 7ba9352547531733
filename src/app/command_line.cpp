#include "app/command_line.h"

#include "session/program_caption.h"

#include <QCommandLineParser>

#include <array>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr int WRONG_CALL = 2;
constexpr std::string_view CALL = "Aufruf: quelvarn [--help] [--version]\n";
constexpr std::string_view HELP = R"(
Quelvarn ist das Register der Solid-Edge-Dokumente. Das Programm öffnet sein
Fenster mit der Datenbank, die zuletzt geöffnet war.

  --help       zeigt diese Hilfe
  --version    zeigt die Version

Optionen von Qt (-platform, -style, -display, ...) gelten wie bei anderen
Programmen.
)";

struct QtOption
{
    const char* name;
    bool hasValue = true;
};

// Of the toolkit itself, which takes them out of the call later on.
constexpr std::array<QtOption, 22> QT_OPTIONS{{
    {"platform"},      {"platformpluginpath"},
    {"platformtheme"}, {"plugin"},
    {"geometry"},      {"qwindowgeometry"},
    {"icon"},          {"qwindowicon"},
    {"title"},         {"qwindowtitle"},
    {"display"},       {"name"},
    {"session"},       {"style"},
    {"stylesheet"},    {"fontengine"},
    {"qmljsdebugger"}, {"reverse", false},
    {"nograb", false}, {"dograb", false},
    {"sync", false},   {"widgetcount", false},
}};

Reply refusal(std::string_view what, const QString& word)
{
    return {fmt::format("quelvarn: {}: {}\n{}Mehr mit: quelvarn --help\n", what, word.toStdString(), CALL), WRONG_CALL};
}

} // namespace

std::optional<Reply> answerTo(int argc, char** argv)
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);

    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help(QStringList{QStringLiteral("help"), QStringLiteral("h")});
    const QCommandLineOption version(QStringList{QStringLiteral("version"), QStringLiteral("v")});
    parser.addOptions({help, version});
    for (const QtOption& option : QT_OPTIONS)
        parser.addOption(QCommandLineOption(QLatin1String(option.name), QString(),
                                            option.hasValue ? QStringLiteral("x") : QString()));

    parser.parse(words);
    if (parser.isSet(help))
        return Reply{fmt::format("{}{}", CALL, HELP)};
    if (parser.isSet(version))
        return Reply{fmt::format("Quelvarn {}.{}.{}\n", VERSION_MAJOR, VERSION_MINOR, VERSION_REVISION)};
    if (const QStringList unknown = parser.unknownOptionNames(); !unknown.isEmpty())
        return refusal("unbekannte Option", unknown.front());
    if (const QStringList others = parser.positionalArguments(); !others.isEmpty())
        return refusal("unbekanntes Argument", others.front());
    return std::nullopt;
}

} // namespace quelvarn
