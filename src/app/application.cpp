#include "app/application.h"

#include "ui/guard.h"

#include <QLibraryInfo>
#include <QLocale>

namespace quelvarn {

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Quelvarn"));
    setDesktopFileName(QStringLiteral("quelvarn"));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    loadQtTexts();
}

// A packed program carries the texts of all of Qt's libraries in one file, under another name.
void Application::loadQtTexts()
{
    const QString folder[] = {QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                              applicationDirPath() + QStringLiteral("/translations")};
    for (const QString& name : {QStringLiteral("qtbase_de"), QStringLiteral("qt_de")}) {
        if (qtTexts_.load(name, folder[0]) || qtTexts_.load(name, folder[1])) {
            installTranslator(&qtTexts_);
            return;
        }
    }
}

// Slots are guarded one by one; this is the net under what is not a slot, such as drawing.
bool Application::notify(QObject* receiver, QEvent* event)
{
    bool accepted = false;
    if (!SlotGuard::existsIn())
        return QApplication::notify(receiver, event);
    SlotGuard::current().execute([&] { accepted = QApplication::notify(receiver, event); });
    return accepted;
}

} // namespace quelvarn
