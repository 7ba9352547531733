#include "bench/program/program_at_work.h"

#include "bench/register_data.h"
#include "database/document_types.h"
#include "platform/files.h"
#include "session/database_start.h"
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
fs::path createDrives(const fs::path& folder, const fs::path& database)
{
    fs::create_directories(folder / "c");
    fs::create_directories(folder / "w");
    fs::create_symlink(fs::absolute(database), folder / "w" / database.filename());
    return folder;
}

} // namespace

Answer RunningProgram::NoBoxes::show(const Box& box)
{
    if (box.icon == Icon::Question)
        return Answer::Yes;
    if (allowed)
        return Answer::Ok;
    fmt::print(stderr, "unexpected box: {}\n{}\n", box.title, box.text);
    std::exit(2);
}

RunningProgram::RunningProgram(const fs::path& database)
    : system_(systemPorts(createDrives(fromQt(folder_.path()), database))),
      ports_(system_->with(boxes_, clipboard_, progress_)), appearance_(folder_.filePath(QStringLiteral("look.ini")))
{
    appearance_.setMode(Mode::Light);
    appearance_.apply(*qApp);
    session_.user.Anwender = USER;
    session_.user.Rechner = "Messplatz";
    session_.folders.OrdnerBasis = "C:\\Quelvarnis";
    session_.folders.OrdnerSEDokumente = session_.folders.OrdnerDatenbankPfad = session_.folders.OrdnerOfflineVersand =
        session_.folders.OrdnerBasis;
    session_.database.DatenbankPfad = "W:\\" + database.filename().string();
    if (!Hauptprogramm(session_, ports_))
        throw std::runtime_error("the register of the bench does not open");
    boxes_.allowed = false;
}

RunningProgram::~RunningProgram() = default;

void RunningProgram::showStartPage()
{
    // Where no database stands open the program begins on its start page and forgets the path.
    const std::string path = session_.database.DatenbankPfad;
    session_.database.DatenbankOk = false;
    workplace_.reset();
    workplace_ = std::make_unique<Workplace>(session_, ports_, appearance_, [] { std::exit(2); });
    if (!workplace_->start())
        throw std::runtime_error("the window of the program does not open");
    session_.database.DatenbankOk = true;
    session_.database.DatenbankPfad = path;
    QCoreApplication::processEvents();
}

void RunningProgram::click(const char* button)
{
    QTest::mouseClick(&widgetOf(QLatin1String(button)), Qt::LeftButton);
}

void RunningProgram::press(int key, Qt::KeyboardModifiers addition)
{
    QWidget* target = QApplication::focusWidget();
    QTest::keyClick(target != nullptr ? target : &workplace_->window(), static_cast<Qt::Key>(key), addition);
}

QAbstractItemView& RunningProgram::grid(int tab)
{
    return dynamic_cast<QAbstractItemView&>(widgetOf(toQt(DOCUMENT_TYPES[static_cast<std::size_t>(tab)].grid)));
}

QWidget& RunningProgram::widgetOf(const QString& name)
{
    auto* widget = workplace_->window().findChild<QWidget*>(name);
    if (widget == nullptr)
        throw std::runtime_error("the window has no " + fromQt(name));
    return *widget;
}

void RunningProgram::createFile(const std::string& path)
{
    const fs::path file = system_->files().systemPath(path);
    fs::create_directories(file.parent_path());
    std::ofstream(file).flush();
}

} // namespace quelvarn::bench
