#include "ui/theme/appearance.h"

#include "ui/theme/colours.h"
#include "ui/theme/style.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QSettings>
#include <QStandardPaths>

#include <array>

namespace quelvarn {

namespace {

constexpr auto KEY_MODE = "Darstellung";
constexpr auto KEY_FREE = "FensterFrei";
constexpr std::array MODE_NAMES{"Automatisch", "Hell", "Dunkel"};

bool dark = false;

// Taken once, before the program's own palette hides it.
bool systemIsDark()
{
    static const bool answer = [] {
#ifdef Q_OS_WIN
        const QSettings topic(
            QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
            QSettings::NativeFormat);
        return topic.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
#else
        return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
#endif
    }();
    return answer;
}

QFont programFont()
{
    QFont font;
#ifdef Q_OS_WIN
    font.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Tahoma")});
#else
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans")});
#endif
    font.setPointSizeF(9);
    return font;
}

// The style sheet with the names of colours filled in.
QString stylesheet(const ColourSet& colours)
{
    QFile file(QStringLiteral(":/quelvarn/style.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(file.readAll());
    // A name that begins another one comes after it.
    const std::array<std::pair<const char*, QColor>, 14> names{{{"@accentDeep", colours.accentDeep},
                                                                {"@accentArea", colours.accentArea},
                                                                {"@accent", colours.accent},
                                                                {"@selection", colours.selection},
                                                                {"@area", colours.area},
                                                                {"@muted", colours.muted},
                                                                {"@indicator", colours.indicator},
                                                                {"@inactive", colours.inactive},
                                                                {"@line", colours.line},
                                                                {"@outline", colours.outline},
                                                                {"@strip", colours.strip},
                                                                {"@text", colours.text},
                                                                {"@hovered", colours.hovered},
                                                                {"@warning", colours.warning}}};
    for (const auto& [name, colour] : names)
        text.replace(QLatin1String(name), colour.name());
    return text;
}

} // namespace

Appearance::Appearance(QString file) : file_(std::move(file))
{
    if (file_.isEmpty())
        file_ = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                QStringLiteral("/Quelvarn/Darstellung.ini");
    const QSettings saved(file_, QSettings::IniFormat);
    const QString name = saved.value(QLatin1String(KEY_MODE)).toString();
    for (std::size_t i = 0; i < MODE_NAMES.size(); ++i)
        if (name == QLatin1String(MODE_NAMES[i]))
            mode_ = static_cast<Mode>(i);
    windowFree_ = saved.value(QLatin1String(KEY_FREE), false).toBool();
}

void Appearance::setMode(Mode mode)
{
    mode_ = mode;
    save(QLatin1String(KEY_MODE), QLatin1String(MODE_NAMES[static_cast<std::size_t>(mode)]));
}

void Appearance::setWindowFree(bool free)
{
    windowFree_ = free;
    save(QLatin1String(KEY_FREE), free ? QStringLiteral("true") : QStringLiteral("false"));
}

void Appearance::save(const QString& name, const QString& value) const
{
    QSettings(file_, QSettings::IniFormat).setValue(name, value);
}

void Appearance::apply(QApplication& program) const
{
    dark = mode_ == Mode::Dark || (mode_ == Mode::Automatic && systemIsDark());
    program.setStyle(newProgramStyle());
    program.setFont(programFont());
    program.setPalette(palette(colourSet()));
    program.setStyleSheet(stylesheet(colourSet()));
}

bool Appearance::darkApplied()
{
    return dark;
}

} // namespace quelvarn
