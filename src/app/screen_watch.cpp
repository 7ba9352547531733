#include "app/screen_watch.h"

#include "app/command_line.h"
#include "app/tell_caller.h"

#include <QString>

#include <cstdlib>
#include <fmt/format.h>
#include <string>
#include <utility>

namespace quelvarn {

namespace {

std::string reasons;
QtMessageHandler usual = nullptr;

void lists(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtDebugMsg)
        return usual(type, context, text);
    if (type == QtInfoMsg) // What was tried; the reasons say it again.
        return;
    reasons += text.trimmed().toStdString() + "\n";
    if (type != QtFatalMsg)
        return;
    tellCaller({fmt::format("Quelvarn kann kein Fenster öffnen: Es gibt hier keine Anzeige.\n\nGrund:\n{}", reasons),
                EXIT_FAILURE});
    std::_Exit(EXIT_FAILURE);
}

} // namespace

ScreenWatch::ScreenWatch()
{
    usual = qInstallMessageHandler(lists);
}

// Warnings that were not about the screen are told late, but told.
ScreenWatch::~ScreenWatch()
{
    qInstallMessageHandler(usual);
    if (const std::string text = std::exchange(reasons, {}); !text.empty())
        qWarning("%s", text.c_str());
}

} // namespace quelvarn
