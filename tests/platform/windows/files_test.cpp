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
class DateienImOrdner : public WindowsDateien
{
public:
    fs::path systempfad(std::string_view pfad) const override
    {
        const char letter = pfad.size() > 1 && pfad[1] == ':' ? static_cast<char>(pfad[0] | 0x20) : ' ';
        if (letter != 'c' && letter != 'w')
            return WindowsDateien::systempfad(pfad);
        return WindowsDateien::systempfad(ordner() + "\\" + letter + "\\" + std::string(pfad.substr(2)));
    }
    std::string ordner() const { return narrow(folder_.path().native()); }

private:
    TempFolder folder_;
};

struct AufDerPlatte : DateienWelt
{
    AufDerPlatte()
    {
        for (const char* laufwerk : {"C:", "W:"})
            eigene.ordnerAnlegen(laufwerk);
    }
    ~AufDerPlatte() override
    {
        for (const char* laufwerk : {"C:", "W:"})
            leere(laufwerk);
    }
    Dateien& dateien() override { return eigene; }
    std::wstring name(std::string_view pfad) const { return langerPfad(eigene.systempfad(pfad).native()); }

    DateienImOrdner eigene;

private:
    // The standard library cannot remove long paths.
    void leere(const std::string& ordner)
    {
        for (const Ordnereintrag& eintrag : eigene.inhalt(ordner)) {
            const std::string pfad = ordner + "\\" + eintrag.name;
            if (eintrag.ordner) {
                leere(pfad);
                RemoveDirectoryW(name(pfad).c_str());
            } else {
                eigene.setzeSchreibschutz(pfad, false);
                eigene.loesche(pfad);
            }
        }
    }
};

