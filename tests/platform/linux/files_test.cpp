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

struct AufDerPlatte : DateienWelt
{
    AufDerPlatte() { fs::create_directory(folder / "w"); }
    Dateien& dateien() override { return eigene; }

    TempFolder folder;
    Laufwerksordner laufwerke{folder.path()};
    LinuxDateien eigene{laufwerke};
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

INSTANTIATE_TEST_SUITE_P(AufDerPlatte, DateienRegeln, testing::Values([] { return std::make_unique<AufDerPlatte>(); }));

TEST(Laufwerksordner, ListsDrivesWithTheirShares)
{
    TempFolder folder;
    fs::create_directory(folder / "W");
    fs::create_directory_symlink("/nicht/eingehaengt", folder / "p");
    writeText(folder / "w.freigabe", "\\\\server\\konstruktion  \r\n");
    writeText(folder / "notiz.txt", "");
    std::string entries;
    for (const Laufwerk& laufwerk : Laufwerksordner(folder.path()).laufwerke())
        entries += laufwerk.buchstabe + laufwerk.eintrag() + "|";
    EXPECT_EQ(entries, "C:c:|P:p:|W:w: [\\\\server\\konstruktion]|");
}

TEST(Laufwerksordner, FindsTheRealPath)
{
    TempFolder folder;
    const Laufwerksordner laufwerke(folder.path());
    writeText(folder / "w/Konstruktion/Welle Ä.par", "");
    writeText(folder / "w/doppelt/a.par", "");
    writeText(folder / "w/doppelt/A.PAR", "");
    writeText(folder / "w.freigabe", "\\\\Server\\Konstruktion");
    writeText(folder / "freigaben/archiv/Alt/x.dft", "");
    struct
    {
        const char* pfad;
        const char* systempfad; // beneath the folder; "" none
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
        const fs::path expected = *c.systempfad ? folder / c.systempfad : fs::path();
        EXPECT_EQ(laufwerke.systempfad(c.pfad), expected) << c.pfad;
    }
    EXPECT_EQ(laufwerke.systempfad(std::string_view("W:\\a\0b", 6)), fs::path());
}

TEST(LinuxDateien, AFailedWriteLeavesTheOldFileAndNothingElse)
{
    AufDerPlatte welt;
    welt.eigene.schreibe("W:\\liste.txt", "alt");
    {
        const SizeLimit limit(100);
        EXPECT_THROW(welt.eigene.schreibe("W:\\liste.txt", std::string(1000, 'x')), Laufzeitfehler);
        EXPECT_THROW(welt.eigene.schreibe("W:\\neu.txt", std::string(1000, 'x')), Laufzeitfehler);
    }
    EXPECT_EQ(welt.eigene.lese("W:\\liste.txt"), "alt");
    EXPECT_EQ(countEntries(welt.folder / "w"), 1U);
}

TEST(LinuxDateien, WritingKeepsRightsAndLinks)
{
    AufDerPlatte welt;
    writeText(welt.folder / "echt.txt", "alt");
    fs::permissions(welt.folder / "echt.txt", fs::perms(0640));
    fs::create_symlink("../echt.txt", welt.folder / "w/link.txt");
    welt.eigene.schreibe("W:\\LINK.txt", "neu");
    EXPECT_TRUE(fs::is_symlink(welt.folder / "w/link.txt"));
    EXPECT_EQ(fs::status(welt.folder / "echt.txt").permissions(), fs::perms(0640));
    EXPECT_EQ(fs::file_size(welt.folder / "echt.txt"), 3U);
}

TEST(LinuxDateien, TellsAttributesInLocalTime)
{
    setenv("TZ", "Europe/Berlin", 1);
    tzset();
    AufDerPlatte welt;
    welt.eigene.schreibe("W:\\.versteckt.par", "12345");
    const auto changed =
        fs::file_time_type::clock::from_sys(std::chrono::sys_seconds(std::chrono::seconds(1088676000)));
    fs::last_write_time(welt.folder / "w/.versteckt.par", changed);
    welt.eigene.kopiere("W:\\.versteckt.par", "W:\\kopie.par");

    const auto original = welt.eigene.attribute("W:\\.versteckt.par");
    const auto copy = welt.eigene.attribute("W:\\kopie.par");
    unsetenv("TZ");
    tzset();
    ASSERT_TRUE(original && copy);
    EXPECT_EQ(formatIso(original->geaendert), "2004-07-01 12:00:00");
    EXPECT_EQ(copy->geaendert, original->geaendert);
    EXPECT_EQ(original->groesse, 5);
    EXPECT_TRUE(original->versteckt);
    EXPECT_FALSE(copy->versteckt);
}

TEST(LinuxDateien, KeepsTheArchiveAttributeOfWriteProtectedFilesToo)
{
    AufDerPlatte welt;
    welt.eigene.schreibe("W:\\x.par", "");
    if (setxattr((welt.folder / "w").c_str(), "user.quelvarn.probe", "1", 1, 0) != 0)
        GTEST_SKIP() << "this file system has no extended attributes";
    welt.eigene.setzeSchreibschutz("W:\\x.par", true);
    EXPECT_FALSE(welt.eigene.attribute("W:\\x.par")->archiv);
    welt.eigene.setzeArchiv("W:\\x.par", true);
    EXPECT_TRUE(welt.eigene.attribute("W:\\x.par")->archiv);
    EXPECT_TRUE(welt.eigene.attribute("W:\\x.par")->schreibgeschuetzt);
    welt.eigene.setzeArchiv("W:\\x.par", false);
    welt.eigene.setzeArchiv("W:\\x.par", false);
    EXPECT_FALSE(welt.eigene.attribute("W:\\x.par")->archiv);
}
