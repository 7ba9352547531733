#include "fakes/fake_ports.h"
#include "platform/windows/running_programs.h"
#include "platform/windows/wide_text.h"
#include "session/program_caption.h"
#include "session/sibling_programs.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <gmock/gmock.h>
#include <string>
#include <thread>
#include <windows.h>

using namespace quelvarn;
using namespace std::chrono_literals;

namespace {

const std::string OWN = "C:\\Büro\\werk.mdb    Quelvarn Version 2.0.0";
const wchar_t* const CAPTION = L"QUELVARN_TEST_CAPTION";
const wchar_t* const HUNG = L"QUELVARN_TEST_HUNG";
constexpr DWORD WATCHDOG = 60'000; // milliseconds

class Window
{
public:
    explicit Window(const std::wstring& caption)
        : handle_(CreateWindowExW(0, L"STATIC", caption.c_str(), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 300, 200,
                                  nullptr, nullptr, nullptr, nullptr))
    {
        EXPECT_NE(handle_, nullptr) << GetLastError();
    }
    ~Window() { DestroyWindow(handle_); }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

private:
    HWND handle_;
};

std::wstring environment(const wchar_t* name)
{
    std::wstring value(1024, L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

// This test program once more, showing a window as the test below says.
class OtherProgram
{
public:
    explicit OtherProgram(std::string_view caption, bool hung = false)
    {
        SetEnvironmentVariableW(CAPTION, wide(caption).c_str());
        SetEnvironmentVariableW(HUNG, hung ? L"1" : L"0");
        std::wstring path(32768, L'\0');
        path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
        std::wstring line = L"\"" + path + L"\" --gtest_filter=OtherProgram.* --gtest_also_run_disabled_tests";
        STARTUPINFOW how = {};
        how.cb = sizeof how;
        how.dwFlags = STARTF_USESTDHANDLES; // None: what it says belongs to no test.
        EXPECT_TRUE(
            CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &it_));
        SetEnvironmentVariableW(CAPTION, nullptr);
    }
    ~OtherProgram()
    {
        TerminateProcess(it_.hProcess, 0);
        WaitForSingleObject(it_.hProcess, 20'000);
        CloseHandle(it_.hThread);
        CloseHandle(it_.hProcess);
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

private:
    PROCESS_INFORMATION it_ = {};
};

std::ptrdiff_t times(const RunningPrograms& programs, const std::string& caption)
{
    const std::vector<std::string> all = programs.windowTitles();
    return std::count(all.begin(), all.end(), caption);
}

bool comesTrue(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + 20s;
    while (!condition() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(5ms);
    return condition();
}

} // namespace

// Not a test by itself: what OtherProgram runs.
TEST(OtherProgram, DISABLED_ShowsItsCaption)
{
    const std::wstring caption = environment(CAPTION);
    if (caption.empty())
        GTEST_SKIP() << "is run by the tests below";
    WindowsRunningPrograms programs;
    programs.ownTitle(narrow(caption));
    const Window window(caption);
    if (environment(HUNG) == L"1") {
        Sleep(WATCHDOG);
        return;
    }
    SetTimer(nullptr, 0, WATCHDOG, nullptr);
    for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0 && message.message != WM_TIMER;)
        DispatchMessageW(&message);
}

TEST(RunningPrograms, OnesOwnCaptionCountsOnce)
{
    WindowsRunningPrograms programs;
    EXPECT_EQ(times(programs, OWN), 0);
    {
        WindowsRunningPrograms early;
        early.ownTitle("noch keiner");
        early.ownTitle(OWN);
        EXPECT_EQ(times(programs, "noch keiner"), 0);
        EXPECT_EQ(times(programs, OWN), 1);
        const Window window(wide(OWN));
        EXPECT_EQ(times(programs, OWN), 1);
    }
    EXPECT_EQ(times(programs, OWN), 0);

    const std::string longOne = "W:\\" + std::string(3000, 'x') + "    Quelvarn Version 2.0.0";
    programs.ownTitle(longOne);
    EXPECT_EQ(times(programs, longOne), 1);
}

TEST(RunningPrograms, OthersAreSeenAsLongAsTheyLiveEvenWhenTheyHang)
{
    const WindowsRunningPrograms programs;
    for (const bool hung : {false, true}) {
        const std::string caption =
            hung ? "Prüfung hängt    Harvel Version 2.1" : "Prüfung läuft    Harvel Version 2.1";
        {
            const OtherProgram other(caption, hung);
            EXPECT_TRUE(comesTrue([&] { return times(programs, caption) > 0; }));
            const auto start = std::chrono::steady_clock::now();
            EXPECT_EQ(times(programs, caption), 1) << "its real window and its early one are one program";
            EXPECT_LT(std::chrono::steady_clock::now() - start, 2s);
        }
        EXPECT_TRUE(comesTrue([&] { return times(programs, caption) == 0; }));
    }
}

TEST(RunningPrograms, TheSecondCopyAsks)
{
    FakePorts world;
    WindowsRunningPrograms programs;
    const Ports ports = {
        world.boxes, world.clock,     world.environment,        world.files,   world.drives, world.printers,
        programs,    world.clipboard, world.defaultApplication, world.progress};
    programs.ownTitle(OWN);
    EXPECT_TRUE(CheckAlreadyRunning(ports));
    EXPECT_FALSE(CheckSiblingsRunning(ports));

    const OtherProgram other("W:\\werk.mdb    Quelvarn Version 2.0.0");
    ASSERT_TRUE(comesTrue([&] { return runningCopies(ports) == 2; }));
    world.boxes.expect("'Quelvarn' ist bereits gestartet",
                       "'Quelvarn' ist bereits gestartet!\n\nMöchten Sie 'Quelvarn' erneut öffnen?.", Answer::No);
    EXPECT_FALSE(CheckAlreadyRunning(ports));
}
