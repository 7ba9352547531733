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
    ladeQtTexte();
}

// A packed program carries the texts of all of Qt's libraries in one file, under another name.
void Anwendung::ladeQtTexte()
{
    const QString ordner[] = {QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                              applicationDirPath() + QStringLiteral("/translations")};
    for (const QString& name : {QStringLiteral("qtbase_de"), QStringLiteral("qt_de")}) {
        if (qtTexte_.load(name, ordner[0]) || qtTexte_.load(name, ordner[1])) {
            installTranslator(&qtTexte_);
            return;
        }
    }
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
