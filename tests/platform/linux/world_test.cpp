#include "fakes/temp_folder.h"
#include "platform/linux/files.h"
#include "platform/linux/printers.h"
#include "platform/linux/running_programs.h"
#include "platform/linux/world.h"

#include <chrono>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace quelvarn;
using testing::UnorderedElementsAre;

namespace fs = std::filesystem;

namespace {

bool comesTrue(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return condition();
}

std::string firstLine(const fs::path& path)
{
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

} // namespace

TEST(RunningPrograms, KnowEachOtherAsLongAsTheyLive)
{
    TempFolder folder;
    const fs::path captions = folder / "run/quelvarn";
    LinuxRunningPrograms own({captions});
    EXPECT_THAT(own.windowTitles(), UnorderedElementsAre());
    own.ownTitle("noch keiner");
    own.ownTitle("W:\\x.mdb    Quelvarn Version 2.0");

    const pid_t child = fork();
    if (child == 0) {
        LinuxRunningPrograms other({captions});
        other.ownTitle("Harvel Version 2.1");
        pause();
        _exit(0);
    }
    EXPECT_TRUE(comesTrue([&] { return own.windowTitles().size() == 2; }));
    EXPECT_THAT(own.windowTitles(), UnorderedElementsAre("W:\\x.mdb    Quelvarn Version 2.0", "Harvel Version 2.1"));
    kill(child, SIGKILL);
    // Dead, though its number is still taken until it has been waited for.
    EXPECT_TRUE(comesTrue([&] { return own.windowTitles().size() == 1; }));
    EXPECT_FALSE(fs::exists(captions / std::to_string(child)));
    waitpid(child, nullptr, 0);
}

TEST(RunningPrograms, LeaveNothingBehindAndSeeThroughNumbersUsedAgain)
{
    TempFolder folder;
    {
        LinuxRunningPrograms own({folder.path()});
        own.ownTitle("Quelvarn Version 2.0");
        std::ofstream(folder / "1") << "99999999999999\nTalvik Version 2.0\n";
        std::ofstream(folder / "notiz") << "kein Programm\n";
        EXPECT_THAT(own.windowTitles(), UnorderedElementsAre("Quelvarn Version 2.0"));
    }
    EXPECT_FALSE(fs::exists(folder / std::to_string(getpid())));
    EXPECT_FALSE(fs::exists(folder / "1"));
    EXPECT_TRUE(fs::exists(folder / "notiz"));
}

// A run folder may be full, missing, or somebody else's.
TEST(RunningPrograms, GoOnWithTheNextFolderOrUnseen)
{
    TempFolder folder;
    const fs::path file = folder / "file";
    std::ofstream(file) << "in the way";
    const fs::path full = "/dev/full/quelvarn";
    LinuxRunningPrograms own({full, file / "quelvarn", file, folder / "second"});
    own.ownTitle("Quelvarn Version 2.0");
    LinuxRunningPrograms other({folder / "first", folder / "second"});
    EXPECT_THAT(other.windowTitles(), UnorderedElementsAre("Quelvarn Version 2.0"));
    other.ownTitle("Harvel Version 2.1");
    EXPECT_EQ(other.windowTitles().size(), 2U);

    LinuxRunningPrograms nowhere({full});
    nowhere.ownTitle("Talvik Version 2.0");
    EXPECT_THAT(nowhere.windowTitles(), UnorderedElementsAre());
}

TEST(DefaultApplication, HandsOverThePathAsOneWord)
{
    TempFolder folder;
    const DriveFolder drives(folder.path());
    LinuxFiles files(drives);
    files.write("C:\\Zusatz; $(x) ä.txt", "");
    const fs::path script = folder / "opener";
    const fs::path told = folder / "told";
    std::ofstream(script) << "#!/bin/sh\nprintf '%s' \"$1\" > '" << told.string() << ".neu'\nmv '" << told.string()
                          << ".neu' '" << told.string() << "'\n";
    fs::permissions(script, fs::perms::owner_all);

    EXPECT_TRUE(LinuxDefaultApplication(files, script.string()).open("c:\\zusatz; $(x) ä.TXT"));
    EXPECT_TRUE(comesTrue([&] { return fs::exists(told); }));
    EXPECT_EQ(firstLine(told), (folder / "c/Zusatz; $(x) ä.txt").string());
    EXPECT_FALSE(LinuxDefaultApplication(files, script.string()).open("C:\\fehlt.txt"));
    EXPECT_FALSE(LinuxDefaultApplication(files, (folder / "kein programm").string()).open("C:\\Zusatz; $(x) ä.txt"));
}

TEST(Printers, ThereIsAStandardWheneverThereIsAPrinter)
{
    const LinuxPrinters printers;
    EXPECT_EQ(printers.standard().has_value(), !printers.names().empty());
}
