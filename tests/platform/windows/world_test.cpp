#include "fakes/temp_folder.h"
#include "platform/windows/files.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/wine.h"
#include "platform/windows/world.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>
#include <windows.h>

using namespace quelvarn;

namespace {

// A text of the registry, and whatever stood there before when the object goes.
class RegistryValue
{
public:
    RegistryValue(const std::wstring& key, const wchar_t* name, const std::wstring& value) : name_(name)
    {
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
        DWORD bytes = sizeof before_;
        had_ = RegGetValueW(key_, nullptr, name, RRF_RT_REG_SZ, nullptr, before_, &bytes) == ERROR_SUCCESS;
        set(value.c_str());
    }
    ~RegistryValue()
    {
        if (had_)
            set(before_);
        else
            RegDeleteValueW(key_, name_);
        RegCloseKey(key_);
    }
    RegistryValue(const RegistryValue&) = delete;
    RegistryValue& operator=(const RegistryValue&) = delete;

private:
    void set(const wchar_t* value)
    {
        const auto bytes = static_cast<DWORD>((std::wcslen(value) + 1) * sizeof(wchar_t));
        EXPECT_EQ(RegSetValueExW(key_, name_, 0, REG_SZ, reinterpret_cast<const BYTE*>(value), bytes), ERROR_SUCCESS);
    }

    HKEY key_ = nullptr;
    const wchar_t* name_;
    wchar_t before_[512] = {};
    bool had_ = false;
};

} // namespace

TEST(WindowsEnvironment, CutsNamesByCharacters)
{
    EXPECT_EQ(shortenedName(L"müller"), "müller");
    EXPECT_EQ(shortenedName(L"Anwender_mit_\u00E4\u00F6\u00FC_zu_langem_Namen"), "Anwender_mit_äöü_zu_lange");
    const std::wstring face = L"\xD83D\xDE00";
    EXPECT_EQ(shortenedName(L"123456789012345678901234" + face + L"x"), "123456789012345678901234\U0001F600");

    if (!underWine())
        GTEST_SKIP() << "here the names of computer and user cannot be changed";
    const RegistryValue computer(L"System\\CurrentControlSet\\Control\\ComputerName\\ActiveComputerName",
                                 L"ComputerName", L"ZEICHENSAAL-RECHNER-NUMMER-27");
    wchar_t before[300] = {};
    GetEnvironmentVariableW(L"WINEUSERNAME", before, 300);
    SetEnvironmentVariableW(L"WINEUSERNAME", L"Konstrukteur J\u00F6rg von und zu Ahnenfels");
    EXPECT_EQ(WindowsEnvironment().computerName(), "ZEICHENSAAL-RECHNER-NUMME");
    EXPECT_EQ(WindowsEnvironment().userName(), "Konstrukteur Jörg von und");
    SetEnvironmentVariableW(L"WINEUSERNAME", before);
}

TEST(WindowsEnvironment, KnowsTheSystem)
{
    const SystemVersion version = WindowsEnvironment().systemVersion();
    EXPECT_GE(std::stoi(version.major), 10);
    EXPECT_FALSE(version.minor.empty());
    EXPECT_EQ(version.platform, 2);

    const std::string drive = WindowsEnvironment().systemDrive();
    const std::vector<Drive> drives = WindowsDrives().list();
    EXPECT_TRUE(WindowsFiles().folderExists(drive));
    EXPECT_TRUE(std::any_of(drives.begin(), drives.end(), [&](const Drive& one) { return one.letter == drive; }));
}

TEST(WindowsDefaultApplication, HandsOverThePathAsOneWord)
{
    TempFolder temporary;
    WindowsFiles files;
    WindowsDefaultApplication shell(files);
    const std::string folder = narrow(temporary.path().native());
    const std::string documentPath = folder + "\\Welle & Träger €.qvpruef";
    files.write(documentPath, "1");
    EXPECT_FALSE(shell.open(documentPath)) << "nobody opens such files";
    EXPECT_FALSE(shell.open(folder + "\\fehlt.qvpruef"));

    // The program for these files copies them to a name of its own.
    const RegistryValue ending(L"Software\\Classes\\.qvpruef", nullptr, L"Quelvarn.Pruefdatei");
    const RegistryValue opener(L"Software\\Classes\\Quelvarn.Pruefdatei\\shell\\open\\command", nullptr,
                               L"cmd.exe /d /c copy \"%1\" \"" + (temporary / "geoeffnet").native() + L"\"");
    EXPECT_TRUE(shell.open(documentPath));
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!files.fileExists(folder + "\\geoeffnet") && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_TRUE(files.fileExists(folder + "\\geoeffnet"));
}
