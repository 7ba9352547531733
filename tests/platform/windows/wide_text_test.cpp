#include "platform/windows/error.h"
#include "platform/windows/wide_text.h"

#include <gtest/gtest.h>
#include <windows.h>

using namespace quelvarn;

TEST(WideText, GoesThereAndBackAndMendsWhatIsBroken)
{
    struct
    {
        std::string_view utf8;
        std::wstring_view utf16;
    } const cases[] = {
        {"", L""},
        {"W:\\Größe ẞ €", L"W:\\Gr\u00F6\u00DFe \u1E9E \u20AC"},
        {"\U0001F600x\U0010FFFF", L"\xD83D\xDE00x\xDBFF\xDFFF"},
        {std::string_view("a\0b", 3), std::wstring_view(L"a\0b", 3)},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(wide(c.utf8), c.utf16) << c.utf8;
        EXPECT_EQ(narrow(c.utf16), c.utf8);
    }
    EXPECT_EQ(wide("a\xE4z\xC3"), L"a\xFFFDz\xFFFD");
    EXPECT_EQ(narrow(L"a\xD83Dz\xDE00\xD83D"), "a\uFFFDz\uFFFD\uFFFD");
}

TEST(WindowsError, HasTheNumbersAndReasonsOfEverySystem)
{
    struct
    {
        DWORD fault;
        int number;
        const char* description;
    } const cases[] = {
        {ERROR_PATH_NOT_FOUND, 53, "Datei oder Ordner nicht gefunden: W:\\x"},
        {ERROR_SHARING_VIOLATION, 55, "Datei ist in Benutzung: W:\\x"},
        {ERROR_ACCESS_DENIED, 70, "Zugriff verweigert: W:\\x"},
        {ERROR_WRITE_PROTECT, 70, "Datenträger ist schreibgeschützt: W:\\x"},
        {ERROR_DISK_FULL, 61, "Datenträger voll: W:\\x"},
        {ERROR_BAD_NET_NAME, 68, "Laufwerk nicht verfügbar: W:\\x"},
        {ERROR_INVALID_NAME, 52, "Dateiname ist ungültig: W:\\x"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(windowsFileFault(c.fault, "W:\\x").number(), c.number);
        EXPECT_EQ(windowsFileFault(c.fault, "W:\\x").description(), c.description);
    }
    const RuntimeError other = windowsFileFault(ERROR_ARENA_TRASHED, "W:\\x");
    EXPECT_EQ(other.number(), ERROR_ARENA_TRASHED);
    EXPECT_EQ(other.description(), windowsMessage(ERROR_ARENA_TRASHED) + ": W:\\x");
    EXPECT_EQ(windowsMessage(0xE0001234), "Fehler 3758101044");
}