// A file that another program has open.
class Geoeffnet
{
public:
    Geoeffnet(const std::wstring& path, DWORD zugriff, DWORD erlaubt)
        : handle_(CreateFileW(path.c_str(), zugriff, erlaubt, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE) << GetLastError();
    }
    ~Geoeffnet() { CloseHandle(handle_); }
    Geoeffnet(const Geoeffnet&) = delete;
    Geoeffnet& operator=(const Geoeffnet&) = delete;

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
Zeitpunkt localWinterTime(Zeitpunkt universal)
{
    TIME_ZONE_INFORMATION zone{};
    GetTimeZoneInformation(&zone);
    return universal.plusSekunden(-60 * (zone.Bias + (zone.StandardDate.wMonth != 0 ? zone.StandardBias : 0)));
}

int nummerVon(const std::function<void()>& arbeit)
{
    try {
        arbeit();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.nummer();
    }
    return 0;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(AufDerPlatte, DateienRegeln, testing::Values([] { return std::make_unique<AufDerPlatte>(); }));

TEST(FullPath, IsWhatTheSystemTakes)
{
    struct
    {
        const char* pfad;
        const wchar_t* voll;
        const wchar_t* lang;
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
        EXPECT_EQ(vollerPfad(c.pfad), c.voll) << c.pfad;
        EXPECT_EQ(langerPfad(vollerPfad(c.pfad)), c.lang) << c.pfad;
    }
    EXPECT_EQ(vollerPfad(std::string_view("W:\\a\0b", 6)), L"");
    EXPECT_EQ(langerPfad(L"\\\\?\\W:\\x"), L"\\\\?\\W:\\x");
}

TEST(WindowsDateien, PathsMayBeLongAndHaveUmlauts)
{
    AufDerPlatte welt;
    std::string ordner = "W:";
    for (const char* umlaut : {"ä", "Ö", "ß", "€"}) {
        ordner += "\\";
        for (int i = 0; i < 80; ++i)
            ordner += umlaut;
        welt.eigene.ordnerAnlegen(ordner);
        EXPECT_TRUE(welt.eigene.ordnerVorhanden(ordner));
    }
    const std::string datei = ordner + "\\Wellenträger.par";
    const std::string kopie = ordner + "\\Kopie.par";
    ASSERT_GT(wide(datei).size(), 330U);
    welt.eigene.schreibe(datei, "alt");
    welt.eigene.schreibe(datei, "neu");
    welt.eigene.kopiere(datei, kopie);
    welt.eigene.setzeSchreibschutz(datei, true);
    EXPECT_TRUE(welt.eigene.attribute(datei)->schreibgeschuetzt);
    EXPECT_EQ(welt.eigene.lese(kopie), "neu");
    ASSERT_EQ(welt.eigene.inhalt(ordner).size(), 2U);
    EXPECT_EQ(welt.eigene.inhalt(ordner)[1].name, "Wellenträger.par");
    welt.eigene.loesche(kopie);
    EXPECT_FALSE(welt.eigene.dateiVorhanden(kopie));
    // The standard library takes this path as well.
    EXPECT_EQ(fs::file_size(welt.eigene.systempfad(datei)), 3U);
}

TEST(WindowsDateien, TellsAttributesInLocalTimeAndKeepsThemWhenWriting)
{
    AufDerPlatte welt;
    welt.eigene.schreibe("W:\\x.par", "alt");
    Geoeffnet(welt.name("W:\\x.par"), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ)
        .setTimes(universal({2004, 1, 0, 15, 10, 30, 59, 900}), universal({2005, 12, 0, 31, 23, 59, 58, 0}));
    SetFileAttributesW(welt.name("W:\\x.par").c_str(), FILE_ATTRIBUTE_HIDDEN);
    welt.eigene.kopiere("W:\\x.par", "W:\\kopie.par");

    const Zeitpunkt created = localWinterTime(*parseIso("2004-01-15 10:30:59"));
    const Zeitpunkt changed = localWinterTime(*parseIso("2005-12-31 23:59:58"));
    auto original = *welt.eigene.attribute("W:\\x.par");
    const auto copy = *welt.eigene.attribute("W:\\kopie.par");
    // Wine keeps neither the time of creation nor the archive attribute.
    EXPECT_EQ(formatIso(original.erstellt), formatIso(unterWine() ? changed : created));
    EXPECT_EQ(formatIso(original.geaendert), formatIso(changed));
    EXPECT_TRUE(original.versteckt);
    EXPECT_EQ(formatIso(copy.geaendert), formatIso(changed));
    EXPECT_FALSE(copy.versteckt);

    for (const bool gesetzt : {true, false}) {
        welt.eigene.setzeArchiv("W:\\x.par", gesetzt);
        EXPECT_EQ(welt.eigene.attribute("W:\\x.par")->archiv, gesetzt || unterWine());
    }
    welt.eigene.schreibe("W:\\x.par", "neuer");
    original = *welt.eigene.attribute("W:\\x.par");
    EXPECT_EQ(original.groesse, 5);
    EXPECT_TRUE(original.versteckt);
    EXPECT_LE(std::abs(original.geaendert.sekunden - WindowsUhr().jetzt().sekunden), 60);
}

TEST(WindowsDateien, AFailedWriteLeavesTheOldFileAndNothingElse)
{
    AufDerPlatte welt;
    welt.eigene.schreibe("W:\\liste.txt", "alt");
    for (const DWORD erlaubt : {FILE_SHARE_READ, FILE_SHARE_READ | FILE_SHARE_WRITE}) {
        const Geoeffnet held(welt.name("W:\\liste.txt"), GENERIC_READ, erlaubt);
        EXPECT_EQ(nummerVon([&] { welt.eigene.schreibe("W:\\liste.txt", "neu"); }), 55);
        EXPECT_EQ(nummerVon([&] { welt.eigene.kopiere("W:\\liste.txt", "W:\\liste.txt"); }), 55);
        EXPECT_EQ(welt.eigene.lese("W:\\liste.txt"), "alt");
        EXPECT_EQ(welt.eigene.inhalt("W:").size(), 1U);
    }
}

TEST(WindowsDateien, WritesWhenAnotherProgramOnlyGlancesAtTheFile)
{
    AufDerPlatte welt;
    welt.eigene.schreibe("W:\\liste.txt", "alt");
    auto held =
        std::make_unique<Geoeffnet>(welt.name("W:\\liste.txt"), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    std::thread glance([&] {
        Sleep(30);
        held.reset();
    });
    welt.eigene.schreibe("W:\\liste.txt", "neu");
    glance.join();
    EXPECT_EQ(welt.eigene.lese("W:\\liste.txt"), "neu");
}

TEST(WindowsDateien, ReadsWhatAnotherProgramIsWriting)
{
    AufDerPlatte welt;
    welt.eigene.schreibe("W:\\x.dft", "halb");
    {
        const Geoeffnet held(welt.name("W:\\x.dft"), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
        EXPECT_EQ(welt.eigene.lese("W:\\x.dft"), "halb");
        welt.eigene.kopiere("W:\\x.dft", "W:\\kopie.dft");
        EXPECT_EQ(welt.eigene.lese("W:\\kopie.dft"), "halb");
    }
    const Geoeffnet alone(welt.name("W:\\x.dft"), GENERIC_WRITE, 0);
    EXPECT_TRUE(welt.eigene.attribute("W:\\x.dft"));
    EXPECT_EQ(nummerVon([&] { welt.eigene.lese("W:\\x.dft"); }), 55);
    EXPECT_EQ(nummerVon([&] { welt.eigene.schreibe("W:\\x.dft", ""); }), 55);
}

TEST(WindowsDateien, NamesTheReasonOfAFault)
{
    AufDerPlatte welt;
    welt.eigene.ordnerAnlegen("W:\\Ordner");
    EXPECT_EQ(nummerVon([&] { welt.eigene.lese("W:\\Ordner"); }), 75);
    EXPECT_EQ(nummerVon([&] { welt.eigene.loesche("W:\\Ordner"); }), 75);
    EXPECT_EQ(nummerVon([&] { welt.eigene.ordnerAnlegen("W:\\Ordner"); }), 58);
    EXPECT_EQ(nummerVon([&] { welt.eigene.inhalt("Q:\\"); }), 68);
    EXPECT_EQ(nummerVon([&] { welt.eigene.lese("ohne Laufwerk.par"); }), 68);
    EXPECT_NE(nummerVon([&] { welt.eigene.schreibe("W:\\a*b?.txt", ""); }), 0);
    // A name that stands for a device elsewhere is a name like any other.
    EXPECT_FALSE(welt.eigene.dateiVorhanden("W:\\con.par"));
    EXPECT_EQ(nummerVon([&] { welt.eigene.lese("W:\\nul"); }), 53);
}
