#include "app/application.h"

#include "ui/guard.h"

#include <QLibraryInfo>
#include <QLocale>

namespace quelvarn {

Anwendung::Anwendung(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Quelvarn"));
    setDesktopFileName(QStringLiteral("quelvarn"));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString beimProgramm = applicationDirPath() + QStringLiteral("/translations");
    const QString name = QStringLiteral("qtbase_de");
    if (qtTexte_.load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)) || qtTexte_.load(name, beimProgramm))
        installTranslator(&qtTexte_);
}

// Slots are guarded one by one; this is the net under what is not a slot, such as drawing.
bool Anwendung::notify(QObject* empfaenger, QEvent* ereignis)
{
    bool angenommen = false;
    if (!Waechter::gibtEs())
        return QApplication::notify(empfaenger, ereignis);
    Waechter::aktuell().fuehreAus([&] { angenommen = QApplication::notify(empfaenger, ereignis); });
    return angenommen;
}

} // namespace quelvarn
