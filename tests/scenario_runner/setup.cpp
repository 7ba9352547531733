#include "base/windows_path.h"
#include "database/postgres_cluster.h"
#include "fakes/statements.h"
#include "platform/files.h"
#include "scenario_runner/controls.h"
#include "scenario_runner/steps.h"
#include "scenario_runner/world.h"

#include <QCoreApplication>
#include <QProcess>

#include <filesystem>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <fstream>

namespace quelvarn::scenario {

namespace {

// The administrator's tool, from the folder of this program.
void runAdmin(const std::vector<std::string>& arguments)
{
    QStringList words;
    for (const auto& argument : arguments)
        words << qt(argument);
    QProcess admin;
    admin.start(QCoreApplication::applicationDirPath() + QStringLiteral("/qvadmin"), words);
    if (!admin.waitForFinished(600'000) || admin.exitCode() != 0)
        throw Difference(
            fmt::format("qvadmin {}: {}", fmt::join(arguments, " "), admin.readAllStandardError().toStdString()));
}

// An empty database on the server of this run, and its address in the register's file.
std::string newServerDatabase(const std::filesystem::path& file)
{
    auto* cluster = test::PostgresCluster::find();
    if (cluster == nullptr)
        throw Skipped("PostgreSQL is not installed");
#ifdef __linux__
    if (auto* server = cluster->server()) { // An earlier scenario may have left it stopped.
        server->resume();
        server->start();
    }
#endif
    const auto address = cluster->newDatabase();
    std::ofstream(file, std::ios::binary) << address << "\n";
    return address;
}

void registerVerb(World& world, const Step& step)
{
    const auto& path = step.word(1);
    const auto real = world.realPath(path);
    std::filesystem::create_directories(real.parent_path());
    const bool onServer = step.word(2) == "server";
    const auto target = onServer ? newServerDatabase(real) : real.string();
    const std::size_t first = onServer ? 3 : 2;
    const auto& kind = step.word(first);
    if (kind == "empty") {
        runAdmin({"create", target});
    } else if (kind == "sample") {
        runAdmin({"sample", target, "--documents", step.word(first + 1), "--files", world.realPath("W:\\").string()});
    } else if (kind == "import") {
        const auto source = std::filesystem::path(QUELVARN_TEST_DATA) / step.word(first + 1);
        runAdmin({"import", source.string(), target});
    } else {
        throw Difference(fmt::format("a register of the kind \"{}\" is not known", kind));
    }
    world.useRegister(path);
}

void makeFile(World& world, const Step& step)
{
    const auto real = world.realPath(step.word(1));
    std::filesystem::create_directories(real.parent_path());
    std::ofstream(real, std::ios::binary) << step.joinedText();
}

void lastDatabase(World& world, const Step& step)
{
    const auto real = world.realPath("C:\\Dokumente und Einstellungen Quelvarnis\\Datenbank_Pfad\\Quelvarnis.ini");
    std::filesystem::create_directories(real.parent_path());
    std::ofstream(real, std::ios::binary) << step.word(1) << "\r\n";
}

void expectBox(World& world, const Step& step)
{
    ExpectedBoxes::Foretold foretold{step.word(1), {}, step.has(2) ? step.word(2) : "OK", step.file};
    if (!step.text.empty())
        foretold.text = step.joinedText();
    world.boxes.expect(std::move(foretold));
}

} // namespace

void addSetupVerbs(Verbs& verbs)
{
    verbs["user"] = [](World& world, const Step& step) {
        if (step.has(1))
            world.setUser(step.word(1));
        else
            world.setSystemUser();
    };
    verbs["computer"] = [](World& world, const Step& step) { world.setComputer(step.word(1)); };
    verbs["clock"] = [](World& world, const Step& step) { world.setClock(step.word(1)); };
    verbs["advance"] = [](World& world, const Step& step) { world.advance(std::stoi(step.word(1))); };
    verbs["drive"] = [](World& world, const Step& step) { world.addDrive(step.word(1)); };
    verbs["share"] = [](World& world, const Step& step) { world.addShare(step.word(1), step.word(2)); };
    verbs["register"] = registerVerb;
    verbs["use-register"] = [](World& world, const Step& step) { world.useRegister(step.word(1)); };
    verbs["last-database"] = lastDatabase;
    verbs["file"] = makeFile;
    verbs["remove"] = [](World& world, const Step& step) { world.files().remove(step.word(1)); };
    verbs["sql"] = [](World& world, const Step& step) {
        const std::string more = step.text.empty() ? "" : "\n" + step.joinedText();
        world.connect().execute(test::statement(step.word(1) + more));
    };
    verbs["printer"] = [](World& world, const Step& step) {
        world.setPrinter(step.word(1), std::stoi(step.word(2)), std::stoi(step.word(3)), std::stoi(step.word(4)));
    };
    verbs["no-printers"] = [](World& world, const Step&) { world.removePrinters(); };
    verbs["look"] = [](World& world, const Step& step) { world.look(step.word(1) == "dark"); };
    verbs["window"] = [](World& world, const Step& step) { world.addForeignWindow(step.word(1)); };
    verbs["no-windows"] = [](World& world, const Step&) { world.clearForeignWindows(); };
    verbs["clipboard"] = [](World& world, const Step& step) { world.setClipboard(step.word(1)); };
    verbs["box"] = expectBox;
    verbs["give-up"] = [](World& world, const Step& step) {
        const bool picture = step.has(1) && !world.pictureFolder().empty();
        world.waits.expectGivingUp(picture ? world.pictureFolder() + "/" + step.word(1) + ".png" : "");
    };
    verbs["start"] = [](World& world, const Step&) { world.start(); };
    verbs["close"] = [](World& world, const Step&) { world.close(); };
}

} // namespace quelvarn::scenario
