#include "base/runtime_error.h"
#include "fakes/temp_folder.h"
#include "platform/file_rules.h"
#include "platform/linux/files.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sys/resource.h>
#include <sys/xattr.h>

using namespace quelvarn;

namespace fs = std::filesystem;

namespace {

void writeText(const fs::path& path, const std::string& text)
{
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
}

struct OnDisk : FileWorld
{
    OnDisk() { fs::create_directory(folder / "w"); }
    Files& files() override { return own; }

    TempFolder folder;
    DriveFolder drives{folder.path()};
    LinuxFiles own{drives};
};

// Files may grow to so many bytes only, as on a full disk.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit = {bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_DFL);
    }

private:
    rlimit before_ = {};
};

std::size_t countEntries(const fs::path& folder)
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

} // namespace

INSTANTIATE_TEST_SUITE_P(OnDisk, FileRules, testing::Values([] { return std::make_unique<OnDisk>(); }));

TEST(DriveFolder, ListsDrivesWithTheirShares)
{
    TempFolder folder;
    fs::create_directory(folder / "W");
    fs::create_directory_symlink("/nicht/eingehaengt", folder / "p");
    writeText(folder / "w.freigabe", "\\\\server\\konstruktion  \r\n");
    writeText(folder / "notiz.txt", "");
    std::string entries;
    for (const Drive& drive : DriveFolder(folder.path()).drives())
        entries += drive.letter + drive.entry() + "|";
    EXPECT_EQ(entries, "C:c:|P:p:|W:w: [\\\\server\\konstruktion]|");
}

TEST(DriveFolder, FindsTheRealPath)
{
    TempFolder folder;
    const DriveFolder drives(folder.path());
    writeText(folder / "w/Konstruktion/Welle Ä.par", "");
    writeText(folder / "w/doppelt/a.par", "");
    writeText(folder / "w/doppelt/A.PAR", "");
    writeText(folder / "w.freigabe", "\\\\Server\\Konstruktion");
    writeText(folder / "freigaben/archiv/Alt/x.dft", "");
    struct
    {
        const char* documentPath;
        const char* systemPath; // beneath the folder; "" none
    } const cases[] = {
        {"W:\\Konstruktion\\Welle Ä.par", "w/Konstruktion/Welle Ä.par"},
        {"w:\\KONSTRUKTION\\welle ä.PAR", "w/Konstruktion/Welle Ä.par"},
        {"w:/konstruktion//./neu\\Tief.par", "w/Konstruktion/neu/Tief.par"},
        {"W:Konstruktion\\", "w/Konstruktion"},
        {"W:\\Doppelt\\A.PAR", "w/doppelt/A.PAR"},
        {"W:\\Doppelt\\a.PAR", "w/doppelt/A.PAR"},
        {"W:\\doppelt\\a.par", "w/doppelt/a.par"},
        {"W:\\doppelt\\..\\Konstruktion\\X.par", "w/Konstruktion/X.par"},
        {"W:\\..\\..\\c\\x", "w/c/x"},
        {"\\\\ARCHIV\\alt\\X.dft", "freigaben/archiv/Alt/x.dft"},
        {"\\\\archiv\\Alt\\..\\..\\..\\x.dft", "freigaben/archiv/Alt/x.dft"},
        {"\\\\server\\konstruktion\\KONSTRUKTION", "w/Konstruktion"},
        {"\\\\server\\anderes\\x.par", ""},
        {"\\\\server", ""},
        {"\\\\..\\archiv\\x", ""},
        {"Q:\\x.par", ""},
        {"x.par", ""},
        {"/etc/passwd", ""},
        {"", ""},
    };
    for (const auto& c : cases) {
        const fs::path expected = *c.systemPath ? folder / c.systemPath : fs::path();
        EXPECT_EQ(drives.systemPath(c.documentPath), expected) << c.documentPath;
    }
    EXPECT_EQ(drives.systemPath(std::string_view("W:\\a\0b", 6)), fs::path());
}

TEST(LinuxFiles, AFailedWriteLeavesTheOldFileAndNothingElse)
{
    OnDisk world;
    world.own.write("W:\\liste.txt", "alt");
    {
        const SizeLimit limit(100);
        EXPECT_THROW(world.own.write("W:\\liste.txt", std::string(1000, 'x')), RuntimeError);
        EXPECT_THROW(world.own.write("W:\\neu.txt", std::string(1000, 'x')), RuntimeError);
    }
    EXPECT_EQ(world.own.read("W:\\liste.txt"), "alt");
    EXPECT_EQ(countEntries(world.folder / "w"), 1U);
}

TEST(LinuxFiles, WritingKeepsRightsAndLinks)
{
    OnDisk world;
    writeText(world.folder / "echt.txt", "alt");
    fs::permissions(world.folder / "echt.txt", fs::perms(0640));
    fs::create_symlink("../echt.txt", world.folder / "w/link.txt");
    world.own.write("W:\\LINK.txt", "neu");
    EXPECT_TRUE(fs::is_symlink(world.folder / "w/link.txt"));
    EXPECT_EQ(fs::status(world.folder / "echt.txt").permissions(), fs::perms(0640));
    EXPECT_EQ(fs::file_size(world.folder / "echt.txt"), 3U);
}

TEST(LinuxFiles, TellsAttributesInLocalTime)
{
    setenv("TZ", "Europe/Berlin", 1);
    tzset();
    OnDisk world;
    world.own.write("W:\\.versteckt.par", "12345");
    const auto changed =
        fs::file_time_type::clock::from_sys(std::chrono::sys_seconds(std::chrono::seconds(1088676000)));
    fs::last_write_time(world.folder / "w/.versteckt.par", changed);
    world.own.copy("W:\\.versteckt.par", "W:\\kopie.par");

    const auto original = world.own.attribute("W:\\.versteckt.par");
    const auto copy = world.own.attribute("W:\\kopie.par");
    unsetenv("TZ");
    tzset();
    ASSERT_TRUE(original && copy);
    EXPECT_EQ(formatIso(original->changed), "2004-07-01 12:00:00");
    EXPECT_EQ(copy->changed, original->changed);
    EXPECT_EQ(original->size, 5);
    EXPECT_TRUE(original->hidden);
    EXPECT_FALSE(copy->hidden);
}

TEST(LinuxFiles, KeepsTheArchiveAttributeOfWriteProtectedFilesToo)
{
    OnDisk world;
    world.own.write("W:\\x.par", "");
    if (setxattr((world.folder / "w").c_str(), "user.quelvarn.probe", "1", 1, 0) != 0)
        GTEST_SKIP() << "this file system has no extended attributes";
    world.own.setReadOnly("W:\\x.par", true);
    EXPECT_FALSE(world.own.attribute("W:\\x.par")->archive);
    world.own.setArchive("W:\\x.par", true);
    EXPECT_TRUE(world.own.attribute("W:\\x.par")->archive);
    EXPECT_TRUE(world.own.attribute("W:\\x.par")->readOnly);
    world.own.setArchive("W:\\x.par", false);
    world.own.setArchive("W:\\x.par", false);
    EXPECT_FALSE(world.own.attribute("W:\\x.par")->archive);
}
