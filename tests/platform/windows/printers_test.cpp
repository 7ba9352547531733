#include "platform/windows/printers.h"
#include "platform/windows/wide_text.h"

#include <gmock/gmock.h>
#include <string>
#include <windows.h>

using namespace quelvarn;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

const std::wstring PRINTERS = L"System\\CurrentControlSet\\Control\\Print\\Printers\\";
const wchar_t* const CHOSEN = L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows";

void setText(HKEY root, const std::wstring& key, const wchar_t* name, const std::wstring& text)
{
    const DWORD bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    ASSERT_EQ(RegSetKeyValueW(root, key.c_str(), name, REG_SZ, text.c_str(), bytes), ERROR_SUCCESS);
}

void setNumber(const std::wstring& key, const wchar_t* name, DWORD number)
{
    ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_DWORD, &number, sizeof number), ERROR_SUCCESS);
}

struct Setting
{
    DWORD fields;
    short paper;
    short copies;
    short orientation;
};

// Printers put into the registry, which is all that Wine has of them. It must not happen to a real workstation.
class ChosenPrinter : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version"))
            GTEST_SKIP() << "writes printers into the registry";
        ASSERT_THAT(printers.names(), ElementsAre()) << "there are printers already";
    }
    void TearDown() override
    {
        for (const std::wstring& name : made)
            RegDeleteTreeW(HKEY_LOCAL_MACHINE, (PRINTERS + name).c_str());
        RegDeleteKeyValueW(HKEY_CURRENT_USER, CHOSEN, L"Device");
    }

    void makePrinter(std::string_view name, const Setting& setting)
    {
        made.push_back(wide(name));
        const std::wstring key = PRINTERS + made.back();
        setText(HKEY_LOCAL_MACHINE, key, L"Name", made.back());
        setText(HKEY_LOCAL_MACHINE, key, L"Port", L"FILE:");
        setText(HKEY_LOCAL_MACHINE, key, L"Printer Driver", L"wineps.drv");
        setText(HKEY_LOCAL_MACHINE, key, L"Print Processor", L"wineps");
        setText(HKEY_LOCAL_MACHINE, key, L"Datatype", L"RAW");
        setNumber(key, L"Attributes", 64);
        setNumber(key, L"Status", 0);
        DEVMODEA mode = {}; // Wine keeps the narrow form.
        mode.dmSize = sizeof mode;
        mode.dmFields = setting.fields;
        mode.dmPaperSize = setting.paper;
        mode.dmCopies = setting.copies;
        mode.dmOrientation = setting.orientation;
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), L"Default DevMode", REG_BINARY, &mode, sizeof mode);
    }
    void choose(std::string_view name)
    {
        setText(HKEY_CURRENT_USER, CHOSEN, L"Device", wide(name) + L",winspool,FILE:");
    }

    WindowsPrinters printers;
    std::vector<std::wstring> made;
};

constexpr DWORD ALL = DM_PAPERSIZE | DM_COPIES | DM_ORIENTATION;

} // namespace

TEST_F(ChosenPrinter, NoneIsNothing)
{
    EXPECT_FALSE(printers.standard());
    choose("Längst entfernt");
    const auto standard = printers.standard();
    ASSERT_TRUE(standard);
    EXPECT_EQ(standard->name, "Längst entfernt");
    EXPECT_EQ(standard->paperCode, 9);
}

TEST_F(ChosenPrinter, TheChosenOneTellsItsSettings)
{
    const struct
    {
        Setting setting;
        int paperCode, copies, orientation;
    } cases[] = {
        {{ALL, DMPAPER_A3, 3, DMORIENT_LANDSCAPE}, 8, 3, 2},
        {{ALL, DMPAPER_A4, 1, DMORIENT_PORTRAIT}, 9, 1, 1},
        {{ALL, DMPAPER_USER, 0, DMORIENT_PORTRAIT}, 256, 1, 1},
        {{DM_COPIES, DMPAPER_A3, 2, DMORIENT_LANDSCAPE}, 256, 2, 1},
    };
    makePrinter("Büro", {ALL, DMPAPER_A5, 1, DMORIENT_PORTRAIT});
    for (const auto& c : cases) {
        makePrinter("Plotter Übergröße", c.setting);
        choose("Plotter Übergröße");
        const auto standard = printers.standard();
        ASSERT_TRUE(standard);
        EXPECT_EQ(standard->name, "Plotter Übergröße");
        EXPECT_EQ(standard->paperCode, c.paperCode);
        EXPECT_EQ(standard->copies, c.copies);
        EXPECT_EQ(standard->orientation, c.orientation);
    }
    EXPECT_THAT(printers.names(), UnorderedElementsAre("Büro", "Plotter Übergröße"));
}

TEST_F(ChosenPrinter, WithoutAChoiceTheFirstStandsIn)
{
    makePrinter("Büro", {ALL, DMPAPER_A5, 1, DMORIENT_PORTRAIT});
    const auto standard = printers.standard();
    ASSERT_TRUE(standard);
    EXPECT_EQ(standard->name, "Büro");
    EXPECT_EQ(standard->paperCode, 11);
}
