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

constexpr std::size_t GREATEST_TITLE = std::size_t{64} * 1024;

RuntimeError systemFault(const char* operation)
{
    const DWORD number = GetLastError();
    return {static_cast<int>(number), "Fensterliste", fmt::format("{}: {}", operation, windowsMessage(number))};
}

BOOL CALLBACK remember(HWND window, LPARAM list) noexcept
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system hands the pointer through as a number.
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

// Read from what the system keeps of the window, without a message to it: a program that hangs cannot hold us up,
// which GetWindowText does not promise for the windows of one's own process.
std::wstring titleOf(HWND window)
{
    std::wstring title(256, L'\0');
    for (;;) {
        const int length = InternalGetWindowText(window, title.data(), static_cast<int>(title.size()));
        const std::size_t read = length > 0 ? static_cast<std::size_t>(length) : 0;
        if (read + 1 < title.size() || title.size() >= GREATEST_TITLE) {
            title.resize(read);
            return title;
        }
        title.resize(title.size() * 2);
    }
}

} // namespace

// An invisible top-level window that bears the caption. It stands in the list from the first caption on, before the
// program's real window is made, and goes with the process, however that ends.
class WindowsRunningPrograms::Display
{
public:
    explicit Display(const std::wstring& title)
        : window_(CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", title.c_str(), WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                  GetModuleHandleW(nullptr), nullptr))
    {
        if (!window_)
            throw systemFault("Das Fenster für den Titel des Programms kann nicht angelegt werden");
    }
    ~Display() { DestroyWindow(window_); }
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    void set(const std::wstring& title) { SetWindowTextW(window_, title.c_str()); }

private:
    HWND window_;
};

WindowsRunningPrograms::WindowsRunningPrograms() = default;
WindowsRunningPrograms::~WindowsRunningPrograms() = default;

std::vector<std::string> WindowsRunningPrograms::windowTitles() const
{
    std::vector<HWND> windowList;
    if (!EnumWindows(remember, reinterpret_cast<LPARAM>(&windowList)))
        throw systemFault("Die Fenster der laufenden Programme können nicht gelesen werden");

    std::vector<std::string> result;
    std::set<std::pair<DWORD, std::wstring>> named;
    for (const HWND window : windowList) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        std::wstring title = titleOf(window);
        if (title.empty())
            continue;
        if (const auto [position, inserted] = named.emplace(process, std::move(title)); inserted)
            result.push_back(narrow(position->second));
    }
    return result;
}

void WindowsRunningPrograms::ownTitle(std::string_view title)
{
    if (display_)
        display_->set(wide(title));
    else
        display_ = std::make_unique<Display>(wide(title));
}

} // namespace quelvarn
