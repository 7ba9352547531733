#include "bench/program/program_at_work.h"

#include "bench/register_data.h"
#include "database/document_types.h"
#include "platform/files.h"
#include "session/program.h"
#include "ui/main_view.h"
#include "ui/main_window/main_window_view.h"
#include "ui/text.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

#include <fmt/format.h>
#include <fstream>
#include <stdexcept>

namespace quelvarn::bench {

namespace {

namespace fs = std::filesystem;

// Drive W is a link to the folder of the register, drive C belongs to the program.
fs::path legeLaufwerkeAn(const fs::path& ordner, const fs::path& datenbank)
{
    fs::create_directories(ordner / "c");
    fs::create_directories(ordner / "w");
    fs::create_symlink(fs::absolute(datenbank), ordner / "w" / datenbank.filename());
    return ordner;
}

} // namespace

Antwort LaufendesProgramm::KeineMeldungen::zeige(const Meldung& meldung)
{
    if (meldung.symbol == Symbol::Frage)
        return Antwort::Ja;
    if (erlaubt)
        return Antwort::Ok;
    fmt::print(stderr, "unexpected box: {}\n{}\n", meldung.titel, meldung.text);
    std::exit(2);
}

LaufendesProgramm::LaufendesProgramm(const fs::path& datenbank)
    : system_(systemPorts(legeLaufwerkeAn(ausQt(ordner_.path()), datenbank))),
      ports_(system_->mit(meldungen_, zwischenablage_, fortschritt_)),
      darstellung_(ordner_.filePath(QStringLiteral("look.ini")))
{
    darstellung_.setzeModus(Modus::Hell);
    darstellung_.wendeAn(*qApp);
    session_.user.Anwender = ANWENDER;
    session_.user.Rechner = "Messplatz";
    session_.folders.OrdnerBasis = "C:\\Quelvarnis";
    session_.folders.OrdnerSEDokumente = session_.folders.OrdnerDatenbankPfad = session_.folders.OrdnerOfflineVersand =
        session_.folders.OrdnerBasis;
    session_.database.DatenbankPfad = "W:\\" + datenbank.filename().string();
    if (!Hauptprogramm(session_, ports_))
        throw std::runtime_error("the register of the bench does not open");
    meldungen_.erlaubt = false;
}

LaufendesProgramm::~LaufendesProgramm() = default;

void LaufendesProgramm::zeigeStartseite()
{
    // Where no database stands open the program begins on its start page and forgets the path.
    const std::string pfad = session_.database.DatenbankPfad;
    session_.database.DatenbankOk = false;
    arbeitsplatz_.reset();
    arbeitsplatz_ = std::make_unique<Arbeitsplatz>(session_, ports_, darstellung_, [] { std::exit(2); });
    if (!arbeitsplatz_->starte())
        throw std::runtime_error("the window of the program does not open");
    session_.database.DatenbankOk = true;
    session_.database.DatenbankPfad = pfad;
    QCoreApplication::processEvents();
}

void LaufendesProgramm::klicke(const char* knopf)
{
    QTest::mouseClick(&widgetOf(QLatin1String(knopf)), Qt::LeftButton);
}

void LaufendesProgramm::druecke(int taste, Qt::KeyboardModifiers zusatz)
{
    QWidget* ziel = QApplication::focusWidget();
    QTest::keyClick(ziel != nullptr ? ziel : &arbeitsplatz_->fenster(), static_cast<Qt::Key>(taste), zusatz);
}

QAbstractItemView& LaufendesProgramm::gitter(int tab)
{
    return dynamic_cast<QAbstractItemView&>(widgetOf(zuQt(DOKUTYPEN[static_cast<std::size_t>(tab)].grid)));
}

QWidget& LaufendesProgramm::widgetOf(const QString& name)
{
    auto* widget = arbeitsplatz_->fenster().findChild<QWidget*>(name);
    if (widget == nullptr)
        throw std::runtime_error("the window has no " + ausQt(name));
    return *widget;
}

void LaufendesProgramm::legeDateiAn(const std::string& pfad)
{
    const fs::path datei = system_->dateien().systempfad(pfad);
    fs::create_directories(datei.parent_path());
    std::ofstream(datei).flush();
}

} // namespace quelvarn::bench
