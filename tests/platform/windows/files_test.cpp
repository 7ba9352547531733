#include "base/runtime_error.h"
#include "fakes/temp_folder.h"
#include "platform/file_rules.h"
#include "platform/windows/files.h"
#include "platform/windows/full_path.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/wine.h"
#include "platform/windows/world.h"

#include <functional>
#include <memory>
#include <thread>
#include <windows.h>

using namespace quelvarn;

namespace fs = std::filesystem;

namespace {

// Files whose drives C: and W: are folders of a temporary one.
class FilesInFolder : public WindowsFiles
{
public:
    fs::path systemPath(std::string_view documentPath) const override
    {
        const char letter =
            documentPath.size() > 1 && documentPath[1] == ':' ? static_cast<char>(documentPath[0] | 0x20) : ' ';
        if (letter != 'c' && letter != 'w')
            return WindowsFiles::systemPath(documentPath);
        return WindowsFiles::systemPath(folder() + "\\" + letter + "\\" + std::string(documentPath.substr(2)));
    }
    std::string folder() const { return narrow(folder_.path().native()); }

private:
    TempFolder folder_;
};

struct OnDisk : FileWorld
{
    OnDisk()
    {
        for (const char* drive : {"C:", "W:"})
            own.createFolder(drive);
    }
    ~OnDisk() override
    {
        for (const char* drive : {"C:", "W:"})
            clear(drive);
    }
    Files& files() override { return own; }
    std::wstring name(std::string_view documentPath) const { return longPath(own.systemPath(documentPath).native()); }

