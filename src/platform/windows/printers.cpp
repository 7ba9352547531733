#include "platform/windows/printers.h"

#include "platform/windows/wide_text.h"

#include <chrono>
#include <cstddef>
#include <future>
#include <thread>
#include <utility>

// The spooler's header needs the types of the system's.
#include <windows.h>
#include <winspool.h>

namespace quelvarn {
namespace {

constexpr int NOT_NAMED = 256;
// The server of a connected printer may be switched off; nobody waits for it at the start of the program.
constexpr auto PATIENCE = std::chrono::seconds(5);

// Room for structures of the spooler, aligned for them.
using Buffer = std::vector<std::max_align_t>;

Buffer buffer(DWORD bytes)
{
    return Buffer(bytes / sizeof(std::max_align_t) + 1);
}

BYTE* bytesIn(Buffer& content)
{
    return reinterpret_cast<BYTE*>(content.data());
}

class PrinterHandle
{
public:
    explicit PrinterHandle(std::wstring name)
    {
        if (!OpenPrinterW(name.data(), &handle_, nullptr))
            handle_ = nullptr;
    }
    ~PrinterHandle()
    {
        if (handle_)
            ClosePrinter(handle_);
    }
    PrinterHandle(const PrinterHandle&) = delete;
    PrinterHandle& operator=(const PrinterHandle&) = delete;

    // What the spooler tells at this level; empty when it tells nothing.
    Buffer information(DWORD level) const
    {
        DWORD bytes = 0;
        if (!handle_ || GetPrinterW(handle_, level, nullptr, 0, &bytes) || GetLastError() != ERROR_INSUFFICIENT_BUFFER)
            return {};
        Buffer content = buffer(bytes);
        if (!GetPrinterW(handle_, level, bytesIn(content), bytes, &bytes))
            return {};
        return content;
    }

private:
    HANDLE handle_ = nullptr;
};

void adopt(DefaultPrinter& printers, const DEVMODEW& setting)
{
    const auto set = [&](DWORD field) { return (setting.dmFields & field) != 0; };
    printers.paperCode = set(DM_PAPERSIZE) ? setting.dmPaperSize : NOT_NAMED;
    if (set(DM_COPIES) && setting.dmCopies > 0)
        printers.copies = setting.dmCopies;
    if (set(DM_ORIENTATION))
        printers.orientation = setting.dmOrientation == DMORIENT_LANDSCAPE ? 2 : 1;
}

// True when the spooler has settings at this level, which are those of the printer then.
template <typename Info> bool adoptLevel(DefaultPrinter& printers, const PrinterHandle& connection, DWORD level)
{
    Buffer content = connection.information(level);
    if (content.empty())
        return false;
    const DEVMODEW* setting = reinterpret_cast<const Info*>(content.data())->pDevMode;
    if (!setting)
        return false;
    adopt(printers, *setting);
    return true;
}

DefaultPrinter settingsOf(const std::wstring& name)
{
    DefaultPrinter result;
    result.name = narrow(name);
    const PrinterHandle connection(name);
    // The user's own settings, those of the computer, those of the driver.
    if (!adoptLevel<PRINTER_INFO_9W>(result, connection, 9) && !adoptLevel<PRINTER_INFO_8W>(result, connection, 8))
        adoptLevel<PRINTER_INFO_2W>(result, connection, 2);
    return result;
}

// Asked on a thread of its own, which is left behind when the spooler does not come back.
DefaultPrinter settingsSoon(const std::wstring& name)
{
    std::packaged_task<DefaultPrinter()> ask([name] { return settingsOf(name); });
    std::future<DefaultPrinter> answer = ask.get_future();
    std::thread(std::move(ask)).detach();
    if (answer.wait_for(PATIENCE) == std::future_status::ready)
        return answer.get();
    DefaultPrinter mute;
    mute.name = narrow(name);
    return mute;
}

std::wstring chosenName()
{
    DWORD length = 0;
    GetDefaultPrinterW(nullptr, &length);
    std::wstring name(length, L'\0');
    if (length == 0 || !GetDefaultPrinterW(name.data(), &length))
        return {};
    name.resize(length - 1); // Told with the end mark.
    return name;
}

} // namespace

std::vector<std::string> WindowsPrinters::names() const
{
    constexpr DWORD WHICH = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    constexpr DWORD LEVEL = 4; // Read from the registry, so no print server is waited for.
    DWORD bytes = 0;
    DWORD count = 0;
    EnumPrintersW(WHICH, nullptr, LEVEL, nullptr, 0, &bytes, &count);
    Buffer content = buffer(bytes);
    if (!EnumPrintersW(WHICH, nullptr, LEVEL, bytesIn(content), bytes, &bytes, &count))
        return {};
    std::vector<std::string> result;
    const auto* printers = reinterpret_cast<const PRINTER_INFO_4W*>(content.data());
    for (DWORD i = 0; i < count; ++i)
        result.push_back(narrow(printers[i].pPrinterName));
    return result;
}

// Without a chosen one the first stands in, as in other programs' print dialogs.
std::optional<DefaultPrinter> WindowsPrinters::standard() const
{
    if (const std::wstring name = chosenName(); !name.empty())
        return settingsSoon(name);
    const std::vector<std::string> all = names();
    if (all.empty())
        return std::nullopt;
    return settingsSoon(wide(all.front()));
}

} // namespace quelvarn
