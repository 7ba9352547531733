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

constexpr auto SCHLUESSEL_MODUS = "Darstellung";
constexpr auto SCHLUESSEL_FREI = "FensterFrei";
constexpr std::array MODUSNAMEN{"Automatisch", "Hell", "Dunkel"};

bool dunkel = false;

// Taken once, before the program's own palette hides it.
bool systemIstDunkel()
{
    static const bool antwort = [] {
#ifdef Q_OS_WIN
        const QSettings thema(
            QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
            QSettings::NativeFormat);
        return thema.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
#else
        return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
#endif
    }();
    return antwort;
}

QFont programmschrift()
{
    QFont schrift;
#ifdef Q_OS_WIN
    schrift.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Tahoma")});
#else
    schrift.setFamilies(
        {QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans")});
#endif
    schrift.setPointSizeF(9);
    return schrift;
}

// The style sheet with the names of colours filled in.
QString stylesheet(const Farbsatz& farben)
{
    QFile datei(QStringLiteral(":/quelvarn/style.qss"));
    if (!datei.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(datei.readAll());
    // A name that begins another one comes after it.
    const std::array<std::pair<const char*, QColor>, 14> namen{{{"@akzentTief", farben.akzentTief},
                                                                {"@akzentFlaeche", farben.akzentFlaeche},
                                                                {"@akzent", farben.akzent},
                                                                {"@auswahl", farben.auswahl},
                                                                {"@flaeche", farben.flaeche},
                                                                {"@gedaempft", farben.gedaempft},
                                                                {"@hinweis", farben.hinweis},
                                                                {"@inaktiv", farben.inaktiv},
                                                                {"@linie", farben.linie},
                                                                {"@rand", farben.rand},
                                                                {"@streifen", farben.streifen},
                                                                {"@text", farben.text},
                                                                {"@ueberfahren", farben.ueberfahren},
                                                                {"@warnung", farben.warnung}}};
    for (const auto& [name, farbe] : namen)
        text.replace(QLatin1String(name), farbe.name());
    return text;
}

} // namespace

Darstellung::Darstellung(QString datei) : datei_(std::move(datei))
{
    if (datei_.isEmpty())
        datei_ = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 QStringLiteral("/Quelvarn/Darstellung.ini");
    const QSettings gespeichert(datei_, QSettings::IniFormat);
    const QString name = gespeichert.value(QLatin1String(SCHLUESSEL_MODUS)).toString();
    for (std::size_t i = 0; i < MODUSNAMEN.size(); ++i)
        if (name == QLatin1String(MODUSNAMEN[i]))
            modus_ = static_cast<Modus>(i);
    fensterFrei_ = gespeichert.value(QLatin1String(SCHLUESSEL_FREI), false).toBool();
}

void Darstellung::setzeModus(Modus modus)
{
    modus_ = modus;
    sichere(QLatin1String(SCHLUESSEL_MODUS), QLatin1String(MODUSNAMEN[static_cast<std::size_t>(modus)]));
}

void Darstellung::setzeFensterFrei(bool frei)
{
    fensterFrei_ = frei;
    sichere(QLatin1String(SCHLUESSEL_FREI), frei ? QStringLiteral("true") : QStringLiteral("false"));
}

void Darstellung::sichere(const QString& name, const QString& wert) const
{
    QSettings(datei_, QSettings::IniFormat).setValue(name, wert);
}

void Darstellung::wendeAn(QApplication& programm) const
{
    dunkel = modus_ == Modus::Dunkel || (modus_ == Modus::Automatisch && systemIstDunkel());
    programm.setStyle(neuerProgrammstil());
    programm.setFont(programmschrift());
    programm.setPalette(palette(farbsatz()));
    programm.setStyleSheet(stylesheet(farbsatz()));
}

bool Darstellung::dunkelAngewendet()
{
    return dunkel;
}

} // namespace quelvarn