    FilesInFolder own;

private:
    // The standard library cannot remove long paths.
    void clear(const std::string& folder)
    {
        for (const FolderEntry& entry : own.content(folder)) {
            const std::string documentPath = folder + "\\" + entry.name;
            if (entry.folder) {
                clear(documentPath);
                RemoveDirectoryW(name(documentPath).c_str());
            } else {
                own.setReadOnly(documentPath, false);
                own.remove(documentPath);
            }
        }
    }
};

// A file that another program has open.
class Opened
{
public:
    Opened(const std::wstring& path, DWORD access, DWORD allowed)
        : handle_(CreateFileW(path.c_str(), access, allowed, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE) << GetLastError();
    }
    ~Opened() { CloseHandle(handle_); }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    void setTimes(const FILETIME& created, const FILETIME& changed)
    {
        EXPECT_TRUE(SetFileTime(handle_, &created, nullptr, &changed));
    }

private:
    HANDLE handle_;
};

FILETIME universal(const SYSTEMTIME& time)
{
    FILETIME result{};
    EXPECT_TRUE(SystemTimeToFileTime(&time, &result));
    return result;
}

// What the clock on the wall shows, told by the zone itself.
DateTime localWinterTime(DateTime universal)
{
    TIME_ZONE_INFORMATION zone{};
    GetTimeZoneInformation(&zone);
    return universal.plusSeconds(-60 * (zone.Bias + (zone.StandardDate.wMonth != 0 ? zone.StandardBias : 0)));
}

int numberOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (const RuntimeError& fault) {
        return fault.number();
    }
    return 0;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(OnDisk, FileRules, testing::Values([] { return std::make_unique<OnDisk>(); }));

TEST(FullPath, IsWhatTheSystemTakes)
{
    struct
    {
        const char* documentPath;
        const wchar_t* full;
        const wchar_t* longText;
    } const cases[] = {
        {"W:", L"W:\\", L"\\\\?\\W:\\"},
        {"w:/Konstruktion//./neu\\Tief.par", L"w:\\Konstruktion\\neu\\Tief.par",
         L"\\\\?\\w:\\Konstruktion\\neu\\Tief.par"},
        {"W:Konstruktion\\", L"W:\\Konstruktion", L"\\\\?\\W:\\Konstruktion"},
        {"W:\\a\\..\\..\\b", L"W:\\b", L"\\\\?\\W:\\b"},
        {"W:\\Ordner. \\x.par. .", L"W:\\Ordner\\x.par", L"\\\\?\\W:\\Ordner\\x.par"},
        {"W:\\ a.b ", L"W:\\ a.b", L"\\\\?\\W:\\ a.b"},
        {"\\\\Server\\Alt", L"\\\\Server\\Alt\\", L"\\\\?\\UNC\\Server\\Alt\\"},
        {"//server/alt/../../x.dft", L"\\\\server\\alt\\x.dft", L"\\\\?\\UNC\\server\\alt\\x.dft"},
        {"\\\\server", L"", L""},
        {"\\\\..\\archiv\\x", L"", L""},
        {"\\\\.\\pipe\\x", L"", L""},
        {"\\\\?\\C:\\x", L"", L""},
        {"x.par", L"", L""},
        {"\\x.par", L"", L""},
        {"", L"", L""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fullPath(c.documentPath), c.full) << c.documentPath;
        EXPECT_EQ(longPath(fullPath(c.documentPath)), c.longText) << c.documentPath;
    }
    EXPECT_EQ(fullPath(std::string_view("W:\\a\0b", 6)), L"");
    EXPECT_EQ(longPath(L"\\\\?\\W:\\x"), L"\\\\?\\W:\\x");
}

TEST(WindowsFiles, PathsMayBeLongAndHaveUmlauts)
{
    OnDisk world;
    std::string folder = "W:";
    for (const char* umlaut : {"ä", "Ö", "ß", "€"}) {
        folder += "\\";
        for (int i = 0; i < 80; ++i)
            folder += umlaut;
        world.own.createFolder(folder);
        EXPECT_TRUE(world.own.folderExists(folder));
    }
    const std::string file = folder + "\\Wellenträger.par";
    const std::string copy = folder + "\\Kopie.par";
    ASSERT_GT(wide(file).size(), 330U);
    world.own.write(file, "alt");
    world.own.write(file, "neu");
    world.own.copy(file, copy);
    world.own.setReadOnly(file, true);
    EXPECT_TRUE(world.own.attribute(file)->readOnly);
    EXPECT_EQ(world.own.read(copy), "neu");
    ASSERT_EQ(world.own.content(folder).size(), 2U);
    EXPECT_EQ(world.own.content(folder)[1].name, "Wellenträger.par");
    world.own.remove(copy);
    EXPECT_FALSE(world.own.fileExists(copy));
    // The standard library takes this path as well.
    EXPECT_EQ(fs::file_size(world.own.systemPath(file)), 3U);
}

TEST(WindowsFiles, TellsAttributesInLocalTimeAndKeepsThemWhenWriting)
{
    OnDisk world;
    world.own.write("W:\\x.par", "alt");
    Opened(world.name("W:\\x.par"), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ)
        .setTimes(universal({2004, 1, 0, 15, 10, 30, 59, 900}), universal({2005, 12, 0, 31, 23, 59, 58, 0}));
    SetFileAttributesW(world.name("W:\\x.par").c_str(), FILE_ATTRIBUTE_HIDDEN);
    world.own.copy("W:\\x.par", "W:\\kopie.par");

    const DateTime created = localWinterTime(*parseIso("2004-01-15 10:30:59"));
    const DateTime changed = localWinterTime(*parseIso("2005-12-31 23:59:58"));
    auto original = *world.own.attribute("W:\\x.par");
    const auto copy = *world.own.attribute("W:\\kopie.par");
    // Wine keeps neither the time of creation nor the archive attribute.
    EXPECT_EQ(formatIso(original.created), formatIso(underWine() ? changed : created));
    EXPECT_EQ(formatIso(original.changed), formatIso(changed));
    EXPECT_TRUE(original.hidden);
    EXPECT_EQ(formatIso(copy.changed), formatIso(changed));
    EXPECT_FALSE(copy.hidden);

    for (const bool set : {true, false}) {
        world.own.setArchive("W:\\x.par", set);
        EXPECT_EQ(world.own.attribute("W:\\x.par")->archive, set || underWine());
    }
    world.own.write("W:\\x.par", "neuer");
    original = *world.own.attribute("W:\\x.par");
    EXPECT_EQ(original.size, 5);
    EXPECT_TRUE(original.hidden);
    EXPECT_LE(std::abs(original.changed.seconds - WindowsClock().now().seconds), 60);
}

TEST(WindowsFiles, AFailedWriteLeavesTheOldFileAndNothingElse)
{
    OnDisk world;
    world.own.write("W:\\liste.txt", "alt");
    for (const DWORD allowed : {FILE_SHARE_READ, FILE_SHARE_READ | FILE_SHARE_WRITE}) {
        const Opened held(world.name("W:\\liste.txt"), GENERIC_READ, allowed);
        EXPECT_EQ(numberOf([&] { world.own.write("W:\\liste.txt", "neu"); }), 55);
        EXPECT_EQ(numberOf([&] { world.own.copy("W:\\liste.txt", "W:\\liste.txt"); }), 55);
        EXPECT_EQ(world.own.read("W:\\liste.txt"), "alt");
        EXPECT_EQ(world.own.content("W:").size(), 1U);
    }
}

TEST(WindowsFiles, WritesWhenAnotherProgramOnlyGlancesAtTheFile)
{
    OnDisk world;
    world.own.write("W:\\liste.txt", "alt");
    auto held = std::make_unique<Opened>(world.name("W:\\liste.txt"), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    std::thread glance([&] {
        Sleep(30);
        held.reset();
    });
    world.own.write("W:\\liste.txt", "neu");
    glance.join();
    EXPECT_EQ(world.own.read("W:\\liste.txt"), "neu");
}

TEST(WindowsFiles, ReadsWhatAnotherProgramIsWriting)
{
    OnDisk world;
    world.own.write("W:\\x.dft", "halb");
    {
        const Opened held(world.name("W:\\x.dft"), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
        EXPECT_EQ(world.own.read("W:\\x.dft"), "halb");
        world.own.copy("W:\\x.dft", "W:\\kopie.dft");
        EXPECT_EQ(world.own.read("W:\\kopie.dft"), "halb");
    }
    const Opened alone(world.name("W:\\x.dft"), GENERIC_WRITE, 0);
    EXPECT_TRUE(world.own.attribute("W:\\x.dft"));
    EXPECT_EQ(numberOf([&] { world.own.read("W:\\x.dft"); }), 55);
    EXPECT_EQ(numberOf([&] { world.own.write("W:\\x.dft", ""); }), 55);
}

TEST(WindowsFiles, NamesTheReasonOfAFault)
{
    OnDisk world;
    world.own.createFolder("W:\\Ordner");
    EXPECT_EQ(numberOf([&] { world.own.read("W:\\Ordner"); }), 75);
    EXPECT_EQ(numberOf([&] { world.own.remove("W:\\Ordner"); }), 75);
    EXPECT_EQ(numberOf([&] { world.own.createFolder("W:\\Ordner"); }), 58);
    EXPECT_EQ(numberOf([&] { world.own.content("Q:\\"); }), 68);
    EXPECT_EQ(numberOf([&] { world.own.read("ohne Laufwerk.par"); }), 68);
    EXPECT_NE(numberOf([&] { world.own.write("W:\\a*b?.txt", ""); }), 0);
    // A name that stands for a device elsewhere is a name like any other.
    EXPECT_FALSE(world.own.fileExists("W:\\con.par"));
    EXPECT_EQ(numberOf([&] { world.own.read("W:\\nul"); }), 53);
}
