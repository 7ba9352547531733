#include "platform/windows/running_programs.h"

#include "base/runtime_error.h"
#include "platform/windows/error.h"
#include "platform/windows/wide_text.h"

#include <fmt/format.h>
#include <set>
#include <utility>
#include <windows.h>

namespace quelvarn {
namespace {

constexpr std::size_t GROESSTER_TITEL = 64 * 1024;

Laufzeitfehler systemfehler(const char* vorgang)
{
    const DWORD nummer = GetLastError();
    return {static_cast<int>(nummer), "Fensterliste", fmt::format("{}: {}", vorgang, windowsMeldung(nummer))};
}

BOOL CALLBACK merke(HWND fenster, LPARAM liste) noexcept
{
    reinterpret_cast<std::vector<HWND>*>(liste)->push_back(fenster);
    return TRUE;
}

// Read from what the system keeps of the window, without a message to it: a program that hangs cannot hold us up,
// which GetWindowText does not promise for the windows of one's own process.
std::wstring titelVon(HWND fenster)
{
    std::wstring titel(256, L'\0');
    for (;;) {
        const int laenge = InternalGetWindowText(fenster, titel.data(), static_cast<int>(titel.size()));
        const std::size_t gelesen = laenge > 0 ? static_cast<std::size_t>(laenge) : 0;
        if (gelesen + 1 < titel.size() || titel.size() >= GROESSTER_TITEL) {
            titel.resize(gelesen);
            return titel;
        }
        titel.resize(titel.size() * 2);
    }
}

} // namespace

// An invisible top-level window that bears the caption. It stands in the list from the first caption on, before the
// program's real window is made, and goes with the process, however that ends.
class WindowsLaufendeProgramme::Anzeige
{
public:
    explicit Anzeige(const std::wstring& titel)
        : fenster_(CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", titel.c_str(), WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                   GetModuleHandleW(nullptr), nullptr))
    {
        if (!fenster_)
            throw systemfehler("Das Fenster für den Titel des Programms kann nicht angelegt werden");
    }
    ~Anzeige() { DestroyWindow(fenster_); }
    Anzeige(const Anzeige&) = delete;
    Anzeige& operator=(const Anzeige&) = delete;

    void setze(const std::wstring& titel) { SetWindowTextW(fenster_, titel.c_str()); }

private:
    HWND fenster_;
};

WindowsLaufendeProgramme::WindowsLaufendeProgramme() = default;
WindowsLaufendeProgramme::~WindowsLaufendeProgramme() = default;

std::vector<std::string> WindowsLaufendeProgramme::fenstertitel() const
{
    std::vector<HWND> fensterliste;
    if (!EnumWindows(merke, reinterpret_cast<LPARAM>(&fensterliste)))
        throw systemfehler("Die Fenster der laufenden Programme können nicht gelesen werden");

    std::vector<std::string> result;
    std::set<std::pair<DWORD, std::wstring>> genannt;
    for (const HWND fenster : fensterliste) {
        DWORD prozess = 0;
        GetWindowThreadProcessId(fenster, &prozess);
        std::wstring titel = titelVon(fenster);
        if (titel.empty())
            continue;
        if (const auto [stelle, neu] = genannt.emplace(prozess, std::move(titel)); neu)
            result.push_back(narrow(stelle->second));
    }
    return result;
}

void WindowsLaufendeProgramme::eigenerTitel(std::string_view titel)
{
    if (anzeige_)
        anzeige_->setze(wide(titel));
    else
        anzeige_ = std::make_unique<Anzeige>(wide(titel));
}

} // namespace quelvarn
